// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A metric unit of length; the number is its power of ten, in metres.
enum class SILengthUnit : int
{
    YoctoMeter = -24,
    ZeptoMeter = -21,
    AttoMeter = -18,
    FemtoMeter = -15,
    PicoMeter = -12,
    NanoMeter = -9,
    MicroMeter = -6,
    MilliMeter = -3,
    CentiMeter = -2,
    DeciMeter = -1,
    Meter = 0,
    DecaMeter = 1,
    HectoMeter = 2,
    KiloMeter = 3,
    MegaMeter = 6,
    GigaMeter = 9,
    TeraMeter = 12,
    PetaMeter = 15,
    ExaMeter = 18,
    ZettaMeter = 21,
    YottaMeter = 24,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SILengthUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SILengthUnit)
