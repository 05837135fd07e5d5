// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>

#include <memory>

using namespace Support;

/// restore().
class tst_restore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_database = std::make_unique<VPrintersDb>(path(u"live.tdb"_s), u"key"_s);
        m_database->init(false);
        m_database->insert(printers({u"A"_s, u"B"_s}));
        m_database->commit();
    }
    void cleanup()
    {
        m_database.reset();
        m_dir.reset();
    }

    void restore_byMergingKeepsOtherEntries();
    void restore_byReplacingLeavesOnlyTheFilesEntries();
    void restore_withoutANameTakesTheDefault();
    void restore_ofAnEmptyBackupEmptiesTheDatabase();
    void restore_ofAnEmptyBackupByMergingChangesNothing();
    void restore_dropsPendingChangesOfReplacedEntries();
    void restore_keepsTheMarksOfVolatileEntries();
    void restore_readsABackupWithAnyKey();
    void restore_saysChangedAndReady();
    void restore_commitsInTheCallersThread();
    void restore_thatCannotWriteKeepsTheChanges();
    void restore_fromTheLiveFileIsHarmless();
    void restore_leavesTheBackupAsItIs();
    void restore_ofAFileThatIsNoneChangesNothing_data();
    void restore_ofAFileThatIsNoneChangesNothing();
    void restore_ofAMissingFileCreatesNothing();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    Stored live() const { return stored(path(u"live.tdb"_s), u"key"_s); }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<VPrintersDb> m_database;
};

void tst_restore::restore_byMergingKeepsOtherEntries()
{
    const VPrinterDriver other = renamed(printer(u"B"_s), u"B of the backup"_s);
    QVERIFY(makeFile(path(u"copy.tdb"_s), {other, printer(u"C"_s)}));
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, true));
    QCOMPARE(live(), storedFrom({printer(u"A"_s), other, printer(u"C"_s)}));
    QCOMPARE(storedFrom(m_database->values()), live());
}

void tst_restore::restore_byReplacingLeavesOnlyTheFilesEntries()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), printers({u"B"_s, u"C"_s})));
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(live(), storedFrom(printers({u"B"_s, u"C"_s})));
    QCOMPARE(storedFrom(m_database->values()), live());
    QVERIFY(!m_database->isDirty());
}

void tst_restore::restore_withoutANameTakesTheDefault()
{
    QVERIFY(makeFile(path(u"Printers.tdb"_s), {printer(u"C"_s)}));
    QVERIFY(m_database->restore(m_dir->path(), false));
    QCOMPARE(namesIn(*m_database), QStringList({u"C"_s}));
    m_database->insert(printer(u"D"_s));
    QVERIFY(m_database->restore(m_dir->path(), QString(), true));
    QCOMPARE(namesIn(*m_database), QStringList({u"C"_s, u"D"_s}));
}

void tst_restore::restore_ofAnEmptyBackupEmptiesTheDatabase()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {}));
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QSignalSpy readies(m_database.get(), &VPrintersDb::ready);
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(m_database->count(), 0);
    QCOMPARE(live(), Stored());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(readies.size(), 1);
}

void tst_restore::restore_ofAnEmptyBackupByMergingChangesNothing()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {}));
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, true));
    QCOMPARE(live(), storedFrom(printers({u"A"_s, u"B"_s})));
    QCOMPARE(commits.size(), 0);
    QCOMPARE(changes.size(), 1);
}

void tst_restore::restore_dropsPendingChangesOfReplacedEntries()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {printer(u"B"_s)}));
    m_database->insert({renamed(printer(u"B"_s), u"pending"_s), printer(u"C"_s)});
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(live(), storedFrom({printer(u"B"_s)}));
}

void tst_restore::restore_keepsTheMarksOfVolatileEntries()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {printer(u"taken over"_s)}));
    m_database->insertVolatile(printers({u"volatile"_s, u"taken over"_s}));
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QVERIFY(m_database->isVolatile(printer(u"volatile"_s).dataId()));
    QVERIFY(!m_database->contains(printer(u"volatile"_s).dataId()));
    QVERIFY(!m_database->isVolatile(printer(u"taken over"_s).dataId()));
    QCOMPARE(live(), storedFrom({printer(u"taken over"_s)}));
}

void tst_restore::restore_readsABackupWithAnyKey()
{
    for (const QString &key : {u""_s, u"key"_s, u"another"_s}) {
        const QString name = u"copy"_s + key;
        QVERIFY(makeFile(path(name), {printer(u"of key "_s + key)}, key));
        const QByteArray before = bytesOf(path(name));
        QVERIFY(m_database->restore(m_dir->path(), name, false));
        QCOMPARE(namesIn(*m_database), QStringList({u"of key "_s + key}));
        QCOMPARE(bytesOf(path(name)), before);
    }
}

void tst_restore::restore_saysChangedAndReady()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {printer(u"C"_s)}));
    QStringList events;
    connect(m_database.get(), &VPrintersDb::initialized, this, [&] { events += u"initialized"_s; });
    connect(m_database.get(), &VPrintersDb::committed, this, [&] { events += u"committed"_s; });
    connect(m_database.get(), &VPrintersDb::changed, this, [&] { events += u"changed"_s; });
    connect(m_database.get(), &VPrintersDb::ready, this, [&] { events += u"ready"_s; });
    connect(m_database.get(), &VPrintersDb::error, this, [&] { events += u"error"_s; });
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, true));
    QCOMPARE(events, QStringList({u"committed"_s, u"changed"_s, u"ready"_s}));
}

void tst_restore::restore_commitsInTheCallersThread()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {printer(u"C"_s)}));
    m_database->init(true);
    m_database->waitForFinished();
    QThread *committer = nullptr;
    connect(
        m_database.get(), &VPrintersDb::committed, this,
        [&] { committer = QThread::currentThread(); }, Qt::DirectConnection);
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(committer, QThread::currentThread());
    QCOMPARE(live(), storedFrom({printer(u"C"_s)}));
}

void tst_restore::restore_thatCannotWriteKeepsTheChanges()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {printer(u"C"_s)}));
    VPrintersDb database(static_cast<QIODevice *>(nullptr), QString());
    QVERIFY(database.restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(namesIn(database), QStringList({u"C"_s}));
    QVERIFY(database.isDirty());
}

void tst_restore::restore_fromTheLiveFileIsHarmless()
{
    m_database->insert(printer(u"pending"_s));
    QVERIFY(m_database->restore(m_dir->path(), u"live.tdb"_s, true));
    QCOMPARE(live(), storedFrom(printers({u"A"_s, u"B"_s, u"pending"_s})));
    m_database->insert(printer(u"dropped"_s));
    QVERIFY(m_database->restore(m_dir->path(), u"live.tdb"_s, false));
    QCOMPARE(live(), storedFrom(printers({u"A"_s, u"B"_s, u"pending"_s})));
    QCOMPARE(storedFrom(m_database->values()), live());
}

void tst_restore::restore_leavesTheBackupAsItIs()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), printers({u"C"_s, u"D"_s})));
    const QByteArray before = bytesOf(path(u"copy.tdb"_s));
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, true));
    QVERIFY(m_database->restore(m_dir->path(), u"copy.tdb"_s, false));
    QCOMPARE(bytesOf(path(u"copy.tdb"_s)), before);
}

void tst_restore::restore_ofAFileThatIsNoneChangesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a letter") << QByteArray("a letter to the editor\n");
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("one line feed") << QByteArray("\n");
    QTest::newRow("a newer format") << QByteArray("vdbtext 999 whatever\nvdbtext 999 whatever\n");
}

void tst_restore::restore_ofAFileThatIsNoneChangesNothing()
{
    QFETCH(QByteArray, bytes);
    QVERIFY(writeBytes(path(u"copy.tdb"_s), bytes));
    QStringList events;
    connect(m_database.get(), &VPrintersDb::committed, this, [&] { events += u"committed"_s; });
    connect(m_database.get(), &VPrintersDb::changed, this, [&] { events += u"changed"_s; });
    connect(m_database.get(), &VPrintersDb::ready, this, [&] { events += u"ready"_s; });
    connect(m_database.get(), &VPrintersDb::error, this, [&] { events += u"error"_s; });
    for (const bool merge : {true, false}) {
        QVERIFY(!m_database->restore(m_dir->path(), u"copy.tdb"_s, merge));
        QCOMPARE(events, QStringList());
        QCOMPARE(bytesOf(path(u"copy.tdb"_s)), bytes);
        QCOMPARE(namesIn(*m_database), QStringList({u"A"_s, u"B"_s}));
        QVERIFY(!m_database->isDirty());
        QCOMPARE(live(), storedFrom(printers({u"A"_s, u"B"_s})));
    }
}

void tst_restore::restore_ofAMissingFileCreatesNothing()
{
    const QStringList before = QDir(m_dir->path()).entryList();
    QVERIFY(!m_database->restore(m_dir->path(), u"missing.tdb"_s, false));
    QVERIFY(!m_database->restore(m_dir->path(), false));
    QVERIFY(!m_database->restore(path(u"no such folder"_s), u"copy.tdb"_s, false));
    // A folder exists, but is no file.
    QVERIFY(!m_database->restore(path(u".."_s), QFileInfo(m_dir->path()).fileName(), false));
    QCOMPARE(QDir(m_dir->path()).entryList(), before);
    QCOMPARE(m_database->count(), 2);
    QVERIFY(!m_database->isDirty());
}

QTEST_GUILESS_MAIN(tst_restore)
#include "tst_restore.moc"
