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
    None = 0x000, ///< As the format does by itself.

    // Compression and encryption.
    Lzw = 0x001, ///< Compressed by Lempel-Ziv-Welch.
    Rle = 0x002, ///< Compressed by run lengths.
    Zip = 0x004, ///< Compressed by Deflate.
    Jpeg = 0x008, ///< Compressed by JPEG; loses detail.
    Lz4 = 0x010, ///< Compressed by LZ4.
    Aes128 = 0x020, ///< Encrypted by AES with a key of 128 bits.

    // One file a channel.
    ForceSplit = 0x040, ///< Always one file a channel.
    DenySplit = 0x080, ///< Never one file a channel.

    // What is left out.
    ExcludeXmp = 0x100, ///< Without the XMP metadata.
    ExcludeGps = 0x200, ///< Without the place where it was taken.
    ExcludeExif = 0x400, ///< Without what the camera has noted.
    ExcludePreview = 0x800, ///< Without the preview.
};
VCORE_DECLARE_FLAGS(ImageSaveOptions)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageSaveOptions, VEnumBaseFlags)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageSaveOptions)
