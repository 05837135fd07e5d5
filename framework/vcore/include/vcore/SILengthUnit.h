// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A metric unit of length; the number is its power of ten, in metres.
enum class SILengthUnit : int
{
    YoctoMeter = -24, ///< ym: a septillionth of a metre.
    ZeptoMeter = -21, ///< zm: a sextillionth of a metre.
    AttoMeter = -18, ///< am: a quintillionth of a metre.
    FemtoMeter = -15, ///< fm: a quadrillionth of a metre.
    PicoMeter = -12, ///< pm: a trillionth of a metre.
    NanoMeter = -9, ///< nm: a billionth of a metre.
    MicroMeter = -6, ///< µm: a millionth of a metre.
    MilliMeter = -3, ///< mm: a thousandth of a metre.
    CentiMeter = -2, ///< cm: a hundredth of a metre.
    DeciMeter = -1, ///< dm: a tenth of a metre.
    Meter = 0, ///< m, the base unit.
    DecaMeter = 1, ///< dam: ten metres.
    HectoMeter = 2, ///< hm: a hundred metres.
    KiloMeter = 3, ///< km: a thousand metres.
    MegaMeter = 6, ///< Mm: a million metres.
    GigaMeter = 9, ///< Gm: a billion metres.
    TeraMeter = 12, ///< Tm: a trillion metres.
    PetaMeter = 15, ///< Pm: a quadrillion metres.
    ExaMeter = 18, ///< Em: a quintillion metres.
    ZettaMeter = 21, ///< Zm: a sextillion metres.
    YottaMeter = 24, ///< Ym: a septillion metres.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SILengthUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SILengthUnit)
