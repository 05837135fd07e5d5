// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A metric prefix; the number is its power of ten.
enum class SIPrefix : int
{
    Yocto = -24,
    Zepto = -21,
    Atto = -18,
    Femto = -15,
    Pico = -12,
    Nano = -9,
    Micro = -6,
    Milli = -3,
    Centi = -2,
    Deci = -1,
    Base = 0, ///< The unit without a prefix.
    Deca = 1,
    Hecto = 2,
    Kilo = 3,
    Mega = 6,
    Giga = 9,
    Tera = 12,
    Peta = 15,
    Exa = 18,
    Zetta = 21,
    Yotta = 24,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SIPrefix, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SIPrefix)
