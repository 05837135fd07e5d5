// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/ProfileInfoType.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<ProfileInfoType> kNames[] = {
    {ProfileInfoType::Description, "Description"_L1},
    {ProfileInfoType::Manufacturer, "Manufacturer"_L1},
    {ProfileInfoType::Model, "Model"_L1},
    {ProfileInfoType::Copyright, "Copyright"_L1},
    {ProfileInfoType::DescriptionML, "DescriptionML"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(ProfileInfoType, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
