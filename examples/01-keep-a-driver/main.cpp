// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The shortest host: describe a machine, keep it in a printers database, and read it back.
//
//   01-keep-a-driver [FILE]      FILE: where to keep it, "Printers.tdb" unless it is given
//
// It prints every driver in the file, by content id; one more at each run:
//
//   {0aa6447b-625d-571b-9193-846ab4f46a30}  Line 1
//     a print unit of 4 channels

// [head]
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QTextStream>

#include <memory>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
// [head]

namespace {

// Builds a driver and keeps it in the database `file`.
bool keep(const QString &file)
{
    // [keep]
    VPrinterDriver printer(QUuid::createUuid());
    printer.setName(u"Line 1"_s);
    printer.setPrinterClass(PrinterClass::Inkjet);
    auto unit = std::make_unique<VPrintUnitDriver>(QUuid::createUuid());
    unit->setChannels({Channel::Cyan, Channel::Brown, Channel::Yellow, Channel::Black});
    printer.insert(unit.release(), true); // A driver owns its children, and needs one to be valid.

    VPrintersDb db(file, QString()); // A key, instead of QString(), would sign the records.
    db.init(false); // Load now, in this thread; true would do it in the background.
    db.insert(printer);
    db.commit(); // At once, instead of 5 s after the last edit.
    // [keep]

    return !db.isNull() && !db.isDirty();
}

// Reads every driver of the database `file`, as a process that starts tomorrow would.
bool readBack(const QString &file, QTextStream &out)
{
    // [read]
    VPrintersDb db(file, QString());
    db.init(false);
    for (const VPrinterDriver &printer : db.values()) {
        out << printer.dataId().toString() << "  " << printer.name() << '\n';
        for (auto *child : printer.values(VPrintUnitDriver().id())) {
            const auto *unit = dynamic_cast<VPrintUnitDriver *>(child);
            if (unit)
                out << "  a print unit of " << unit->channels().size() << " channels\n";
        }
    }
    // [read]
    return db.count() > 0;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QString file = app.arguments().value(1, VPrintersDb::defaultFilename());
    QTextStream out(stdout);
    return keep(file) && readBack(file, out) ? 0 : 1;
}
