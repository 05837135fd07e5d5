// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/MeasureUnits.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<MeasureUnits> kNames[] = {
    {MeasureUnits::Meters, "Meters"_L1},
    {MeasureUnits::Millimeters, "Millimeters"_L1},
    {MeasureUnits::Inches, "Inches"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(MeasureUnits, kNames)

} // namespace Norvane::Imaging
