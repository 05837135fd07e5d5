// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/BinaryUnit.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<BinaryUnit> kNames[] = {
    {BinaryUnit::Byte, "Byte"_L1}, {BinaryUnit::KiB, "KiB"_L1}, {BinaryUnit::MiB, "MiB"_L1},
    {BinaryUnit::GiB, "GiB"_L1},   {BinaryUnit::TiB, "TiB"_L1}, {BinaryUnit::PiB, "PiB"_L1},
    {BinaryUnit::EiB, "EiB"_L1},   {BinaryUnit::ZiB, "ZiB"_L1}, {BinaryUnit::YiB, "YiB"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(BinaryUnit, kNames)

} // namespace Norvane
