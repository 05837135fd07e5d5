// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/ICloneable.h>

#include <utility>

namespace Norvane {

/// A `std::pair` that can be cloned.
template<typename First, typename Second>
class VPair : public std::pair<First, Second>, public Interfaces::ICloneable
{
public:
    /// Both values as their types make them by default.
    VPair()
        : std::pair<First, Second>()
    { }
    /// A pair of these values.
    VPair(const First &firstValue, const Second &secondValue)
        : std::pair<First, Second>(firstValue, secondValue)
    { }

    /// A new copy of both values; the caller owns it.
    Interfaces::ICloneable *clone() const override { return new VPair(*this); }
};

} // namespace Norvane
