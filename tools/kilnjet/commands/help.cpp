// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Help.h"

#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Nearest.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runHelp(const Invocation &invocation, Console &console)
{
    if (invocation.operands.isEmpty()) {
        console.write(generalHelp());
        return ExitCode::Done;
    }
    const QString name = invocation.operands.first();
    const Command *command = findCommand(name);
    if (command == nullptr) {
        throw Failure{.code = ExitCode::Usage,
                      .where = name,
                      .what = u"there is no such command"_s,
                      .hint = suggestion(name, commandNames())};
    }
    console.write(commandHelp(*command));
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
