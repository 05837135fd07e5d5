// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/SIPrefix.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<SIPrefix> kNames[] = {
    {SIPrefix::Yocto, "Yocto"_L1}, {SIPrefix::Zepto, "Zepto"_L1}, {SIPrefix::Atto, "Atto"_L1},
    {SIPrefix::Femto, "Femto"_L1}, {SIPrefix::Pico, "Pico"_L1},   {SIPrefix::Nano, "Nano"_L1},
    {SIPrefix::Micro, "Micro"_L1}, {SIPrefix::Milli, "Milli"_L1}, {SIPrefix::Centi, "Centi"_L1},
    {SIPrefix::Deci, "Deci"_L1},   {SIPrefix::Base, "Base"_L1},   {SIPrefix::Deca, "Deca"_L1},
    {SIPrefix::Hecto, "Hecto"_L1}, {SIPrefix::Kilo, "Kilo"_L1},   {SIPrefix::Mega, "Mega"_L1},
    {SIPrefix::Giga, "Giga"_L1},   {SIPrefix::Tera, "Tera"_L1},   {SIPrefix::Peta, "Peta"_L1},
    {SIPrefix::Exa, "Exa"_L1},     {SIPrefix::Zetta, "Zetta"_L1}, {SIPrefix::Yotta, "Yotta"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(SIPrefix, kNames)

} // namespace Norvane
