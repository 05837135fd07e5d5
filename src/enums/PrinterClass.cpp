// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/PrinterClass_T.h"

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {
constexpr VEnumEntry<PrinterClass> kNames[] = {
    {PrinterClass::Inkjet, "Inkjet"_L1},     {PrinterClass::Plotter, "Plotter"_L1},
    {PrinterClass::Engraver, "Engraver"_L1}, {PrinterClass::Dryjet, "Dryjet"_L1},
    {PrinterClass::Develop, "Develop"_L1},   {PrinterClass::Unknown, "Unknown"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(PrinterClass, kNames)

} // namespace Norvane::Kilnjet
