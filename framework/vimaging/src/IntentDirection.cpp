// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/IntentDirection.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<IntentDirection> kNames[] = {
    {IntentDirection::Input, "Input"_L1}, {IntentDirection::Output, "Output"_L1},
    {IntentDirection::Proof, "Proof"_L1}, {IntentDirection::InputOutput, "InputOutput"_L1},
    {IntentDirection::All, "All"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(IntentDirection, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
