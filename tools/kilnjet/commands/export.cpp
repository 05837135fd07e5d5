// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "OutputFile.h"
#include "Paths.h"
#include "Selection.h"
#include "Text.h"

#include <QtCore/QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runExport(const Invocation &invocation, Console &console)
{
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Read, console);
    QList<VPrinterDriver> machines = catalogue.database().values();
    if (!invocation.operands.isEmpty())
        machines = selectMachines(machines, invocation.operands);
    std::sort(machines.begin(), machines.end(),
              [](const auto &a, const auto &b) { return a.dataId() < b.dataId(); });
    QJsonArray array;
    for (const VPrinterDriver &machine : machines)
        array.append(machine.toJsonObject());

    const QString path = invocation.value("--output"_L1, u"-"_s);
    if (path == "-"_L1) {
        console.write(array);
        return ExitCode::Done;
    }
    refuseDatabase(path, catalogue.path());
    writeFile(path, QJsonDocument(array).toJson());
    if (console.isJson()) {
        console.write(QJsonObject{{u"file"_s, path}, {u"records"_s, array.size()}});
    } else {
        console.write(u"%1: %2\n"_s.arg(printable(path), counted(array.size(), u"machine"_s)));
    }
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
