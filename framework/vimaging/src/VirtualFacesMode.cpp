// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/VirtualFacesMode.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<VirtualFacesMode> kNames[] = {
    {VirtualFacesMode::None, "None"_L1},         {VirtualFacesMode::Sequential, "Sequential"_L1},
    {VirtualFacesMode::Random, "Random"_L1},     {VirtualFacesMode::Rotated, "Rotated"_L1},
    {VirtualFacesMode::Mirrored, "Mirrored"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(VirtualFacesMode, kNames)

} // namespace Norvane::Imaging
