// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// The colour space of an image.
enum class ColorSpace : int
{
    Any = 0, ///< Whatever it is.
    Reserved1 = 1, ///< Not in use.
    Reserved2 = 2, ///< Not in use.
    Gray = 3, ///< Gray alone.
    Rgb = 4, ///< Red, green and blue.
    Cmy = 5, ///< Cyan, magenta and yellow.
    Cmyk = 6, ///< Cyan, magenta, yellow and black.
    YCbCr = 7, ///< Luma, and how blue and how red.
    Yuv = 8, ///< Lu'v' of the CIE.
    Xyz = 9, ///< XYZ of the CIE.
    Lab = 10, ///< Lab of the CIE.
    Yuvk = 11, ///< Lu'v' of the CIE, and black.
    Hsv = 12, ///< Hue, saturation and value.
    Hsl = 13, ///< Hue, saturation and lightness.
    Yxy = 14, ///< Yxy of the CIE.
    Multichannel_1 = 15, ///< One channel of any meaning.
    Multichannel_2 = 16, ///< 2 channels of any meaning.
    Multichannel_3 = 17, ///< 3 channels of any meaning.
    Multichannel_4 = 18, ///< 4 channels of any meaning.
    Multichannel_5 = 19, ///< 5 channels of any meaning.
    Multichannel_6 = 20, ///< 6 channels of any meaning.
    Multichannel_7 = 21, ///< 7 channels of any meaning.
    Multichannel_8 = 22, ///< 8 channels of any meaning.
    Multichannel_9 = 23, ///< 9 channels of any meaning.
    Multichannel_10 = 24, ///< 10 channels of any meaning.
    Multichannel_11 = 25, ///< 11 channels of any meaning.
    Multichannel_12 = 26, ///< 12 channels of any meaning.
    Multichannel_13 = 27, ///< 13 channels of any meaning.
    Multichannel_14 = 28, ///< 14 channels of any meaning.
    Multichannel_15 = 29, ///< 15 channels of any meaning.
    Multichannel_16 = 30, ///< 16 channels of any meaning.
    Multichannel_Last =
        Multichannel_16, ///< The last of the multichannel spaces; read, never written.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ColorSpace, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ColorSpace)
