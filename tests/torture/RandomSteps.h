// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Printers.h"

#include <QtCore/QRandomGenerator>

// A random life of a database, of which any part can be lived again: what step n does follows from
// the seed and n alone. So a test knows what a program that it has killed had done.

namespace Torture {

using namespace Support;

/// One commit, or a purge.
struct Step
{
    QList<VPrinterDriver> inserted;
    QList<VPrinterDriver> removed;
    bool isPurge = false;
};

/// Few enough drivers for the file to stay small, and for each to be replaced often.
inline constexpr quint32 kDrivers = 40;

inline Step stepAt(quint32 seed, quint32 number)
{
    const std::array<quint32, 2> seeds{seed, number};
    QRandomGenerator random(seeds.data(), qsizetype(seeds.size()));
    Step step;
    step.isPurge = random.bounded(12) == 0;
    // Consecutive ones, so that none is both inserted and removed.
    const quint32 first = random.bounded(kDrivers);
    const quint32 count = step.isPurge ? 0 : 1 + random.bounded(5);
    for (quint32 i = first; i < first + count; ++i) {
        VPrinterDriver driver = printer(QString::number(i % kDrivers));
        driver.setDescription(QString::number(number)); // No two steps leave the same.
        (random.bounded(3) == 0 ? step.removed : step.inserted).append(driver);
    }
    return step;
}

/// What the file holds after the step, when it held `before`.
inline Stored after(Stored before, const Step &step)
{
    for (const VPrinterDriver &driver : step.removed)
        before.remove(idText(driver));
    for (const VPrinterDriver &driver : step.inserted)
        before.insert(idText(driver), jsonText(driver));
    return before;
}

/// Takes the step; false when the database does not acknowledge it.
[[nodiscard]] inline bool take(VPrintersDb &database, const Step &step)
{
    if (step.isPurge)
        return database.purge();
    // Something to write in any case: removing what is not there is no change.
    int commits = 0;
    const auto connection = QObject::connect(
        &database, &VPrintersDb::committed, &database, [&commits] { ++commits; },
        Qt::DirectConnection);
    database.removes(step.removed);
    database.insert(step.inserted);
    const bool isDirty = database.isDirty();
    database.commit();
    QObject::disconnect(connection);
    return commits == (isDirty ? 1 : 0) && !database.isDirty();
}

} // namespace Torture
