// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/OperatingSystemType.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane {

namespace {
constexpr VEnumEntry<OperatingSystemType> kNames[] = {
    {OperatingSystemType::Mac_OS, "Mac_OS"_L1},     {OperatingSystemType::macOS, "macOS"_L1},
    {OperatingSystemType::OSX, "OSX"_L1},           {OperatingSystemType::iOS, "iOS"_L1},
    {OperatingSystemType::Windows, "Windows"_L1},   {OperatingSystemType::Linux, "Linux"_L1},
    {OperatingSystemType::BSD_, "BSD_"_L1},         {OperatingSystemType::Unix, "Unix"_L1},
    {OperatingSystemType::Android, "Android"_L1},   {OperatingSystemType::Symbian, "Symbian"_L1},
    {OperatingSystemType::OS_400, "OS_400"_L1},     {OperatingSystemType::OS_2, "OS_2"_L1},
    {OperatingSystemType::BeOS, "BeOS"_L1},         {OperatingSystemType::watchOS, "watchOS"_L1},
    {OperatingSystemType::tvOS, "tvOS"_L1},         {OperatingSystemType::iPadOS, "iPadOS"_L1},
    {OperatingSystemType::ChromeOS, "ChromeOS"_L1}, {OperatingSystemType::WearOS, "WearOS"_L1},
    {OperatingSystemType::Unknown, "Unknown"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(OperatingSystemType, kNames)

} // namespace Norvane
