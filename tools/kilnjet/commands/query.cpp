// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "MachineFilter.h"
#include "MachineTable.h"

#include <algorithm>

namespace Norvane::Kilnjet::Tool {

ExitCode runQuery(const Invocation &invocation, Console &console)
{
    const MachineFilter filter = MachineFilter::from(invocation);
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Read, console);
    const QList<VPrinterDriver> all = catalogue.machines();
    QList<VPrinterDriver> found;
    std::copy_if(all.begin(), all.end(), std::back_inserter(found),
                 [&filter](const VPrinterDriver &machine) { return filter.matches(machine); });
    writeMachines(found, DisplayTexts::from(invocation), console);
    return found.isEmpty() ? ExitCode::Finding : ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
