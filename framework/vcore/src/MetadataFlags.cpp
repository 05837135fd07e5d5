// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/MetadataFlags.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<MetadataFlags> kNames[] = {
    {MetadataFlags::None, "None"_L1},
    {MetadataFlags::KillOnCopy, "KillOnCopy"_L1},
    {MetadataFlags::KillOnSave, "KillOnSave"_L1},
    {MetadataFlags::KillOnSpaceTransform, "KillOnSpaceTransform"_L1},
    {MetadataFlags::KillOnChanges, "KillOnChanges"_L1},
    {MetadataFlags::KillOnPhysicalChange, "KillOnPhysicalChange"_L1},
    {MetadataFlags::Volatile, "Volatile"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(MetadataFlags, kNames)

} // namespace Norvane
