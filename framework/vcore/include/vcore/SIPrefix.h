// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A metric prefix; the number is its power of ten.
enum class SIPrefix : int
{
    Yocto = -24, ///< y: a septillionth.
    Zepto = -21, ///< z: a sextillionth.
    Atto = -18, ///< a: a quintillionth.
    Femto = -15, ///< f: a quadrillionth.
    Pico = -12, ///< p: a trillionth.
    Nano = -9, ///< n: a billionth.
    Micro = -6, ///< µ: a millionth.
    Milli = -3, ///< m: a thousandth.
    Centi = -2, ///< c: a hundredth.
    Deci = -1, ///< d: a tenth.
    Base = 0, ///< The unit without a prefix.
    Deca = 1, ///< da: ten.
    Hecto = 2, ///< h: a hundred.
    Kilo = 3, ///< k: a thousand.
    Mega = 6, ///< M: a million.
    Giga = 9, ///< G: a billion.
    Tera = 12, ///< T: a trillion.
    Peta = 15, ///< P: a quadrillion.
    Exa = 18, ///< E: a quintillion.
    Zetta = 21, ///< Z: a sextillion.
    Yotta = 24, ///< Y: a septillion.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SIPrefix, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SIPrefix)
