// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ImageFormat.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ImageFormat> kNames[] = {
    {ImageFormat::Invalid, "Invalid"_L1},
    {ImageFormat::Indexed_1bpp, "Indexed_1bpp"_L1},
    {ImageFormat::Indexed_2bpp, "Indexed_2bpp"_L1},
    {ImageFormat::Indexed_4bpp, "Indexed_4bpp"_L1},
    {ImageFormat::Indexed_8bpp, "Indexed_8bpp"_L1},
    {ImageFormat::Gray_1bpp, "Gray_1bpp"_L1},
    {ImageFormat::Gray_4bpp, "Gray_4bpp"_L1},
    {ImageFormat::Gray_8bpp, "Gray_8bpp"_L1},
    {ImageFormat::Gray_16bpp, "Gray_16bpp"_L1},
    {ImageFormat::GrayW_1bpp, "GrayW_1bpp"_L1},
    {ImageFormat::GrayW_4bpp, "GrayW_4bpp"_L1},
    {ImageFormat::GrayW_8bpp, "GrayW_8bpp"_L1},
    {ImageFormat::GrayW_16bpp, "GrayW_16bpp"_L1},
    {ImageFormat::Rgb_24bpp, "Rgb_24bpp"_L1},
    {ImageFormat::RgbX_32bpp, "RgbX_32bpp"_L1},
    {ImageFormat::RgbA_32bpp, "RgbA_32bpp"_L1},
    {ImageFormat::Rgb_48bpp, "Rgb_48bpp"_L1},
    {ImageFormat::RgbX_64bpp, "RgbX_64bpp"_L1},
    {ImageFormat::RgbA_64bpp, "RgbA_64bpp"_L1},
    {ImageFormat::Cmy_24bpp, "Cmy_24bpp"_L1},
    {ImageFormat::Cmy_48bpp, "Cmy_48bpp"_L1},
    {ImageFormat::Cmyk_32bpp, "Cmyk_32bpp"_L1},
    {ImageFormat::Cmyk_64bpp, "Cmyk_64bpp"_L1},
    {ImageFormat::CmykX1_40bpp, "CmykX1_40bpp"_L1},
    {ImageFormat::CmykX2_48bpp, "CmykX2_48bpp"_L1},
    {ImageFormat::CmykX3_56bpp, "CmykX3_56bpp"_L1},
    {ImageFormat::CmykX4_64bpp, "CmykX4_64bpp"_L1},
    {ImageFormat::CmykX1_80bpp, "CmykX1_80bpp"_L1},
    {ImageFormat::CmykX2_96bpp, "CmykX2_96bpp"_L1},
    {ImageFormat::CmykX3_112bpp, "CmykX3_112bpp"_L1},
    {ImageFormat::CmykX4_128bpp, "CmykX4_128bpp"_L1},
    {ImageFormat::MCh1_8bpp, "MCh1_8bpp"_L1},
    {ImageFormat::MCh2_16bpp, "MCh2_16bpp"_L1},
    {ImageFormat::MCh3_24bpp, "MCh3_24bpp"_L1},
    {ImageFormat::MCh4_32bpp, "MCh4_32bpp"_L1},
    {ImageFormat::MCh5_40bpp, "MCh5_40bpp"_L1},
    {ImageFormat::MCh6_48bpp, "MCh6_48bpp"_L1},
    {ImageFormat::MCh7_56bpp, "MCh7_56bpp"_L1},
    {ImageFormat::MCh8_64bpp, "MCh8_64bpp"_L1},
    {ImageFormat::MCh1_16bpp, "MCh1_16bpp"_L1},
    {ImageFormat::MCh2_32bpp, "MCh2_32bpp"_L1},
    {ImageFormat::MCh3_48bpp, "MCh3_48bpp"_L1},
    {ImageFormat::MCh4_64bpp, "MCh4_64bpp"_L1},
    {ImageFormat::MCh5_80bpp, "MCh5_80bpp"_L1},
    {ImageFormat::MCh6_96bpp, "MCh6_96bpp"_L1},
    {ImageFormat::MCh7_112bpp, "MCh7_112bpp"_L1},
    {ImageFormat::MCh8_128bpp, "MCh8_128bpp"_L1},
    {ImageFormat::Lab_24bpp, "Lab_24bpp"_L1},
    {ImageFormat::Lab_48bpp, "Lab_48bpp"_L1},
    {ImageFormat::Lab_96bpp, "Lab_96bpp"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ImageFormat, kNames)

} // namespace Norvane::Imaging
