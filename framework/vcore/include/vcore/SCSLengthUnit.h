// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A customary unit of length; the number is its length in inches.
enum class SCSLengthUnit : int
{
    Inch = 1,
    Foot = 12,
    Yard = 36,
    Rod = 198,
    Furlong = 7920,
    Mile = 63360,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, SCSLengthUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::SCSLengthUnit)
