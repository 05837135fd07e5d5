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
        if (!take(database, stepAt(seed, number)) || ::write(STDOUT_FILENO, ".", 1) != 1)
            return 1;
    }
}
