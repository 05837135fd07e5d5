// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Export.h>
#include <vcore/VVersion.h>

#include <QtCore/QString>

namespace Norvane::Kilnjet {

/// Who this library is: what a host shows in its list of modules.
///
/// The file of the library carries the same values as a version resource where the system has such.
/// Threads: any. Failures: none.
class VKILNJET_EXPORT VKilnjetInfo
{
public:
    /// An object without content: all that it has to say is static.
    VKilnjetInfo() = default;
    /// There is nothing to copy.
    VKilnjetInfo(const VKilnjetInfo &) = default;
    /// There is nothing to move.
    VKilnjetInfo(VKilnjetInfo &&) = default;
    ~VKilnjetInfo() = default;
    /// Does nothing.
    VKilnjetInfo &operator=(const VKilnjetInfo &other);
    /// Does nothing.
    VKilnjetInfo &operator=(VKilnjetInfo &&other) noexcept;

    /// The number of the build; it counts builds of one version.
    static quint32 build();
    /// The version of the library's interface.
    static VVersion version();
    /// Who makes it.
    static QString company();
    /// The copyright notice.
    static QString copyright();
    /// What it is, in a few words.
    static QString description();
    /// What a user knows it as.
    static QString title();
    /// What a program knows it as: the same as title().
    static QString moduleName();
};

} // namespace Norvane::Kilnjet
