// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "MachineSource.h"
#include "Paint.h"
#include "Paths.h"
#include "RecordDiff.h"
#include "Selection.h"
#include "Text.h"

#include <QtCore/QHash>
#include <QtCore/QSet>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// A machine that both catalogues have, and how it differs.
struct ChangedMachine
{
    VPrinterDriver machine; ///< As A has it.
    Differences differences;
};

/// What differs between two catalogues.
struct CatalogueDiff
{
    QList<VPrinterDriver> onlyInA;
    QList<VPrinterDriver> onlyInB;
    QList<ChangedMachine> changed;
    qsizetype equal = 0;

    bool isEmpty() const { return onlyInA.isEmpty() && onlyInB.isEmpty() && changed.isEmpty(); }
};

CatalogueDiff compareCatalogues(const QList<VPrinterDriver> &a, const QList<VPrinterDriver> &b)
{
    CatalogueDiff diff;
    QHash<QUuid, VPrinterDriver> others;
    for (const VPrinterDriver &machine : b)
        others.insert(machine.dataId(), machine);
    QSet<QUuid> inBoth;
    for (const VPrinterDriver &machine : a) {
        const auto other = others.constFind(machine.dataId());
        if (other == others.constEnd()) {
            diff.onlyInA.append(machine);
            continue;
        }
        inBoth.insert(other.key());
        const auto differences = compareRecords(machine.toJsonObject(), other->toJsonObject());
        if (differences.isEmpty())
            ++diff.equal;
        else
            diff.changed.append({machine, differences});
    }
    for (const VPrinterDriver &machine : b) {
        if (!inBoth.contains(machine.dataId()))
            diff.onlyInB.append(machine);
    }
    return diff;
}

QJsonObject summaryOf(const VPrinterDriver &machine)
{
    return {{u"id"_s, machine.dataId().toString()}, {u"name"_s, machine.name()}};
}

QJsonArray toJsonArray(const QList<VPrinterDriver> &machines)
{
    QJsonArray array;
    for (const VPrinterDriver &machine : machines)
        array.append(summaryOf(machine));
    return array;
}

/// "'Kiln line 4' {...}", safe for a terminal.
QString titleOf(const VPrinterDriver &machine)
{
    return printable(u"%1 %2"_s.arg(quoted(machine.name()), machine.dataId().toString()));
}

QString linesOf(const Differences &differences, const Paint &paint)
{
    QString text;
    for (const Difference &difference : differences)
        text += u"  - "_s + difference.toString(paint) + u'\n';
    return text;
}

void report(const CatalogueDiff &diff, const QStringList &names, Console &console)
{
    if (console.isJson()) {
        QJsonArray changed;
        for (const ChangedMachine &change : diff.changed) {
            QJsonObject object = summaryOf(change.machine);
            object.insert("differences"_L1, toJsonArray(change.differences));
            changed.append(object);
        }
        console.write(QJsonObject{{u"a"_s, names.first()},
                                  {u"b"_s, names.last()},
                                  {u"onlyInA"_s, toJsonArray(diff.onlyInA)},
                                  {u"onlyInB"_s, toJsonArray(diff.onlyInB)},
                                  {u"different"_s, changed},
                                  {u"equal"_s, diff.equal}});
        return;
    }
    const Paint paint(console.colour());
    const QString a = printable(names.first());
    const QString b = printable(names.last());
    for (const VPrinterDriver &machine : diff.onlyInA)
        console.write(paint.before(u"only in "_s + a + u": "_s + titleOf(machine)) + u'\n');
    for (const VPrinterDriver &machine : diff.onlyInB)
        console.write(paint.after(u"only in "_s + b + u": "_s + titleOf(machine)) + u'\n');
    for (const ChangedMachine &change : diff.changed) {
        console.write(paint.heading(titleOf(change.machine)) + u'\n'
                      + linesOf(change.differences, paint));
    }
    console.write(u"%1 only in A, %2 only in B, %3 different, %4 equal\n"_s.arg(
        QString::number(diff.onlyInA.size()), QString::number(diff.onlyInB.size()),
        QString::number(diff.changed.size()), QString::number(diff.equal)));
}

ExitCode diffSources(const QStringList &names, const StoreSettings &settings, Console &console)
{
    const QList<VPrinterDriver> a = readMachines(names.first(), settings, console);
    const QList<VPrinterDriver> b = readMachines(names.last(), settings, console);
    const CatalogueDiff diff = compareCatalogues(a, b);
    report(diff, names, console);
    return diff.isEmpty() ? ExitCode::Done : ExitCode::Finding;
}

ExitCode diffMachines(const QStringList &names, const StoreSettings &settings, Console &console)
{
    Catalogue catalogue(settings, Catalogue::Mode::Read, console);
    const QList<VPrinterDriver> machines = catalogue.machines();
    const VPrinterDriver a = selectMachine(machines, names.first());
    const VPrinterDriver b = selectMachine(machines, names.last());
    const Differences differences = compareRecords(a.toJsonObject(), b.toJsonObject());
    if (console.isJson()) {
        console.write(QJsonObject{{u"a"_s, summaryOf(a)},
                                  {u"b"_s, summaryOf(b)},
                                  {u"differences"_s, toJsonArray(differences)}});
    } else {
        const Paint paint(console.colour());
        console.write(paint.heading(titleOf(a) + u" -> "_s + titleOf(b)) + u'\n'
                      + linesOf(differences, paint) + counted(differences.size(), u"difference"_s)
                      + u'\n');
    }
    return differences.isEmpty() ? ExitCode::Done : ExitCode::Finding;
}

/// Throws a Failure when the operands are neither two files nor two machines.
void refuseMixture(const QStringList &names, const Invocation &invocation)
{
    const bool isFirst = isSource(names.first());
    const bool isMixed = isFirst != isSource(names.last());
    if (!isMixed && (isFirst || invocation.has("--db"_L1)))
        return;
    const QString missing = isFirst ? names.last() : names.first();
    const QString near = isMixed ? nearbyFile(missing) : QString();
    throw Failure{.code = ExitCode::Io,
                  .where = missing,
                  .what = u"cannot read the file"_s,
                  .why = u"there is no such file"_s,
                  .hint = near.isEmpty()
                      ? u"name the database with --db to compare two of its machines"_s
                      : near};
}

} // namespace

ExitCode runDiff(const Invocation &invocation, Console &console)
{
    const QStringList &names = invocation.operands;
    const StoreSettings settings = StoreSettings::from(invocation);
    refuseRepeatedInput(invocation);
    refuseMixture(names, invocation);
    return isSource(names.first()) ? diffSources(names, settings, console)
                                   : diffMachines(names, settings, console);
}

} // namespace Norvane::Kilnjet::Tool
