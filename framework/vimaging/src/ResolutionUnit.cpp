// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ResolutionUnit.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ResolutionUnit> kNames[] = {
    {ResolutionUnit::PPM, "PPM"_L1},
    {ResolutionUnit::PPMM, "PPMM"_L1},
    {ResolutionUnit::DPI, "DPI"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ResolutionUnit, kNames)

} // namespace Norvane::Imaging
