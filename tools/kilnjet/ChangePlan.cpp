// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "ChangePlan.h"

#include "Text.h"

#include <vcore/VParallel.h>

#include <QtCore/QJsonObject>
#include <QtCore/QSet>

#include <algorithm>
#include <iterator>
#include <vector>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ChangePlan ChangePlan::of(const QList<VPrinterDriver> &machines, VPrintersDb &database)
{
    // Comparing means to write both records as JSON, which all cores can share.
    constexpr std::size_t kWorthAThread = 16;
    enum class Change
    {
        Added,
        Replaced,
        Unchanged
    };
    std::vector<Change> changes(std::size_t(machines.size()));
    parallelFor(changes.size(), kWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            const VPrinterDriver &machine = machines.at(qsizetype(i));
            if (!database.contains(machine.dataId()))
                changes[i] = Change::Added;
            else
                changes[i] = database.value(machine).toJson() == machine.toJson()
                    ? Change::Unchanged
                    : Change::Replaced;
        }
    });
    ChangePlan plan;
    QSet<QUuid> ids;
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const VPrinterDriver &machine = machines.at(qsizetype(i));
        ids.insert(machine.dataId());
        QList<VPrinterDriver> &list = changes[i] == Change::Added ? plan.added
            : changes[i] == Change::Replaced                      ? plan.replaced
                                                                  : plan.unchanged;
        list.append(machine);
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
