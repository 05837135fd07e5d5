// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ImageSaveOptions.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ImageSaveOptions> kNames[] = {
    {ImageSaveOptions::None, "None"_L1},
    {ImageSaveOptions::Lzw, "Lzw"_L1},
    {ImageSaveOptions::Rle, "Rle"_L1},
    {ImageSaveOptions::Zip, "Zip"_L1},
    {ImageSaveOptions::Jpeg, "Jpeg"_L1},
    {ImageSaveOptions::Lz4, "Lz4"_L1},
    {ImageSaveOptions::Aes128, "Aes128"_L1},
    {ImageSaveOptions::ForceSplit, "ForceSplit"_L1},
    {ImageSaveOptions::DenySplit, "DenySplit"_L1},
    {ImageSaveOptions::ExcludeXmp, "ExcludeXmp"_L1},
    {ImageSaveOptions::ExcludeGps, "ExcludeGps"_L1},
    {ImageSaveOptions::ExcludeExif, "ExcludeExif"_L1},
    {ImageSaveOptions::ExcludePreview, "ExcludePreview"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ImageSaveOptions, kNames)

} // namespace Norvane::Imaging
