// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane::Compression {

/// A general compression method.
enum class CompressionAlgorithm : int
{
    Uncompressed = 0, ///< As it is.
    Packbits = 1, ///< Run lengths of bytes, as in TIFF.
    Lzw = 2, ///< Lempel-Ziv-Welch.
    Deflate = 3, ///< Deflate (RFC 1951).
    Zip = 4, ///< What ZIP archives use.
    Lzma = 5, ///< Lempel-Ziv-Markov, as in 7z archives.
    BZip2 = 6, ///< Burrows-Wheeler, as of bzip2.
    Lzss = 7, ///< Lempel-Ziv-Storer-Szymanski.
    Lz4 = 8, ///< LZ4, made for speed.
    UnicodeText = 9, ///< For Unicode text.
    Jpeg = 10, ///< JPEG, for photographs; loses detail.
    Jpeg2000 = 11, ///< JPEG 2000, by wavelets.
    Unknown = 32000, ///< Far from the others, so that methods can be added before it.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, CompressionAlgorithm, VEnumBase)

} // namespace Norvane::Compression

Q_DECLARE_METATYPE(Norvane::Compression::CompressionAlgorithm)
