// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/PaletteOrder.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<PaletteOrder> kNames[] = {
    {PaletteOrder::Default, "Default"_L1},
    {PaletteOrder::DarkLowest, "DarkLowest"_L1},
    {PaletteOrder::ClearLowest, "ClearLowest"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(PaletteOrder, kNames)

} // namespace Norvane::Imaging
