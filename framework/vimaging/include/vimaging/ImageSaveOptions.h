// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// How an image file is to be written.
enum class ImageSaveOptions : int
{
    None = 0x000,

    // Compression and encryption.
    Lzw = 0x001,
    Rle = 0x002,
    Zip = 0x004,
    Jpeg = 0x008,
    Lz4 = 0x010,
    Aes128 = 0x020,

    // One file a channel.
    ForceSplit = 0x040,
    DenySplit = 0x080,

    // What is left out.
    ExcludeXmp = 0x100,
    ExcludeGps = 0x200,
    ExcludeExif = 0x400,
    ExcludePreview = 0x800,
};
VCORE_DECLARE_FLAGS(ImageSaveOptions)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageSaveOptions, VEnumBaseFlags)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageSaveOptions)
