// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ColorSpaceSignature.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ColorSpaceSignature> kNames[] = {
    {ColorSpaceSignature::XYZ, "XYZ"_L1},           {ColorSpaceSignature::Lab, "Lab"_L1},
    {ColorSpaceSignature::Luv, "Luv"_L1},           {ColorSpaceSignature::YCbCr, "YCbCr"_L1},
    {ColorSpaceSignature::Yxy, "Yxy"_L1},           {ColorSpaceSignature::Rgb, "Rgb"_L1},
    {ColorSpaceSignature::Gray, "Gray"_L1},         {ColorSpaceSignature::Hsv, "Hsv"_L1},
    {ColorSpaceSignature::Hls, "Hls"_L1},           {ColorSpaceSignature::Cmyk, "Cmyk"_L1},
    {ColorSpaceSignature::Cmy, "Cmy"_L1},           {ColorSpaceSignature::MCh1, "MCh1"_L1},
    {ColorSpaceSignature::MCh2, "MCh2"_L1},         {ColorSpaceSignature::MCh3, "MCh3"_L1},
    {ColorSpaceSignature::MCh4, "MCh4"_L1},         {ColorSpaceSignature::MCh5, "MCh5"_L1},
    {ColorSpaceSignature::MCh6, "MCh6"_L1},         {ColorSpaceSignature::MCh7, "MCh7"_L1},
    {ColorSpaceSignature::MCh8, "MCh8"_L1},         {ColorSpaceSignature::MCh9, "MCh9"_L1},
    {ColorSpaceSignature::MChA, "MChA"_L1},         {ColorSpaceSignature::MChB, "MChB"_L1},
    {ColorSpaceSignature::MChC, "MChC"_L1},         {ColorSpaceSignature::MChD, "MChD"_L1},
    {ColorSpaceSignature::MChE, "MChE"_L1},         {ColorSpaceSignature::MChF, "MChF"_L1},
    {ColorSpaceSignature::Named, "Named"_L1},       {ColorSpaceSignature::_1Color, "_1Color"_L1},
    {ColorSpaceSignature::_2Color, "_2Color"_L1},   {ColorSpaceSignature::_3Color, "_3Color"_L1},
    {ColorSpaceSignature::_4Color, "_4Color"_L1},   {ColorSpaceSignature::_5Color, "_5Color"_L1},
    {ColorSpaceSignature::_6Color, "_6Color"_L1},   {ColorSpaceSignature::_7Color, "_7Color"_L1},
    {ColorSpaceSignature::_8Color, "_8Color"_L1},   {ColorSpaceSignature::_9Color, "_9Color"_L1},
    {ColorSpaceSignature::_10Color, "_10Color"_L1}, {ColorSpaceSignature::_11Color, "_11Color"_L1},
    {ColorSpaceSignature::_12Color, "_12Color"_L1}, {ColorSpaceSignature::_13Color, "_13Color"_L1},
    {ColorSpaceSignature::_14Color, "_14Color"_L1}, {ColorSpaceSignature::_15Color, "_15Color"_L1},
    {ColorSpaceSignature::LuvK, "LuvK"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ColorSpaceSignature, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
