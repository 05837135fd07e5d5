// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumFlags.h>

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// The compression of the files that are sent to a printer.
///
/// Bits 0 to 3 select one method. Bit 12, `OnlineOnly`, says that it applies only when printing
/// online; each method with that bit is a value with a name of its own.
enum class PrinterFileCompression : int
{
    None = 0x0, ///< Files are not compressed.
    Rle = 0x1, ///< Run lengths.
    Lzw = 0x2, ///< Lempel-Ziv-Welch.
    Zip = 0x4, ///< Deflate, as in ZIP files.
    Lz4 = 0x8, ///< LZ4.
    OnlineOnly = 0x1000, ///< The bit alone: no method yet.
    RleOnline = 0x1001, ///< Run lengths, only when printing online.
    LzwOnline = 0x1002, ///< Lempel-Ziv-Welch, only when printing online.
    ZipOnline = 0x1004, ///< Deflate, as in ZIP files, only when printing online.
    Lz4Online = 0x1008, ///< LZ4, only when printing online.
};
VCORE_DECLARE_FLAGS(PrinterFileCompression)

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::PrinterFileCompression)
