// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Lives a random life from a step on, until it is killed.
//
// `committer FILE SEED FIRST` prints a dot for each step that the database acknowledged, at once,
// and ends with 1 when it did not acknowledge one.

#include "../RandomSteps.h"

#include <QtCore/QCoreApplication>

#include <unistd.h>

using namespace Torture;

namespace {

bool live(VPrintersDb &database, const Step &step)
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

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const quint32 seed = arguments.value(2).toUInt();
    VPrintersDb database(arguments.value(1), QString());
    database.init(false);
    if (!database.isReady())
        return 1;
    for (quint32 number = arguments.value(3).toUInt();; ++number) {
        if (!live(database, stepAt(seed, number)) || ::write(STDOUT_FILENO, ".", 1) != 1)
            return 1;
    }
}
