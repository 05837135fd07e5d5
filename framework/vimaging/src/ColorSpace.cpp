// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ColorSpace.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<ColorSpace> kNames[] = {
    {ColorSpace::Any, "Any"_L1},
    {ColorSpace::Reserved1, "Reserved1"_L1},
    {ColorSpace::Reserved2, "Reserved2"_L1},
    {ColorSpace::Gray, "Gray"_L1},
    {ColorSpace::Rgb, "Rgb"_L1},
    {ColorSpace::Cmy, "Cmy"_L1},
    {ColorSpace::Cmyk, "Cmyk"_L1},
    {ColorSpace::YCbCr, "YCbCr"_L1},
    {ColorSpace::Yuv, "Yuv"_L1},
    {ColorSpace::Xyz, "Xyz"_L1},
    {ColorSpace::Lab, "Lab"_L1},
    {ColorSpace::Yuvk, "Yuvk"_L1},
    {ColorSpace::Hsv, "Hsv"_L1},
    {ColorSpace::Hsl, "Hsl"_L1},
    {ColorSpace::Yxy, "Yxy"_L1},
    {ColorSpace::Multichannel_1, "Multichannel_1"_L1},
    {ColorSpace::Multichannel_2, "Multichannel_2"_L1},
    {ColorSpace::Multichannel_3, "Multichannel_3"_L1},
    {ColorSpace::Multichannel_4, "Multichannel_4"_L1},
    {ColorSpace::Multichannel_5, "Multichannel_5"_L1},
    {ColorSpace::Multichannel_6, "Multichannel_6"_L1},
    {ColorSpace::Multichannel_7, "Multichannel_7"_L1},
    {ColorSpace::Multichannel_8, "Multichannel_8"_L1},
    {ColorSpace::Multichannel_9, "Multichannel_9"_L1},
    {ColorSpace::Multichannel_10, "Multichannel_10"_L1},
    {ColorSpace::Multichannel_11, "Multichannel_11"_L1},
    {ColorSpace::Multichannel_12, "Multichannel_12"_L1},
    {ColorSpace::Multichannel_13, "Multichannel_13"_L1},
    {ColorSpace::Multichannel_14, "Multichannel_14"_L1},
    {ColorSpace::Multichannel_15, "Multichannel_15"_L1},
    {ColorSpace::Multichannel_16, "Multichannel_16"_L1},
    {ColorSpace::Multichannel_Last, "Multichannel_Last"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ColorSpace, kNames)

} // namespace Norvane::Imaging
