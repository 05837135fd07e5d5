// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

/// Gives the scoped enumeration `Enum`, whose numbers are `int`, the bit operations of flags.
#define VCORE_DECLARE_FLAGS(Enum)                                                                  \
    constexpr Enum operator|(Enum a, Enum b)                                                       \
    {                                                                                              \
        return Enum(int(a) | int(b));                                                              \
    }                                                                                              \
    constexpr Enum operator&(Enum a, Enum b)                                                       \
    {                                                                                              \
        return Enum(int(a) & int(b));                                                              \
    }                                                                                              \
    constexpr Enum operator~(Enum a)                                                               \
    {                                                                                              \
        return Enum(~int(a));                                                                      \
    }                                                                                              \
    constexpr Enum &operator|=(Enum &a, Enum b)                                                    \
    {                                                                                              \
        return a = a | b;                                                                          \
    }                                                                                              \
    constexpr Enum &operator&=(Enum &a, Enum b)                                                    \
    {                                                                                              \
        return a = a & b;                                                                          \
    }
