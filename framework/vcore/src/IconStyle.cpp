// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/IconStyle.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<IconStyle> kNames[] = {
    {IconStyle::ApplicationDefault, "ApplicationDefault"_L1},
    {IconStyle::Square, "Square"_L1},
    {IconStyle::Round, "Round"_L1},
    {IconStyle::RoundedSquare, "RoundedSquare"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(IconStyle, kNames)

} // namespace Norvane
