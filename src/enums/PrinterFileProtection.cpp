// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/PrinterFileProtection_T.h"

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {
constexpr VEnumEntry<PrinterFileProtection> kNames[] = {
    {PrinterFileProtection::None, "None"_L1},
    {PrinterFileProtection::Obfuscation, "Obfuscation"_L1},
    {PrinterFileProtection::OnlineOnly, "OnlineOnly"_L1},
    {PrinterFileProtection::ObfuscationOnline, "ObfuscationOnline"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(PrinterFileProtection, kNames)

} // namespace Norvane::Kilnjet
