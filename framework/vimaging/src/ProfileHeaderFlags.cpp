// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ProfileHeaderFlags.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ProfileHeaderFlags> kNames[] = {
    {ProfileHeaderFlags::None, "None"_L1},
    {ProfileHeaderFlags::EmbeddedProfile, "EmbeddedProfile"_L1},
    {ProfileHeaderFlags::UseWithEmbeddedDataOnly, "UseWithEmbeddedDataOnly"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ProfileHeaderFlags, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
