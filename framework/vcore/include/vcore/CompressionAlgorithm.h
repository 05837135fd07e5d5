// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane::Compression {

/// A general compression method.
enum class CompressionAlgorithm : int
{
    Uncompressed = 0,
    Packbits = 1,
    Lzw = 2,
    Deflate = 3,
    Zip = 4,
    Lzma = 5,
    BZip2 = 6,
    Lzss = 7,
    Lz4 = 8,
    UnicodeText = 9,
    Jpeg = 10,
    Jpeg2000 = 11,
    Unknown = 32000, ///< Far from the others, so that methods can be added before it.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, CompressionAlgorithm, VEnumBase)

} // namespace Norvane::Compression

Q_DECLARE_METATYPE(Norvane::Compression::CompressionAlgorithm)
