// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// export: whole records, which import takes back unchanged; files are complete or untouched.

#include "support/Drivers.h"
#include "support/Printers.h"
#include "support/RecordJson.h"
#include "support/Seed.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolFolder;
using Support::ToolRun;

class tst_export : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void all_areWrittenInTheOrderOfTheirIds();
    void some_areWritten();
    void oneNotFound_writesNothing();
    void theRoundTrip_changesNothing();
    void theRoundTripOfAnyRecord_changesNothing();
    void aFile_isReplaced();
    void aFileThatCannotBeWritten_isAFailure_data();
    void aFileThatCannotBeWritten_isAFailure();
    void theDatabase_isNeverOverwritten();
    void aLink_staysALink();
    void aDash_isTheStandardOutput();

private:
    std::unique_ptr<ToolFolder> m_folder;
};

namespace {

QStringList filesIn(const ToolFolder &folder)
{
    QStringList names = QDir(folder.path(u"."_s)).entryList(QDir::Files);
    names.sort();
    return names;
}

} // namespace

void tst_export::init()
{
    m_folder = std::make_unique<ToolFolder>();
    const QJsonArray records{printerJson(u"A"_s), printerJson(u"B"_s), printerJson(u"C"_s)};
    VERIFY_CODE(m_folder->run({u"import"_s, m_folder->write(u"in.json"_s, records)}), 0);
}

void tst_export::all_areWrittenInTheOrderOfTheirIds()
{
    const ToolRun run = m_folder->run({u"export"_s});
    VERIFY_CODE(run, 0);
    QMap<QUuid, QJsonObject> expected;
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s})
        expected.insert(QUuid(Support::idOfPrinterJson(name)), printerJson(name));
    QJsonArray array;
    for (const QJsonObject &record : expected)
        array.append(record);
    QCOMPARE(run.array(), array);
    QCOMPARE(m_folder->run({u"export"_s, u"--json"_s}).out, run.out);
}

void tst_export::some_areWritten()
{
    const ToolRun run =
        m_folder->run({u"export"_s, u"B"_s, Support::idOfPrinterJson(u"B"_s).mid(1, 8), u"b"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.array(), QJsonArray{printerJson(u"B"_s)});
}

void tst_export::oneNotFound_writesNothing()
{
    const ToolRun run = m_folder->run({u"export"_s, u"A"_s, u"Z"_s, u"-o"_s, u"out.json"_s});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.out, QByteArray());
    QVERIFY(!QFile::exists(m_folder->path(u"out.json"_s)));
}

void tst_export::theRoundTrip_changesNothing()
{
    const QDir samples(QStringLiteral(CATALOGUE));
    const ToolFolder folder;
    QStringList import{u"import"_s};
    for (const QString &name : samples.entryList({u"*.json"_s}))
        import.append(samples.filePath(name));
    VERIFY_CODE(folder.run(import), 0);
    VERIFY_CODE(folder.run({u"export"_s, u"--output"_s, u"out.json"_s}), 0);
    const ToolRun again = folder.run({u"--json"_s, u"import"_s, u"out.json"_s});
    VERIFY_CODE(again, 0);
    QCOMPARE(again.object()["unchanged"_L1].toArray().size(), import.size() - 1);
    VERIFY_CODE(folder.run({u"--db=b.tdb"_s, u"import"_s, u"out.json"_s}), 0);
    QCOMPARE(folder.run({u"--db=b.tdb"_s, u"export"_s}).out, folder.read(u"out.json"_s));
}

void tst_export::theRoundTripOfAnyRecord_changesNothing()
{
    Support::RandomDrivers random(Support::seed());
    QList<Support::VPrinterDriver> drivers;
    while (drivers.size() < 40) {
        const auto driver = random.printer();
        if (driver.isValid())
            drivers.append(driver);
    }
    QVERIFY(Support::makeFile(m_folder->path(u"random.tdb"_s), drivers));
    const ToolRun run = m_folder->run({u"--db=random.tdb"_s, u"export"_s});
    VERIFY_CODE(run, 0);
    VERIFY_CODE(m_folder->run({u"--db=copy.tdb"_s, u"import"_s, u"-"_s}, run.out), 0);
    QCOMPARE(m_folder->run({u"--db=copy.tdb"_s, u"export"_s}).out, run.out);
}

void tst_export::aFile_isReplaced()
{
    m_folder->write(u"out.json"_s, QByteArray(1'000'000, 'x'));
    QFile::setPermissions(m_folder->path(u"out.json"_s), QFile::ReadOwner | QFile::WriteOwner);
    const ToolRun run = m_folder->run({u"export"_s, u"-o"_s, u"out.json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.text(), u"out.json: 3 machines\n"_s);
    QCOMPARE(m_folder->read(u"out.json"_s), m_folder->run({u"export"_s}).out);
    QCOMPARE(QFile::permissions(m_folder->path(u"out.json"_s)) & QFile::ReadOther,
             QFile::Permissions());
    const ToolRun json = m_folder->run({u"export"_s, u"A"_s, u"--json"_s, u"-o"_s, u"out.json"_s});
    QCOMPARE(json.object(), QJsonObject({{u"file"_s, u"out.json"_s}, {u"records"_s, 1}}));
    // Nothing is left beside it.
    QCOMPARE(filesIn(*m_folder), QStringList({u"Printers.tdb"_s, u"in.json"_s, u"out.json"_s}));
}

void tst_export::aFileThatCannotBeWritten_isAFailure_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder") << u"."_s;
    QTest::newRow("in a folder that is not there") << u"nowhere/out.json"_s;
    QTest::newRow("below a file") << u"in.json/out.json"_s;
    QTest::newRow("a name that is too long") << QString(300, u'x');
#ifdef Q_OS_LINUX
    QTest::newRow("a full device") << u"/dev/full"_s;
#endif
}

void tst_export::aFileThatCannotBeWritten_isAFailure()
{
    QFETCH(QString, path);
    const ToolRun run = m_folder->run({u"export"_s, u"-o"_s, path});
    VERIFY_CODE(run, 3);
    QCOMPARE(run.out, QByteArray());
    QVERIFY2(run.messages().startsWith(u"kilnjet: %1: cannot write the file: "_s.arg(path)),
             run.err.constData());
    QCOMPARE(filesIn(*m_folder), QStringList({u"Printers.tdb"_s, u"in.json"_s}));
}

void tst_export::theDatabase_isNeverOverwritten()
{
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    QVERIFY(QFile::link(u"Printers.tdb"_s, m_folder->path(u"link"_s)));
    for (const QString &path :
         {u"Printers.tdb"_s, u"./Printers.tdb"_s, m_folder->path(u"Printers.tdb"_s), u"link"_s}) {
        VERIFY_CODE(m_folder->run({u"export"_s, u"-o"_s, path}), 2);
        QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
    }
}

void tst_export::aLink_staysALink()
{
    m_folder->write(u"real.json"_s, QByteArray("old"));
    QVERIFY(QFile::link(u"real.json"_s, m_folder->path(u"link.json"_s)));
    VERIFY_CODE(m_folder->run({u"export"_s, u"-o"_s, u"link.json"_s}), 0);
    QVERIFY(QFileInfo(m_folder->path(u"link.json"_s)).isSymLink());
    QCOMPARE(m_folder->read(u"real.json"_s), m_folder->run({u"export"_s}).out);
}

void tst_export::aDash_isTheStandardOutput()
{
    QCOMPARE(m_folder->run({u"export"_s, u"-o"_s, u"-"_s}).out, m_folder->run({u"export"_s}).out);
}

QTEST_GUILESS_MAIN(tst_export)
#include "tst_export.moc"
