// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// The layout of an image's pixels, as a packed code.
///
/// | Bits     | Meaning |
/// |----------|---------|
/// | 0 to 7   | bits a pixel |
/// | 8 to 15  | channels a pixel, a padding channel included |
/// | 16 to 19 | 1: the last channel is alpha, 2: the last channel is padding, 4: zero is white |
/// | 20 to 23 | 1 indexed, 2 gray, 3 RGB, 4 CMY, 5 CMYK, 6 multichannel, 7 Lab |
///
/// All channels of a pixel are equally wide. Four-bit gray carries the screened images of up to
/// sixteen levels.
enum class ImageFormat : int
{
    Invalid = 0,

    // A palette.
    Indexed_1bpp = 0x100101,
    Indexed_2bpp = 0x100102,
    Indexed_4bpp = 0x100104,
    Indexed_8bpp = 0x100108,

    // One channel; zero is black, or white with a W.
    Gray_1bpp = 0x200101,
    Gray_4bpp = 0x200104,
    Gray_8bpp = 0x200108,
    Gray_16bpp = 0x200110,
    GrayW_1bpp = 0x240101,
    GrayW_4bpp = 0x240104,
    GrayW_8bpp = 0x240108,
    GrayW_16bpp = 0x240110,

    // X is padding, A is alpha.
    Rgb_24bpp = 0x300318,
    RgbX_32bpp = 0x320420,
    RgbA_32bpp = 0x310420,
    Rgb_48bpp = 0x300330,
    RgbX_64bpp = 0x320440,
    RgbA_64bpp = 0x310440,

    // Process colours, with up to four more channels.
    Cmy_24bpp = 0x400318,
    Cmy_48bpp = 0x400330,
    Cmyk_32bpp = 0x500420,
    Cmyk_64bpp = 0x500440,
    CmykX1_40bpp = 0x500528,
    CmykX2_48bpp = 0x500630,
    CmykX3_56bpp = 0x500738,
    CmykX4_64bpp = 0x500840,
    CmykX1_80bpp = 0x500550,
    CmykX2_96bpp = 0x500660,
    CmykX3_112bpp = 0x500770,
    CmykX4_128bpp = 0x500880,

    // Channels without a meaning of their own.
    MCh1_8bpp = 0x600108,
    MCh2_16bpp = 0x600210,
    MCh3_24bpp = 0x600318,
    MCh4_32bpp = 0x600420,
    MCh5_40bpp = 0x600528,
    MCh6_48bpp = 0x600630,
    MCh7_56bpp = 0x600738,
    MCh8_64bpp = 0x600840,
    MCh1_16bpp = 0x600110,
    MCh2_32bpp = 0x600220,
    MCh3_48bpp = 0x600330,
    MCh4_64bpp = 0x600440,
    MCh5_80bpp = 0x600550,
    MCh6_96bpp = 0x600660,
    MCh7_112bpp = 0x600770,
    MCh8_128bpp = 0x600880,

    // Integer channels; at 96 bits, floating point.
    Lab_24bpp = 0x700318,
    Lab_48bpp = 0x700330,
    Lab_96bpp = 0x700360,
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageFormat, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageFormat)
