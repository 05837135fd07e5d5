// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A host whose database is a static object, made before anything else of the library is used and
// destroyed after main().
//
// `static_host FILE write` leaves a driver for the destructor to commit; `static_host FILE late`
// has it inserted and committed in the background when the application is gone; `static_host FILE
// read` succeeds when it is there.

#include "support/Drivers.h"

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>

using Norvane::Kilnjet::VPrintersDb;

namespace {

/// Edits the database after main().
class LateEditor
{
public:
    explicit LateEditor(VPrintersDb &database)
        : m_database(database)
    { }
    Q_DISABLE_COPY_MOVE(LateEditor)
    ~LateEditor()
    {
        m_database.insert(Support::validPrinter());
        m_database.commit();
        m_database.waitForFinished();
    }

private:
    VPrintersDb &m_database;
};

} // namespace

int main(int argc, char *argv[])
{
    using namespace Qt::StringLiterals;
    const QCoreApplication app(argc, argv);
    const QString path = QCoreApplication::arguments().value(1);
    const QString step = QCoreApplication::arguments().value(2);
    if (step != u"read"_s)
        QFile::remove(path);
    static VPrintersDb database(path, QString());
    database.init(step == u"late"_s);
    if (step == u"read"_s)
        return database.count() == 1 ? 0 : 1;
    if (step == u"write"_s)
        database.insert(Support::validPrinter());
    else
        static const LateEditor editor(database);
    return 0;
}
