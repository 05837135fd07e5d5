// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/SCSLengthUnit.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<SCSLengthUnit> kNames[] = {
    {SCSLengthUnit::Inch, "Inch"_L1},       {SCSLengthUnit::Foot, "Foot"_L1},
    {SCSLengthUnit::Yard, "Yard"_L1},       {SCSLengthUnit::Rod, "Rod"_L1},
    {SCSLengthUnit::Furlong, "Furlong"_L1}, {SCSLengthUnit::Mile, "Mile"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(SCSLengthUnit, kNames)

} // namespace Norvane
