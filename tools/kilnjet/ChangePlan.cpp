// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ChangePlan.h"

#include "Text.h"

#include <QtCore/QJsonObject>
#include <QtCore/QSet>

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ChangePlan ChangePlan::of(const QList<VPrinterDriver> &machines, VPrintersDb &database)
{
    ChangePlan plan;
    QSet<QUuid> ids;
    for (const VPrinterDriver &machine : machines) {
        ids.insert(machine.dataId());
        if (!database.contains(machine.dataId()))
            plan.added.append(machine);
        else if (database.value(machine).toJsonObject() == machine.toJsonObject())
            plan.unchanged.append(machine);
        else
            plan.replaced.append(machine);
    }
    for (const VPrinterDriver &machine : database.values()) {
        if (!ids.contains(machine.dataId()))
            plan.extra.append(machine);
    }
    return plan;
}

QList<VPrinterDriver> validAmong(const QList<VPrinterDriver> &machines)
{
    QList<VPrinterDriver> valid;
    std::copy_if(machines.begin(), machines.end(), std::back_inserter(valid),
                 [](const VPrinterDriver &machine) { return machine.isValid(); });
    return valid;
}

QJsonArray toJsonArray(const QList<VPrinterDriver> &machines)
{
    QJsonArray array;
    for (const VPrinterDriver &machine : machines) {
        array.append(
            QJsonObject{{u"id"_s, machine.dataId().toString()}, {u"name"_s, machine.name()}});
    }
    return array;
}

QString toText(const QString &word, const QList<VPrinterDriver> &machines)
{
    QString text;
    for (const VPrinterDriver &machine : machines) {
        text += u"%1 %2 %3\n"_s.arg(word.leftJustified(9), machine.dataId().toString(),
                                    printable(quoted(machine.name())));
    }
    return text;
}

} // namespace Norvane::Kilnjet::Tool
