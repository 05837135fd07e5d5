// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Selection.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runRemove(const Invocation &invocation, Console &console)
{
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Edit, console);
    const QList<VPrinterDriver> machines =
        selectMachines(catalogue.machines(), invocation.operands);
    catalogue.database().removes(machines);
    catalogue.commit();

    QJsonArray removed;
    QString text;
    for (const VPrinterDriver &machine : machines) {
        const QString id = machine.dataId().toString();
        removed.append(QJsonObject{{u"id"_s, id}, {u"name"_s, machine.name()}});
        text += u"removed %1 %2\n"_s.arg(id, printable(quoted(machine.name())));
    }
    if (console.isJson())
        console.write(QJsonObject{{u"removed"_s, removed}});
    else
        console.write(text);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
