// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

/// How many characters must be changed, added, dropped or swapped with their neighbour to turn one
/// text into the other.
int editDistance(const QString &a, const QString &b);

/// The name that someone who wrote `text` most likely meant, or an empty text when none is near.
/// Case counts little: a name that differs in case only is the nearest of all.
QString nearestName(const QString &text, const QStringList &names);

/// "did you mean 'NAME'?" for nearestName(), or an empty text.
QString suggestion(const QString &text, const QStringList &names);

} // namespace Norvane::Kilnjet::Tool
