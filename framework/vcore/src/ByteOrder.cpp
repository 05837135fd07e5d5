// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/ByteOrder.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<ByteOrder> kNames[] = {
    {ByteOrder::BigEndian, "BigEndian"_L1},
    {ByteOrder::LittleEndian, "LittleEndian"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ByteOrder, kNames)

} // namespace Norvane
