// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Runs an operation on the database in a folder and dies in it.
//
// `victim FOLDER OPERATION CALL [BYTES]` is killed behind the CALL-th call of the system, 1 being
// the first, which writes no more than BYTES. It ends with 0 when it lives to see the operation
// acknowledged, and with 1 when that was refused.

#include "../Operations.h"

#include <QtCore/QCoreApplication>

using namespace Torture;

int main(int argc, char *argv[])
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString folder = arguments.value(1);
    const auto operation =
        std::find_if(operations().begin(), operations().end(), [&](const Operation &one) {
            return arguments.value(2) == QLatin1StringView(one.name);
        });
    if (operation == operations().end())
        return 2;
    FileCalls::watch(folder.toStdString());
    VPrintersDb database(fileIn(folder), QString());
    operation->prepare(database);
    int left = arguments.value(3).toInt();
    FileCallFate death;
    death.isLast = true;
    if (arguments.size() > 4)
        death.part = arguments.value(4).toULongLong();
    FileCalls::setJudge([&](const FileCall &) { return --left == 0 ? death : FileCallFate(); });
    const bool isDone = operation->run(database, folder);
    FileCalls::setJudge(nullptr);
    return isDone ? 0 : 1;
}
