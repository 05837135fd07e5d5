// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Command.h"

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

/// A command line, understood.
struct Invocation
{
    const Command *command = nullptr; ///< Null when only help or the version is asked for.
    /// The options given, by their long names, with their values in the order given.
    QHash<QString, QStringList> options;
    QStringList operands;

    bool has(QLatin1StringView option) const { return options.contains(option); }
    QString value(QLatin1StringView option, const QString &fallback = QString()) const
    {
        return options.value(option, {fallback}).last();
    }
    QStringList values(QLatin1StringView option) const { return options.value(option); }
};

/// Reads the arguments (without the program's name) by the command table; throws a Failure with
/// ExitCode::Usage that names the mistake and what was probably meant.
///
/// Options may stand anywhere before "--", a command's own behind its name; "--name=value" and
/// "--name value" mean the same. A single "-" is an operand.
Invocation parseArguments(const QStringList &arguments);

/// Throws a Failure when the standard input is named twice among the operands.
void refuseRepeatedInput(const Invocation &invocation);

/// True when the arguments ask for JSON, even if they are wrong otherwise.
bool asksForJson(const QStringList &arguments);

} // namespace Norvane::Kilnjet::Tool
