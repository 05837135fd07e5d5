// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/QtColor.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<QtColor> kNames[] = {
    {QtColor::Color0, "Color0"_L1},
    {QtColor::Color1, "Color1"_L1},
    {QtColor::Black, "Black"_L1},
    {QtColor::White, "White"_L1},
    {QtColor::DarkGray, "DarkGray"_L1},
    {QtColor::Gray, "Gray"_L1},
    {QtColor::LightGray, "LightGray"_L1},
    {QtColor::Red, "Red"_L1},
    {QtColor::Green, "Green"_L1},
    {QtColor::Blue, "Blue"_L1},
    {QtColor::Cyan, "Cyan"_L1},
    {QtColor::Magenta, "Magenta"_L1},
    {QtColor::Yellow, "Yellow"_L1},
    {QtColor::DarkRed, "DarkRed"_L1},
    {QtColor::DarkGreen, "DarkGreen"_L1},
    {QtColor::DarkBlue, "DarkBlue"_L1},
    {QtColor::DarkCyan, "DarkCyan"_L1},
    {QtColor::DarkMagenta, "DarkMagenta"_L1},
    {QtColor::DarkYellow, "DarkYellow"_L1},
    {QtColor::Transparent, "Transparent"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(QtColor, kNames)

} // namespace Norvane
