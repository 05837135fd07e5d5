// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>

#include <memory>
#include <thread>

using namespace Support;

/// backup().
class tst_backup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_dir = std::make_unique<QTemporaryDir>(); }

    void backup_writesEveryEntry();
    void backup_withoutANameTakesTheDefault();
    void backup_keepsWhatTheOlderCopyHeldBesides();
    void backup_overwritesEntriesOfTheSameId();
    void backup_writesVolatileEntriesAsOrdinaryOnes();
    void backup_includesPendingChangesButDoesNotCommitThem();
    void backup_takesTheKeyThatWasLastUsed();
    void backup_beforeAnyAccessHasNoKey();
    void backup_compactsTheLiveFile();
    void backup_saysWhetherTheLiveFileWasCompacted_data();
    void backup_saysWhetherTheLiveFileWasCompacted();
    void backup_overAForeignFileLeavesIt();
    void backup_emitsNothing();
    void backup_ontoTheLiveFileHarmsNothing_data();
    void backup_ontoTheLiveFileHarmsNothing();
    void backup_inAThreadOfTheHostsOwnIsQuiet();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_backup::backup_writesEveryEntry()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    database.commit();
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom(printers({u"A"_s, u"B"_s})));
    QCOMPARE(stored(path(u"live.tdb"_s)), stored(path(u"copy.tdb"_s)));
}

void tst_backup::backup_withoutANameTakesTheDefault()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QVERIFY(database.backup(m_dir->path(), QString()));
    QCOMPARE(stored(path(u"Printers.tdb"_s)), storedFrom({printer(u"A"_s)}));
}

void tst_backup::backup_keepsWhatTheOlderCopyHeldBesides()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), printers({u"old"_s, u"A"_s})));
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom(printers({u"old"_s, u"A"_s, u"B"_s})));
    QCOMPARE(database.count(), 2);
}

void tst_backup::backup_overwritesEntriesOfTheSameId()
{
    QVERIFY(makeFile(path(u"copy.tdb"_s), {renamed(printer(u"A"_s), u"old name"_s)}));
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom({printer(u"A"_s)}));
}

void tst_backup::backup_writesVolatileEntriesAsOrdinaryOnes()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insertVolatile(printer(u"volatile"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom({printer(u"volatile"_s)}));
    QVERIFY(database.isVolatile(printer(u"volatile"_s).dataId()));
    QCOMPARE(stored(path(u"live.tdb"_s)), Stored());

    QVERIFY(database.restore(m_dir->path(), u"copy.tdb"_s, true));
    QVERIFY(!database.isVolatile(printer(u"volatile"_s).dataId()));
    QCOMPARE(stored(path(u"live.tdb"_s)), storedFrom({printer(u"volatile"_s)}));
}

void tst_backup::backup_includesPendingChangesButDoesNotCommitThem()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"pending"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom({printer(u"pending"_s)}));
    QVERIFY(database.isDirty());
    QCOMPARE(stored(path(u"live.tdb"_s)), Stored());
}

void tst_backup::backup_takesTheKeyThatWasLastUsed()
{
    VPrintersDb database(path(u"live.tdb"_s), u"key"_s);
    database.init(false);
    database.insert(printer(u"A"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(stored(path(u"copy.tdb"_s), u"key"_s), storedFrom({printer(u"A"_s)}));
    QVERIFY(stored(path(u"copy.tdb"_s), u"another"_s).contains(u"cannot be opened"_s));
}

void tst_backup::backup_beforeAnyAccessHasNoKey()
{
    QVERIFY(makeFile(path(u"live.tdb"_s), {printer(u"unseen"_s)}, u"key"_s));
    VPrintersDb database(path(u"live.tdb"_s), u"key"_s);
    database.insert(printer(u"A"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    // A file that was made without a key opens with none.
    QCOMPARE(stored(path(u"copy.tdb"_s)), storedFrom({printer(u"A"_s)}));
    QVERIFY(stored(path(u"copy.tdb"_s), u"key"_s).contains(u"cannot be opened"_s));
}

void tst_backup::backup_compactsTheLiveFile()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    for (int i = 0; i < 10; ++i) {
        database.insert(renamed(printer(u"A"_s), QString::number(i)));
        database.commit();
    }
    const qsizetype before = bytesOf(path(u"live.tdb"_s)).size();
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QVERIFY(bytesOf(path(u"live.tdb"_s)).size() < before / 2);
    QCOMPARE(stored(path(u"live.tdb"_s)), storedFrom(database.values()));
}

void tst_backup::backup_saysWhetherTheLiveFileWasCompacted_data()
{
    QTest::addColumn<bool>("hasFile");
    QTest::addColumn<bool>("canCopy");
    QTest::newRow("both files are there") << true << true;
    QTest::newRow("the copy cannot be written") << true << false;
    QTest::newRow("there is no live file") << false << true;
    QTest::newRow("there is nothing") << false << false;
}

void tst_backup::backup_saysWhetherTheLiveFileWasCompacted()
{
    QFETCH(bool, hasFile);
    QFETCH(bool, canCopy);
    QFile file(path(u"live.tdb"_s));
    VPrintersDb database(hasFile ? &file : nullptr, QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    const QString folder = m_dir->path() + (canCopy ? u""_s : u"/no such folder"_s);
    QCOMPARE(database.backup(folder, u"copy.tdb"_s), hasFile);
    QCOMPARE(QFile::exists(folder + u"/copy.tdb"_s), canCopy);
    QVERIFY(QDir(folder).exists() == canCopy);
}

void tst_backup::backup_overAForeignFileLeavesIt()
{
    QVERIFY(writeBytes(path(u"copy.tdb"_s), "a letter to the editor\n"));
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    QCOMPARE(bytesOf(path(u"copy.tdb"_s)), "a letter to the editor\n");
}

void tst_backup::backup_emitsNothing()
{
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QList<std::shared_ptr<QSignalSpy>> spies;
    for (const auto signal : {&VPrintersDb::initialized, &VPrintersDb::committed,
                              &VPrintersDb::changed, &VPrintersDb::ready, &VPrintersDb::error})
        spies += std::make_shared<QSignalSpy>(&database, signal);
    QVERIFY(database.backup(m_dir->path(), u"copy.tdb"_s));
    for (const auto &spy : spies)
        QCOMPARE(spy->size(), 0);
}

void tst_backup::backup_ontoTheLiveFileHarmsNothing_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("by its own path") << u"live.tdb"_s;
    QTest::newRow("by a detour") << u"sub/../live.tdb"_s;
    QTest::newRow("by a symbolic link") << u"link.tdb"_s;
}

void tst_backup::backup_ontoTheLiveFileHarmsNothing()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_dir->path()).mkdir(u"sub"_s));
    const QString live = path(u"live.tdb"_s);
    VPrintersDb database(live, u"key"_s);
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    database.commit();
    QVERIFY(QFile::link(live, path(u"link.tdb"_s)));
    database.insert(printer(u"pending"_s));
    database.remove(printer(u"B"_s));

    QVERIFY(database.backup(m_dir->path(), name));
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"pending"_s}));
    QVERIFY(database.isDirty());
    database.commit();
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(live, u"key"_s), storedFrom(printers({u"A"_s, u"pending"_s})));
    database.init(false);
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"pending"_s}));
}

void tst_backup::backup_inAThreadOfTheHostsOwnIsQuiet()
{
    QTest::failOnWarning(QRegularExpression(u"."_s));
    VPrintersDb database(path(u"live.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    bool isDone = false;
    std::thread([&] { isDone = database.backup(m_dir->path(), u"copy.tdb"_s); }).join();
    QVERIFY(isDone);
}

QTEST_GUILESS_MAIN(tst_backup)
#include "tst_backup.moc"
