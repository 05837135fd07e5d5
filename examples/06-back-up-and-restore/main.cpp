// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A copy of the catalogue in another folder, a look whether it is good, and the two ways back: in
// place of what is there now, or beside it.
//
// It prints
//
//   backed up:            Line 1, Line 2
//   a day later:          Line 1, Line 3
//   restored and merged:  Line 1, Line 2, Line 3
//   restored:             Line 1, Line 2

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
bool show(QTextStream &out, const QString &title, VPrintersDb &db, const QString &expected)
{
    QStringList names;
    for (const VPrinterDriver &printer : db.values())
        names.append(printer.name());
    names.sort();
    out << (title + u':').leftJustified(22) << names.join(u", "_s) << '\n';
    return names.join(u", "_s) == expected;
}

// Copies the catalogue into `folder`; true when the copy, read anew, holds the same drivers.
bool backUp(VPrintersDb &db, const QString &folder)
{
    // [backup]
    // The result is that of the clean-up which follows the copy: read the copy to know about it.
    if (!db.backup(folder, u"Monday.tdb"_s))
        return false;
    VPrintersDb copy(folder + u"/Monday.tdb"_s, QString());
    copy.init(false);
    return !copy.isNull() && copy.values() == db.values();
    // [backup]
}

bool run(const QString &file, const QString &folder, QTextStream &out)
{
    const VPrinterDriver line2 = driverNamed(u"Line 2"_s);
    VPrintersDb db(file, QString());
    db.init(false);
    db.insert({driverNamed(u"Line 1"_s), line2});
    bool good = backUp(db, folder);
    good &= show(out, u"backed up"_s, db, u"Line 1, Line 2"_s);

    db.remove(line2);
    db.insert(driverNamed(u"Line 3"_s));
    good &= show(out, u"a day later"_s, db, u"Line 1, Line 3"_s);

    // [restore]
    good &= db.restore(folder, u"Monday.tdb"_s, true); // What is not in the copy stays.
    // [restore]
    good &= show(out, u"restored and merged"_s, db, u"Line 1, Line 2, Line 3"_s);
    good &= db.restore(folder, u"Monday.tdb"_s, false); // What is not in the copy goes.
    good &= show(out, u"restored"_s, db, u"Line 1, Line 2"_s);

    // A copy that is not there, or cannot be read, changes nothing.
    good &= !db.restore(folder, u"Tuesday.tdb"_s, false) && db.count() == 2;
    return good && !db.isDirty();
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    QTextStream out(stdout);
    const QTemporaryDir here;
    const QTemporaryDir stick;
    return run(here.filePath(VPrintersDb::defaultFilename()), stick.path(), out) ? 0 : 1;
}
