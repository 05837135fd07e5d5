// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// The colour space of a colour profile, as the signature in its header (ICC.1).
enum class ColorSpaceSignature : int
{
    XYZ = 0x58595A20, ///< XYZ of the CIE.
    Lab = 0x4C616220, ///< Lab of the CIE.
    Luv = 0x4C757620, ///< Luv of the CIE.
    YCbCr = 0x59436272, ///< Luma, and how blue and how red.
    Yxy = 0x59787920, ///< Yxy of the CIE.
    Rgb = 0x52474220, ///< Red, green and blue.
    Gray = 0x47524159, ///< Gray alone.
    Hsv = 0x48535620, ///< Hue, saturation and value.
    Hls = 0x484C5320, ///< Hue, lightness and saturation.
    Cmyk = 0x434D594B, ///< Cyan, magenta, yellow and black.
    Cmy = 0x434D5920, ///< Cyan, magenta and yellow.
    MCh1 = 0x4D434831, ///< 1 channel, by the signature `MCH1`.
    MCh2 = 0x4D434832, ///< 2 channels, by the signature `MCH2`.
    MCh3 = 0x4D434833, ///< 3 channels, by the signature `MCH3`.
    MCh4 = 0x4D434834, ///< 4 channels, by the signature `MCH4`.
    MCh5 = 0x4D434835, ///< 5 channels, by the signature `MCH5`.
    MCh6 = 0x4D434836, ///< 6 channels, by the signature `MCH6`.
    MCh7 = 0x4D434837, ///< 7 channels, by the signature `MCH7`.
    MCh8 = 0x4D434838, ///< 8 channels, by the signature `MCH8`.
    MCh9 = 0x4D434839, ///< 9 channels, by the signature `MCH9`.
    MChA = 0x4D434841, ///< 10 channels, by the signature `MCHA`.
    MChB = 0x4D434842, ///< 11 channels, by the signature `MCHB`.
    MChC = 0x4D434843, ///< 12 channels, by the signature `MCHC`.
    MChD = 0x4D434844, ///< 13 channels, by the signature `MCHD`.
    MChE = 0x4D434845, ///< 14 channels, by the signature `MCHE`.
    MChF = 0x4D434846, ///< 15 channels, by the signature `MCHF`.
    Named = 0x6E6D636C, ///< Colours that have names.
    _1Color = 0x31434C52, ///< 1 colour, by the signature `1CLR`.
    _2Color = 0x32434C52, ///< 2 colours, by the signature `2CLR`.
    _3Color = 0x33434C52, ///< 3 colours, by the signature `3CLR`.
    _4Color = 0x34434C52, ///< 4 colours, by the signature `4CLR`.
    _5Color = 0x35434C52, ///< 5 colours, by the signature `5CLR`.
    _6Color = 0x36434C52, ///< 6 colours, by the signature `6CLR`.
    _7Color = 0x37434C52, ///< 7 colours, by the signature `7CLR`.
    _8Color = 0x38434C52, ///< 8 colours, by the signature `8CLR`.
    _9Color = 0x39434C52, ///< 9 colours, by the signature `9CLR`.
    _10Color = 0x41434C52, ///< 10 colours, by the signature `ACLR`.
    _11Color = 0x42434C52, ///< 11 colours, by the signature `BCLR`.
    _12Color = 0x43434C52, ///< 12 colours, by the signature `CCLR`.
    _13Color = 0x44434C52, ///< 13 colours, by the signature `DCLR`.
    _14Color = 0x45434C52, ///< 14 colours, by the signature `ECLR`.
    _15Color = 0x46434C52, ///< 15 colours, by the signature `FCLR`.
    LuvK = 0x4C75764B, ///< Luv of the CIE, and black.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ColorSpaceSignature, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ColorSpaceSignature)
