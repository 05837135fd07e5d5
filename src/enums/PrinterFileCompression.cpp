// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/PrinterFileCompression_T.h"

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {
constexpr VEnumEntry<PrinterFileCompression> kNames[] = {
    {PrinterFileCompression::None, "None"_L1},
    {PrinterFileCompression::Rle, "Rle"_L1},
    {PrinterFileCompression::Lzw, "Lzw"_L1},
    {PrinterFileCompression::Zip, "Zip"_L1},
    {PrinterFileCompression::Lz4, "Lz4"_L1},
    {PrinterFileCompression::OnlineOnly, "OnlineOnly"_L1},
    {PrinterFileCompression::RleOnline, "RleOnline"_L1},
    {PrinterFileCompression::LzwOnline, "LzwOnline"_L1},
    {PrinterFileCompression::ZipOnline, "ZipOnline"_L1},
    {PrinterFileCompression::Lz4Online, "Lz4Online"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(PrinterFileCompression, kNames)

} // namespace Norvane::Kilnjet
