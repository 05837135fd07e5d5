// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A family of operating systems.
enum class OperatingSystemType : int
{
    Mac_OS = 0, ///< Before macOS.
    macOS = 1,
    OSX = macOS, ///< An earlier name; read, never written.
    iOS = 2,
    Windows = 3,
    Linux = 4,
    BSD_ = 5,
    Unix = 6,
    Android = 7,
    Symbian = 8,
    OS_400 = 9,
    OS_2 = 10,
    BeOS = 11,
    watchOS = 12,
    tvOS = 13,
    iPadOS = 14,
    ChromeOS = 15,
    WearOS = 16,
    Unknown = 17,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, OperatingSystemType, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::OperatingSystemType)
