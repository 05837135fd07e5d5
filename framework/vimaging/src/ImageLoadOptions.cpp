// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ImageLoadOptions.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ImageLoadOptions> kNames[] = {
    {ImageLoadOptions::None, "None"_L1},
    {ImageLoadOptions::Smartload, "Smartload"_L1},
    {ImageLoadOptions::DisableQtAutotransform, "DisableQtAutotransform"_L1},
    {ImageLoadOptions::IgnoreCrcError, "IgnoreCrcError"_L1},
    {ImageLoadOptions::AddDefaultColorProfile, "AddDefaultColorProfile"_L1},
    {ImageLoadOptions::VectorChannelModeHack, "VectorChannelModeHack"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ImageLoadOptions, kNames)

} // namespace Norvane::Imaging
