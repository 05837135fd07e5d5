// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// What the process answers to its caller. The numbers are part of the tool's interface.
enum class ExitCode
{
    Done = 0,
    Finding = 1, ///< Something was found wrong, or what was asked for was not found.
    Usage = 2, ///< The command line cannot be understood.
    Io = 3, ///< A file could not be read or written.
    Damaged = 4, ///< The database is damaged, no database, or of a newer format.
    WrongKey = 5, ///< The key is wrong or missing.
    Locked = 6, ///< Another process holds the database.
};

/// Why a command ended early. Commands throw it; run() turns it into a message and an exit code.
struct Failure
{
    ExitCode code = ExitCode::Finding;
    QString where = {}; ///< The file, option or operand concerned; may be empty.
    QString what = {}; ///< What could not be done.
    QString why = {}; ///< The cause; may be empty.
    QString hint = {}; ///< What to do about it; may be empty.
    QJsonObject details = {}; ///< Further members of the JSON form, e.g. "findings"; may be empty.
};

} // namespace Norvane::Kilnjet::Tool
