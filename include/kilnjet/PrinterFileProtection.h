// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumFlags.h>

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// The protection applied to the files that are sent to a printer.
///
/// `OnlineOnly` is the bit of PrinterFileCompression: the protection applies only when printing
/// online.
enum class PrinterFileProtection : int
{
    None = 0x0, ///< Files are not protected.
    Obfuscation = 0x1, ///< Files are obfuscated.
    OnlineOnly = 0x1000, ///< The bit alone: no protection yet.
    ObfuscationOnline = 0x1001, ///< Files are obfuscated, only when printing online.
};
VCORE_DECLARE_FLAGS(PrinterFileProtection)

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::PrinterFileProtection)
