// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "MachineTable.h"

namespace Norvane::Kilnjet::Tool {

ExitCode runList(const Invocation &invocation, Console &console)
{
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Read, console);
    writeMachines(catalogue.machines(), DisplayTexts::from(invocation), console);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
