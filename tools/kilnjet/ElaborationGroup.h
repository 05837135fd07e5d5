// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QString>

#include <span>

namespace Norvane::Kilnjet::Tool {

/// The elaboration types of one kind of output, which share the beginning of their names.
struct ElaborationGroup
{
    QLatin1StringView prefix;
    QLatin1StringView title;

    bool contains(const QString &type) const { return type.startsWith(prefix); }
};

/// The groups, from few output levels to many. Every type is in one of them.
std::span<const ElaborationGroup> elaborationGroups();

} // namespace Norvane::Kilnjet::Tool
