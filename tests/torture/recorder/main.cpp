// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Writes the same drivers to a new database under any locale.
//
// `recorder FILE [LOCALE]` makes LOCALE the default one before anything else happens. It prints the
// content ids and ends with 0 when the file is written and a second database reads the same.

#include "support/Printers.h"

#include <QtCore/QCoreApplication>

#include <cstdio>

using namespace Support;

int main(int argc, char *argv[])
{
    if (argc > 2)
        QLocale::setDefault(QLocale(QString::fromLatin1(argv[2])));
    const QCoreApplication app(argc, argv);
    const QString path = QCoreApplication::arguments().value(1);
    QList<VPrinterDriver> drivers;
    RandomDrivers random(1);
    while (drivers.size() < 40) {
        const VPrinterDriver driver = random.printer();
        if (driver.isValid())
            drivers.append(driver);
    }
    if (!makeFile(path, drivers, u"key"_s))
        return 1;
    VPrintersDb database(path, u"key"_s);
    database.init(false);
    for (const QUuid &id : database.idList())
        std::puts(id.toByteArray().constData());
    return database.count() == drivers.size() && stored(path, u"key"_s) == storedFrom(drivers) ? 0
                                                                                               : 1;
}
