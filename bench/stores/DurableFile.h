// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Bench {

/// Replaces the file `path` by one of these bytes, so that after a power cut there is the old or
/// the new one: written beside it, synced, renamed over it, and the folder synced.
[[nodiscard]] bool replaceFile(const QString &path, const QByteArray &bytes);

/// Renames a synced file, and syncs the folder.
[[nodiscard]] bool renameDurably(const QString &from, const QString &to);

/// The whole file; null when it cannot be read.
QByteArray readFile(const QString &path);

} // namespace Bench
