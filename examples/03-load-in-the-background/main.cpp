// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A host that does not keep its user waiting: it asks for the load, shows its window, and learns by
// a signal when the catalogue is there. Commits run in the background, too.
//
// It prints
//
//   the window is up
//   ready: 200 drivers
//   committed: one more is in the file

#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

VPrinterDriver driverNamed(const QString &name)
{
    VPrinterDriver printer(QUuid::createUuid());
    printer.setName(name);
    printer.insert(std::make_unique<VPrintUnitDriver>(QUuid::createUuid()).release(), true);
    return printer;
}

// Yesterday's work: a file that holds `count` drivers.
bool fill(const QString &file, int count)
{
    QList<VPrinterDriver> drivers;
    for (int i = 0; i < count; ++i)
        drivers.append(driverNamed(u"Line %1"_s.arg(i + 1)));
    VPrintersDb db(file, QString());
    db.init(false);
    db.insert(drivers);
    db.commit();
    return !db.isNull() && !db.isDirty();
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QTemporaryDir folder;
    const QString file = folder.filePath(VPrintersDb::defaultFilename());
    if (!fill(file, 200))
        return 1;

    // [background]
    VPrintersDb db(file, QString());
    QObject::connect(&db, &VPrintersDb::ready, &app, [&] {
        out << "ready: " << db.count() << " drivers\n";
        db.insert(driverNamed(u"A new line"_s));
        db.commit(); // Returns at once: a thread of the global pool writes.
    });
    QObject::connect(&db, &VPrintersDb::committed, &app, [&] {
        out << "committed: one more is in the file\n";
        app.exit(0);
    });
    QObject::connect(&db, &VPrintersDb::error, &app, [&] { app.exit(1); });
    db.init(true); // Returns at once: a thread of the global pool reads.
    out << "the window is up\n";
    const int result = app.exec();
    // [background]

    // The destructor of `db` would wait for what still runs, and write what is pending.
    return result == 0 && db.isReady() && db.count() == 201 && !db.isDirty() ? 0 : 1;
}
