// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A customary unit of length; the number is its length in inches.
enum class SCSLengthUnit : int
{
    Inch = 1, ///< 25.4 mm.
    Foot = 12, ///< 12 inches.
    Yard = 36, ///< 3 feet.
    Rod = 198, ///< 16.5 feet.
    Furlong = 7920, ///< 40 rods.
    Mile = 63360, ///< 8 furlongs.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SCSLengthUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SCSLengthUnit)
