// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Machines that something else announces, a network or a licence, stand in the catalogue as long as
// they are announced: as volatile entries, which are listed like all others and never written.
//
// It prints what a user would see after each step:
//
//   the file holds:         My line
//   two are found:          Found 1 (volatile), Found 2 (volatile), My line
//   one of them is gone:    Found 2 (volatile), My line
//   the user keeps it:      Found 2, My line
//   tomorrow:               Found 2, My line

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

// Prints the names in the catalogue under `title`; true when they are `expected`.
bool show(QTextStream &out, const QString &title, VPrintersDb &db, const QStringList &expected)
{
    QStringList names;
    for (const VPrinterDriver &printer : db.values())
        names.append(printer.name()
                     + (db.isVolatile(printer.dataId()) ? u" (volatile)"_s : QString()));
    names.sort();
    out << (title + u':').leftJustified(24) << names.join(u", "_s) << '\n';
    return names == expected;
}

bool run(const QString &file, QTextStream &out)
{
    const VPrinterDriver found1 = driverNamed(u"Found 1"_s);
    const VPrinterDriver found2 = driverNamed(u"Found 2"_s);
    VPrintersDb db(file, QString());
    db.init(false);
    db.insert(driverNamed(u"My line"_s));
    db.commit();
    bool good = show(out, u"the file holds"_s, db, {u"My line"_s});

    // [volatile]
    // Whenever the source has looked: all that it found. What it found before and no longer does,
    // goes; what the user keeps, stays.
    db.replaceVolatile({found1, found2});
    good &= show(out, u"two are found"_s, db,
                 {u"Found 1 (volatile)"_s, u"Found 2 (volatile)"_s, u"My line"_s});
    db.replaceVolatile(found2);
    good &= show(out, u"one of them is gone"_s, db, {u"Found 2 (volatile)"_s, u"My line"_s});

    // An ordinary insert makes an entry the user's own.
    db.insert(db.value(found2.dataId()));
    db.commit();
    // [volatile]
    db.clearVolatile();
    good &= show(out, u"the user keeps it"_s, db, {u"Found 2"_s, u"My line"_s});
    return good;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QTemporaryDir folder;
    const QString file = folder.filePath(VPrintersDb::defaultFilename());
    if (!run(file, out))
        return 1;

    VPrintersDb tomorrow(file, QString());
    tomorrow.init(false);
    return show(out, u"tomorrow"_s, tomorrow, {u"Found 2"_s, u"My line"_s}) ? 0 : 1;
}
