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
    macOS = 1, ///< Apple's, for computers.
    OSX = macOS, ///< An earlier name; read, never written.
    iOS = 2, ///< Apple's, for telephones.
    Windows = 3, ///< Microsoft's.
    Linux = 4, ///< Any distribution of it.
    BSD_ = 5, ///< FreeBSD and its kin.
    Unix = 6, ///< Any other Unix.
    Android = 7, ///< Google's, for telephones.
    Symbian = 8, ///< For telephones, once.
    OS_400 = 9, ///< IBM's, for its AS/400.
    OS_2 = 10, ///< IBM's OS/2, for computers.
    BeOS = 11, ///< Be's, for computers.
    watchOS = 12, ///< Apple's, for watches.
    tvOS = 13, ///< Apple's, for television sets.
    iPadOS = 14, ///< Apple's, for tablets.
    ChromeOS = 15, ///< Google's, for computers.
    WearOS = 16, ///< Google's, for watches.
    Unknown = 17, ///< None of these, or not known.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, OperatingSystemType, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::OperatingSystemType)
