// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Run.h"

#include "Console.h"
#include "DisplayTexts.h"
#include "Help.h"
#include "Invocation.h"

#include <QtCore/QCoreApplication>

#include <new>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

ExitCode showHelp(const Command *command, Console &console)
{
    console.write(command == nullptr ? generalHelp() : commandHelp(*command));
    return ExitCode::Done;
}

ExitCode showVersion(Console &console)
{
    const QString name = QCoreApplication::applicationName();
    const QString version = QCoreApplication::applicationVersion();
    if (console.isJson())
        console.write(QJsonObject{{u"name"_s, name}, {u"version"_s, version}});
    else
        console.write(name + u' ' + version + u'\n');
    return ExitCode::Done;
}

ExitCode runCommand(const QStringList &arguments, Console &console)
{
    try {
        const Invocation invocation = parseArguments(arguments);
        if (invocation.has("--quiet"_L1))
            console.beQuiet();
        if (invocation.has("--help"_L1))
            return showHelp(invocation.command, console);
        if (invocation.has("--version"_L1))
            return showVersion(console);
        refuseUnknownLanguage(invocation);
        return invocation.command->run(invocation, console);
    } catch (const Failure &failure) {
        console.fail(failure);
        return failure.code;
    } catch (const std::bad_alloc &) {
        console.fail({.code = ExitCode::Io, .what = u"there is not enough memory"_s});
        return ExitCode::Io;
    }
}

} // namespace

int run(const QStringList &arguments)
{
    Console console(asksForJson(arguments) ? Console::Format::Json : Console::Format::Text);
    const ExitCode code = runCommand(arguments, console);
    // Without its data a command has not done what it was asked for.
    const bool written = console.finish();
    return int(code == ExitCode::Done && !written ? ExitCode::Io : code);
}

} // namespace Norvane::Kilnjet::Tool
