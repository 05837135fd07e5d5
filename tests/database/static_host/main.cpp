// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A host whose database is a static object, made before anything else of the library is used and
// destroyed after main(). `static_host FILE write` leaves a driver for the destructor to commit;
// `static_host FILE read` succeeds when it is there.

#include "support/Drivers.h"

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

int main(int argc, char *argv[])
{
    using namespace Qt::StringLiterals;
    const QCoreApplication app(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const bool writes = arguments.value(2) == u"write"_s;
    if (writes)
        QFile::remove(arguments.value(1));
    static Norvane::Kilnjet::VPrintersDb database(arguments.value(1), QString());
    database.init(false);
    if (!writes)
        return database.count() == 1 ? 0 : 1;
    database.insert(Support::validPrinter());
    return 0;
}
