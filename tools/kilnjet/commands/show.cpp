// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "MachineSheet.h"
#include "Selection.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runShow(const Invocation &invocation, Console &console)
{
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Read, console);
    const VPrinterDriver machine = selectMachine(catalogue.machines(), invocation.operands.first());
    if (console.isJson()) {
        console.write(QJsonObject{{u"id"_s, machine.dataId().toString()},
                                  {u"driver"_s, machine.toJsonObject()}});
    } else {
        console.write(
            machineSheet(machine, DisplayTexts::from(invocation), Paint(console.colour())));
    }
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
