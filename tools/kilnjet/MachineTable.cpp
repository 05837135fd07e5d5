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

QJsonObject summaryOf(const VPrinterDriver &machine)
{
    return {{u"id"_s, machine.dataId().toString()},
            {u"deviceId"_s, machine.deviceId().toString()},
            {u"name"_s, machine.name()},
            {u"printerClass"_s, enumText(u"PrinterClass"_s, machine.printerClass())},
            {u"facesMode"_s, enumText(u"PrinterFacesMode"_s, machine.facesMode())},
            {u"maximumFaces"_s, machine.maximumFaces()},
            {u"experimental"_s, machine.experimental()},
            {u"children"_s, machine.count(QUuid(), false)},
            {u"version"_s, machine.version().toString()}};
}

} // namespace

void writeMachines(const QList<VPrinterDriver> &machines, const DisplayTexts &texts,
                   Console &console)
{
    if (console.isJson()) {
        QJsonArray array;
        for (const VPrinterDriver &machine : machines)
            array.append(summaryOf(machine));
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
    for (const VPrinterDriver &machine : machines) {
        table.addRow(
            {machine.name(),
             texts.label(u"PrinterClass"_s, enumText(u"PrinterClass"_s, machine.printerClass())),
             enumText(u"PrinterFacesMode"_s, machine.facesMode()),
             QString::number(machine.maximumFaces()),
             QString::number(machine.count(QUuid(), false)),
             machine.dataId().toString(QUuid::WithoutBraces)});
    }
    console.write(table.toString());
}

} // namespace Norvane::Kilnjet::Tool
