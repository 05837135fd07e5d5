// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDBStatus.h>

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// What is wrong with a stretch of a database file, in words.
QString damageText(Database::VDBDamage::Reason reason);
/// Where the stretch is, and "reason".
QJsonObject damageObject(const Database::VDBDamage &damage);

/// "Printers.tdb:12: record {...}: text" and a line end, safe for a terminal. `id` may be empty.
QString placeText(const QString &file, qint64 line, const QString &id, const QString &text);
/// "offset 120, 1 byte: ", and what is wrong there.
QString extentText(const Database::VDBDamage &damage);

} // namespace Norvane::Kilnjet::Tool
