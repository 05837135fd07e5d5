// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ProfileHeaderAttributes.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ProfileHeaderAttributes> kNames[] = {
    {ProfileHeaderAttributes::None, "None"_L1},
    {ProfileHeaderAttributes::Transparency, "Transparency"_L1},
    {ProfileHeaderAttributes::Matte, "Matte"_L1},
    {ProfileHeaderAttributes::Negative, "Negative"_L1},
    {ProfileHeaderAttributes::BlackAndWhite, "BlackAndWhite"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ProfileHeaderAttributes, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
