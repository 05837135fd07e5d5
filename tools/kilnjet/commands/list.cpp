// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "MachineTable.h"
#include "Store.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runList(const Invocation &invocation, Console &console)
{
    const QList<MachineSummary> machines = readSummaries(StoreSettings::from(invocation), console);
    if (invocation.has("--names"_L1))
        writeNames(machines, console);
    else
        writeMachines(machines, DisplayTexts::from(invocation), console);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
