// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// The file meant by an operand that may name a folder: then the one in it that is called like the
/// database, so that the copies of two databases do not meet in one file.
QString fileMeantBy(const QString &operand, const QString &database);

/// True when both paths lead to one file, through whatever links.
bool isSameFile(const QString &a, const QString &b);

/// A hint when a file of nearly that name is there: "did you mean 'Printers.tdb'?"; else empty.
QString nearbyFile(const QString &path);

/// Throws a Failure when the path leads to the database itself.
void refuseDatabase(const QString &path, const QString &database);

} // namespace Norvane::Kilnjet::Tool
