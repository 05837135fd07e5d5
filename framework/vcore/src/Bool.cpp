// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/Bool.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<Bool> kNames[] = {
    {Bool::False, "False"_L1},
    {Bool::True, "True"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(Bool, kNames)

} // namespace Norvane
