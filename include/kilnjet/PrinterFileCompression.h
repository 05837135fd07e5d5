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
    None = 0x0,
    Rle = 0x1,
    Lzw = 0x2,
    Zip = 0x4,
    Lz4 = 0x8,
    OnlineOnly = 0x1000,
    RleOnline = 0x1001,
    LzwOnline = 0x1002,
    ZipOnline = 0x1004,
    Lz4Online = 0x1008,
};
VCORE_DECLARE_FLAGS(PrinterFileCompression)

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::PrinterFileCompression)
