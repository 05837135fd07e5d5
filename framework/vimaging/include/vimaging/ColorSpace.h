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
    Any = 0,
    Reserved1 = 1,
    Reserved2 = 2,
    Gray = 3,
    Rgb = 4,
    Cmy = 5,
    Cmyk = 6,
    YCbCr = 7,
    Yuv = 8,
    Xyz = 9,
    Lab = 10,
    Yuvk = 11,
    Hsv = 12,
    Hsl = 13,
    Yxy = 14,
    Multichannel_1 = 15,
    Multichannel_2 = 16,
    Multichannel_3 = 17,
    Multichannel_4 = 18,
    Multichannel_5 = 19,
    Multichannel_6 = 20,
    Multichannel_7 = 21,
    Multichannel_8 = 22,
    Multichannel_9 = 23,
    Multichannel_10 = 24,
    Multichannel_11 = 25,
    Multichannel_12 = 26,
    Multichannel_13 = 27,
    Multichannel_14 = 28,
    Multichannel_15 = 29,
    Multichannel_16 = 30,
    Multichannel_Last =
        Multichannel_16, ///< The last of the multichannel spaces; read, never written.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ColorSpace, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ColorSpace)
