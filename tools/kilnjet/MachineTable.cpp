// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "MachineTable.h"

#include "Console.h"
#include "DisplayTexts.h"
#include "EnumText.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

QJsonObject toJson(const MachineSummary &machine)
{
    return {{u"id"_s, machine.id.toString()},
            {u"deviceId"_s, machine.deviceId.toString()},
            {u"name"_s, machine.name},
            {u"printerClass"_s, enumText(u"PrinterClass"_s, machine.printerClass)},
            {u"facesMode"_s, enumText(u"PrinterFacesMode"_s, machine.facesMode)},
            {u"maximumFaces"_s, machine.maximumFaces},
            {u"experimental"_s, machine.isExperimental},
            {u"children"_s, machine.children},
            {u"version"_s, machine.version}};
}

} // namespace

void writeMachines(const QList<MachineSummary> &machines, const DisplayTexts &texts,
                   Console &console)
{
    if (console.isJson()) {
        QJsonArray array;
        for (const MachineSummary &machine : machines)
            array.append(toJson(machine));
        console.write(array);
        return;
    }
    TextTable table;
    table.addColumn(u"NAME"_s);
    table.addColumn(u"CLASS"_s);
    table.addColumn(u"FACES"_s);
    table.addColumn(u"MAX"_s, TextTable::Align::Right);
    table.addColumn(u"CHILDREN"_s, TextTable::Align::Right);
    table.addColumn(u"ID"_s);
    for (const MachineSummary &machine : machines) {
        table.addRow(
            {machine.name,
             texts.label(u"PrinterClass"_s, enumText(u"PrinterClass"_s, machine.printerClass)),
             enumText(u"PrinterFacesMode"_s, machine.facesMode),
             QString::number(machine.maximumFaces), QString::number(machine.children),
             machine.id.toString(QUuid::WithoutBraces)});
    }
    console.write(table.toString());
}

void writeNames(const QList<MachineSummary> &machines, Console &console)
{
    QStringList names;
    for (const MachineSummary &machine : machines)
        names.append(machine.name);
    names.removeDuplicates();
    if (console.isJson()) {
        console.write(QJsonArray::fromStringList(names));
        return;
    }
    for (const QString &name : names)
        console.write(printable(name) + u'\n');
}

} // namespace Norvane::Kilnjet::Tool
