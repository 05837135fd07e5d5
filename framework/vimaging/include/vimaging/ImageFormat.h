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
    Invalid = 0, ///< No image.

    // A palette.
    Indexed_1bpp = 0x100101, ///< A palette of 2 colours.
    Indexed_2bpp = 0x100102, ///< A palette of 4 colours.
    Indexed_4bpp = 0x100104, ///< A palette of 16 colours.
    Indexed_8bpp = 0x100108, ///< A palette of 256 colours.

    // One channel; zero is black, or white with a W.
    Gray_1bpp = 0x200101, ///< 2 levels, zero is black.
    Gray_4bpp = 0x200104, ///< 16 levels, zero is black.
    Gray_8bpp = 0x200108, ///< 256 levels, zero is black.
    Gray_16bpp = 0x200110, ///< 65536 levels, zero is black.
    GrayW_1bpp = 0x240101, ///< 2 levels, zero is white.
    GrayW_4bpp = 0x240104, ///< 16 levels, zero is white.
    GrayW_8bpp = 0x240108, ///< 256 levels, zero is white.
    GrayW_16bpp = 0x240110, ///< 65536 levels, zero is white.

    // X is padding, A is alpha.
    Rgb_24bpp = 0x300318, ///< 8 bits a channel.
    RgbX_32bpp = 0x320420, ///< 8 bits a channel, with padding.
    RgbA_32bpp = 0x310420, ///< 8 bits a channel, with alpha.
    Rgb_48bpp = 0x300330, ///< 16 bits a channel.
    RgbX_64bpp = 0x320440, ///< 16 bits a channel, with padding.
    RgbA_64bpp = 0x310440, ///< 16 bits a channel, with alpha.

    // Process colours, with up to four more channels.
    Cmy_24bpp = 0x400318, ///< 8 bits a channel.
    Cmy_48bpp = 0x400330, ///< 16 bits a channel.
    Cmyk_32bpp = 0x500420, ///< 8 bits a channel.
    Cmyk_64bpp = 0x500440, ///< 16 bits a channel.
    CmykX1_40bpp = 0x500528, ///< 8 bits a channel, one more than CMYK.
    CmykX2_48bpp = 0x500630, ///< 8 bits a channel, two more than CMYK.
    CmykX3_56bpp = 0x500738, ///< 8 bits a channel, three more than CMYK.
    CmykX4_64bpp = 0x500840, ///< 8 bits a channel, four more than CMYK.
    CmykX1_80bpp = 0x500550, ///< 16 bits a channel, one more than CMYK.
    CmykX2_96bpp = 0x500660, ///< 16 bits a channel, two more than CMYK.
    CmykX3_112bpp = 0x500770, ///< 16 bits a channel, three more than CMYK.
    CmykX4_128bpp = 0x500880, ///< 16 bits a channel, four more than CMYK.

    // Channels without a meaning of their own.
    MCh1_8bpp = 0x600108, ///< 1 channel of 8 bits.
    MCh2_16bpp = 0x600210, ///< 2 channels of 8 bits.
    MCh3_24bpp = 0x600318, ///< 3 channels of 8 bits.
    MCh4_32bpp = 0x600420, ///< 4 channels of 8 bits.
    MCh5_40bpp = 0x600528, ///< 5 channels of 8 bits.
    MCh6_48bpp = 0x600630, ///< 6 channels of 8 bits.
    MCh7_56bpp = 0x600738, ///< 7 channels of 8 bits.
    MCh8_64bpp = 0x600840, ///< 8 channels of 8 bits.
    MCh1_16bpp = 0x600110, ///< 1 channel of 16 bits.
    MCh2_32bpp = 0x600220, ///< 2 channels of 16 bits.
    MCh3_48bpp = 0x600330, ///< 3 channels of 16 bits.
    MCh4_64bpp = 0x600440, ///< 4 channels of 16 bits.
    MCh5_80bpp = 0x600550, ///< 5 channels of 16 bits.
    MCh6_96bpp = 0x600660, ///< 6 channels of 16 bits.
    MCh7_112bpp = 0x600770, ///< 7 channels of 16 bits.
    MCh8_128bpp = 0x600880, ///< 8 channels of 16 bits.

    // Integer channels; at 96 bits, floating point.
    Lab_24bpp = 0x700318, ///< 8 bits a channel.
    Lab_48bpp = 0x700330, ///< 16 bits a channel.
    Lab_96bpp = 0x700360, ///< 32 bits a channel, floating point.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageFormat, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageFormat)
