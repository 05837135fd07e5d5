// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Selection.h"
#include "Text.h"

#include <QtCore/QDateTime>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

void warnOfNamesake(Catalogue &catalogue, const VPrinterDriver &machine, Console &console)
{
    for (const VPrinterDriver &other : catalogue.machines()) {
        if (other.dataId() == machine.dataId() || other.name() != machine.name())
            continue;
        const QString free = catalogue.database().createUniqueName(machine, QString());
        console.warn(catalogue.path(),
                     u"another machine has the name %1: %2"_s.arg(quoted(machine.name()),
                                                                  other.dataId().toString()),
                     free.isEmpty() ? QString() : u"%1 is free"_s.arg(quoted(free)));
        return;
    }
}

} // namespace

ExitCode runRename(const Invocation &invocation, Console &console)
{
    const QString name = invocation.operands.last();
    if (name.trimmed().isEmpty()) {
        throw Failure{.code = ExitCode::Usage,
                      .where = u"NEW-NAME"_s,
                      .what = u"a machine without a name could not be told from others"_s};
    }
    Catalogue catalogue(StoreSettings::from(invocation), Catalogue::Mode::Edit, console);
    VPrinterDriver machine = selectMachine(catalogue.machines(), invocation.operands.first());
    if (!machine.isValid()) {
        // Storing it would delete it: the database keeps valid machines only.
        throw Failure{.code = ExitCode::Finding,
                      .where = machine.dataId().toString(),
                      .what = u"the machine cannot be renamed"_s,
                      .why = u"its record is not valid"_s,
                      .hint = u"'kilnjet validate %1' tells why"_s.arg(catalogue.path())};
    }
    const QString before = machine.name();
    if (name != before) {
        machine.setName(name);
        machine.setDateTime(QDateTime::currentDateTimeUtc());
        warnOfNamesake(catalogue, machine, console);
        catalogue.database().insert(machine);
    }
    catalogue.commit();

    const QString id = machine.dataId().toString();
    if (console.isJson()) {
        console.write(
            QJsonObject{{u"id"_s, id}, {u"before"_s, before}, {u"name"_s, machine.name()}});
    } else {
        console.write(u"renamed %1 %2 to %3\n"_s.arg(id, printable(quoted(before)),
                                                     printable(quoted(machine.name()))));
    }
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
