// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A list on the screen that follows the catalogue, whoever changes it in whatever thread; and what
// a host sees when something fails.
//
// It prints
//
//   ready: the list is empty
//   changed by another thread: the list is "Line 1"
//   committed: the file has it
//   error: a file in a folder that is not there cannot be loaded

#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextStream>
#include <QtCore/QThread>

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

QStringList namesOf(VPrintersDb &db)
{
    QStringList names;
    for (const VPrinterDriver &printer : db.values())
        names.append(printer.name());
    return names;
}

// True when the list has followed the catalogue and the file has all of it.
bool follow(QCoreApplication &app, const QString &file, QTextStream &out)
{
    QStringList list; // What the screen shows: only this thread touches it.
    VPrintersDb db(file, QString());
    const std::unique_ptr<QThread> other(
        QThread::create([&db] { db.insert(driverNamed(u"Line 1"_s)); }));

    // [signals]
    // Signals come in the thread that did the work, changed() with the database's lock held.
    // Queued, they reach the thread of `app` in order, and nobody waits for the list to be drawn.
    const auto queued = Qt::QueuedConnection;
    QObject::connect(
        &db, &VPrintersDb::ready, &app,
        [&] {
            list = namesOf(db);
            out << "ready: the list is " << (list.isEmpty() ? "empty" : "not empty") << '\n';
            other->start();
        },
        queued);
    QObject::connect(
        &db, &VPrintersDb::changed, &app,
        [&] {
            list = namesOf(db);
            out << "changed by another thread: the list is \"" << list.join(u", "_s) << "\"\n";
            db.commit(); // Else 5 s after the last change.
        },
        queued);
    QObject::connect(
        &db, &VPrintersDb::committed, &app,
        [&] {
            out << "committed: the file has it\n";
            app.exit(0);
        },
        queued);
    QObject::connect(
        &db, &VPrintersDb::error, &app, [&] { app.exit(1); }, queued);
    // [signals]

    db.init(true);
    const int result = app.exec();
    other->wait();
    return result == 0 && list == QStringList{u"Line 1"_s} && !db.isDirty();
}

// True when a load that cannot work says so.
bool failToLoad(const QString &file, QTextStream &out)
{
    // [error]
    bool told = false;
    VPrintersDb db(file, QString());
    QObject::connect(&db, &VPrintersDb::error, &db, [&] { told = true; });
    db.init(false);
    if (db.isNull()) // The last load failed: the catalogue is empty, and nothing was written.
        out << "error: a file in a folder that is not there cannot be loaded\n";
    // [error]
    return told && db.isNull() && db.count() == 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QTemporaryDir folder;
    return follow(app, folder.filePath(VPrintersDb::defaultFilename()), out)
            && failToLoad(folder.filePath(u"nowhere/Printers.tdb"_s), out)
        ? 0
        : 1;
}
