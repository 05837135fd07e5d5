// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "CopyCheck.h"

#include "ChangePlan.h"
#include "Progress.h"
#include "Text.h"

#include <QtCore/QHash>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// Where a copy is not what it should be.
struct Inequality
{
    QList<VPrinterDriver> missing;
    QList<VPrinterDriver> different;
    QList<VPrinterDriver> extra;
    qsizetype unreadable = 0;

    bool isEmpty() const
    {
        return missing.isEmpty() && different.isEmpty() && extra.isEmpty() && unreadable == 0;
    }
};

Inequality compare(const QList<VPrinterDriver> &machines, const StoreSettings &copy,
                   Progress &progress)
{
    QHash<QUuid, VPrinterDriver> expected;
    for (const VPrinterDriver &machine : machines)
        expected.insert(machine.dataId(), machine);
    Inequality found;
    visitStore(copy, progress, [&](const StoredRecord &record) {
        if (!record.driver) {
            ++found.unreadable;
            return;
        }
        const auto machine = expected.constFind(record.driver->dataId());
        if (machine == expected.constEnd()) {
            found.extra.append(*record.driver);
            return;
        }
        if (machine->toJsonObject() != record.driver->toJsonObject())
            found.different.append(*machine);
        expected.erase(machine);
    });
    found.missing = expected.values();
    return found;
}

QString textOf(const Inequality &found)
{
    QStringList parts;
    const auto add = [&parts](qsizetype count, const QString &noun, const QString &what) {
        if (count > 0)
            parts.append(counted(count, noun) + u' ' + what);
    };
    add(found.missing.size(), u"machine"_s, u"missing"_s);
    add(found.different.size(), u"machine"_s, u"different"_s);
    add(found.extra.size(), u"machine"_s, u"more than in the database"_s);
    add(found.unreadable, u"record"_s, u"that cannot be read"_s);
    return parts.join(u", "_s);
}

} // namespace

void verifyCopy(const QList<VPrinterDriver> &machines, const StoreSettings &copy,
                Progress &progress)
{
    const Inequality found = compare(machines, copy, progress);
    if (found.isEmpty())
        return;
    const bool isDamaged = !found.missing.isEmpty() || !found.different.isEmpty();
    throw Failure{.code = ExitCode::Io,
                  .where = copy.path,
                  .what = u"the copy is not equal to the database"_s,
                  .why = textOf(found),
                  .hint = isDamaged ? u"copy to another disk"_s
                                    : u"an older copy stood there; --replace makes one without "
                                      "its machines"_s,
                  .details = {{u"missing"_s, toJsonArray(found.missing)},
                              {u"different"_s, toJsonArray(found.different)},
                              {u"extra"_s, toJsonArray(found.extra)},
                              {u"unreadable"_s, found.unreadable}}};
}

} // namespace Norvane::Kilnjet::Tool
