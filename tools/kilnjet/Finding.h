// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

enum class Severity
{
    Error,
    Warning
};

/// One thing that a check found wrong, and where.
struct Finding
{
    Severity severity = Severity::Error;
    QString file = {}; ///< As the user named it.
    qint64 line = 0; ///< The line of the file, from 1; 0 when unknown.
    QString record =
        {}; ///< Which record of the file: "record 3", or its id; empty for the file itself.
    QString pointer = {}; ///< The JSON pointer inside the record; empty for the record itself.
    QString reason = {};
    QString hint = {}; ///< Such as "did you mean 'Inkjet'?"; may be empty.

    /// "machines.json:41: record 3: /config/printerClass: 'inkjet' is ...", safe for a terminal.
    QString toString() const;
    QJsonObject toJsonObject() const;
};

using Findings = QList<Finding>;

qsizetype countErrors(const Findings &findings);
inline bool hasErrors(const Findings &findings)
{
    return countErrors(findings) > 0;
}
QJsonArray toJsonArray(const Findings &findings);

} // namespace Norvane::Kilnjet::Tool
