// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/PrinterFacesMode_T.h"

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {
constexpr VEnumEntry<PrinterFacesMode> kNames[] = {
    {PrinterFacesMode::None, "None"_L1},
    {PrinterFacesMode::Basic, "Basic"_L1},
    {PrinterFacesMode::Advanced, "Advanced"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(PrinterFacesMode, kNames)

} // namespace Norvane::Kilnjet
