// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "MachineFilter.h"
#include "MachineTable.h"

namespace Norvane::Kilnjet::Tool {

ExitCode runQuery(const Invocation &invocation, Console &console)
{
    const MachineFilter filter = MachineFilter::from(invocation);
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Read, console);
    const QList<VPrinterDriver> all = catalogue.machines();
    QList<MachineSummary> found;
    for (const VPrinterDriver &machine : all) {
        if (filter.matches(machine))
            found.append(MachineSummary::of(machine));
    }
    writeMachines(found, DisplayTexts::from(invocation), console);
    return found.isEmpty() ? ExitCode::Finding : ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
