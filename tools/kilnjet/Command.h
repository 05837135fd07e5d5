// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Failure.h"

#include <QtCore/QLatin1StringView>
#include <QtCore/QList>

namespace Norvane::Kilnjet::Tool {

class Console;
struct Invocation;

/// Which words may stand somewhere on the command line: what a shell can offer there.
struct Words
{
    enum class Kind
    {
        Free, ///< Any; there is nothing to offer.
        Files,
        Machines, ///< Names of machines of the database.
        FilesOrMachines,
        Enumeration, ///< The names of the values of the enumeration `names`.
        Enumerations, ///< The names of the enumerations themselves.
        Languages,
        Commands,
        Listed ///< The words in `names`, which stand between bars: "yes|no".
    };

    Kind kind = Kind::Free;
    QLatin1StringView names = {};
};

/// One option, of the tool or of a command.
struct Option
{
    enum class Times
    {
        Once,
        Many
    };

    QLatin1StringView name; ///< With its dashes: "--output".
    QLatin1StringView letter; ///< The short form: "-o"; may be empty.
    QLatin1StringView value; ///< What its value is called in help: "FILE"; empty without a value.
    QLatin1StringView summary;
    Words words = {}; ///< What the value may be.
    Times times = Times::Once; ///< How often it may be given with a value.
};

/// What stands on the command line behind the command's name.
struct Operand
{
    QLatin1StringView name; ///< As help shows it: "ID|NAME".
    int least = 1; ///< How many there must be.
    int most = 1; ///< How many there may be; kAnyNumber without a bound.
    QLatin1StringView summary;
    Words words = {};

    static constexpr int kAnyNumber = 0x7fffffff;
};

struct Example
{
    QLatin1StringView line; ///< Without the tool's name.
    QLatin1StringView summary;
};

/// What an exit code means for one command.
struct ExitMeaning
{
    ExitCode code;
    QLatin1StringView meaning;
};

/// One command. Everything that is said about it anywhere comes from here.
struct Command
{
    QLatin1StringView name;
    QLatin1StringView summary; ///< One line, without a full stop.
    QLatin1StringView description; ///< Paragraphs, separated by line feeds.
    QList<Operand> operands;
    QList<Option> options; ///< Its own; the tool's come on top.
    QList<ExitMeaning> exitCodes; ///< Where they mean more than usual.
    QList<Example> examples;
    ExitCode (*run)(const Invocation &invocation, Console &console);
};

/// All commands, in the order in which help lists them.
const QList<Command> &commandTable();
/// Those of them that look after a database file.
QList<Command> maintenanceCommands();
/// The options that every command has.
const QList<Option> &globalOptions();
/// What the exit codes usually mean.
const QList<ExitMeaning> &exitCodeTable();
/// The command called `name`, or null.
const Command *findCommand(const QString &name);
/// The names of all commands.
QStringList commandNames();

} // namespace Norvane::Kilnjet::Tool
