// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QTemporaryDir>

using namespace Support;

/// purge() and reindex().
class tst_maintenance : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutADevice_bothAreFalse();
    void withoutAFile_bothAreFalseAndSilent();
    void purge_dropsWhatIsNoLongerLive();
    void purge_doesNotCommitPendingChanges();
    void purge_emitsNothing();
    void purge_thatFailsLeavesTheDatabaseUsable();
    void purge_ofAFileInMemoryWorksToo();
    void reindex_writesPendingChangesAndLoadsAgain();
    void reindex_saysWhatItDoes();
    void reindex_seesWhatAnotherProgramWrote();
    void reindex_ofAFileThatCannotBeReadIsFalse();
    void reindex_beforeAnyLoadLoads();
    void reindex_runsInTheCallersThread();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    QTemporaryDir m_dir;
};

void tst_maintenance::withoutADevice_bothAreFalse()
{
    VPrintersDb database(static_cast<QIODevice *>(nullptr), QString());
    QSignalSpy errors(&database, &VPrintersDb::error);
    QVERIFY(!database.purge());
    QVERIFY(!database.reindex());
    QCOMPARE(errors.size(), 0);
}

void tst_maintenance::withoutAFile_bothAreFalseAndSilent()
{
    VPrintersDb database(path(u"missing.tdb"_s), QString());
    QSignalSpy errors(&database, &VPrintersDb::error);
    QVERIFY(!database.purge());
    QVERIFY(!database.reindex());
    QCOMPARE(errors.size(), 0);
    QVERIFY(!QFile::exists(path(u"missing.tdb"_s)));
}

void tst_maintenance::purge_dropsWhatIsNoLongerLive()
{
    VPrintersDb database(path(u"purge.tdb"_s), u"key"_s);
    database.init(false);
    database.insert(printers({u"A"_s, u"removed"_s}));
    database.commit();
    database.remove(printer(u"removed"_s));
    database.commit();
    QVERIFY(bytesOf(path(u"purge.tdb"_s)).contains("removed"));
    QVERIFY(database.purge());
    QVERIFY(!bytesOf(path(u"purge.tdb"_s)).contains("removed"));
    QCOMPARE(stored(path(u"purge.tdb"_s), u"key"_s), storedFrom({printer(u"A"_s)}));
    database.insert(printer(u"B"_s));
    database.commit();
    QCOMPARE(stored(path(u"purge.tdb"_s), u"key"_s), storedFrom(printers({u"A"_s, u"B"_s})));
}

void tst_maintenance::purge_doesNotCommitPendingChanges()
{
    VPrintersDb database(path(u"pending.tdb"_s), QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QVERIFY(database.purge());
    QVERIFY(database.isDirty());
    QCOMPARE(stored(path(u"pending.tdb"_s)), Stored());
}

void tst_maintenance::purge_emitsNothing()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    database.commit();
    int emissions = 0;
    for (const auto signal : {&VPrintersDb::initialized, &VPrintersDb::committed,
                              &VPrintersDb::changed, &VPrintersDb::ready, &VPrintersDb::error})
        connect(&database, signal, this, [&] { ++emissions; });
    QVERIFY(database.purge());
    QCOMPARE(emissions, 0);
}

void tst_maintenance::purge_thatFailsLeavesTheDatabaseUsable()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    database.commit();
    QSignalSpy errors(&database, &VPrintersDb::error);
    device.failAlways(FaultyDevice::Sync);
    QVERIFY(!database.purge());
    QCOMPARE(errors.size(), 0);
    device.failAlways(FaultyDevice::Sync, false);
    database.insert(printer(u"C"_s));
    database.commit();
    QCOMPARE(errors.size(), 0);
    QCOMPARE(stored(device.bytes()), storedFrom(printers({u"A"_s, u"B"_s, u"C"_s})));
    QVERIFY(database.purge());
}

void tst_maintenance::purge_ofAFileInMemoryWorksToo()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    for (int i = 0; i < 10; ++i) {
        database.insert(renamed(printer(u"A"_s), QString::number(i)));
        database.commit();
    }
    const qsizetype before = buffer.data().size();
    QVERIFY(database.purge());
    QVERIFY(buffer.data().size() < before / 2);
    QCOMPARE(stored(buffer.data()), storedFrom(database.values()));
}

void tst_maintenance::reindex_writesPendingChangesAndLoadsAgain()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    database.commit();
    database.insert(printer(u"pending"_s));
    database.insertVolatile(printer(u"volatile"_s));
    QVERIFY(database.reindex());
    QVERIFY(!database.isDirty());
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"B"_s, u"pending"_s}));
    QCOMPARE(storedFrom(database.values()), stored(buffer.data()));
    QVERIFY(database.isVolatile(printer(u"volatile"_s).dataId()));
}

void tst_maintenance::reindex_saysWhatItDoes()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QSignalSpy commits(&database, &VPrintersDb::committed);
    QSignalSpy loads(&database, &VPrintersDb::initialized);
    QSignalSpy readies(&database, &VPrintersDb::ready);
    QVERIFY(database.reindex());
    QCOMPARE(commits.size(), 1);
    QCOMPARE(loads.size(), 1);
    QCOMPARE(readies.size(), 1);
    QVERIFY(database.reindex());
    QCOMPARE(commits.size(), 1);
    QCOMPARE(loads.size(), 2);
}

void tst_maintenance::reindex_seesWhatAnotherProgramWrote()
{
    VPrintersDb database(path(u"shared.tdb"_s), u"key"_s);
    database.init(false);
    database.insert(printer(u"A"_s));
    database.commit();
    QVERIFY(makeFile(path(u"shared.tdb"_s), {printer(u"of another program"_s)}, u"key"_s));
    QCOMPARE(database.count(), 1);
    QVERIFY(database.reindex());
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"of another program"_s}));
}

void tst_maintenance::reindex_ofAFileThatCannotBeReadIsFalse()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    QSignalSpy loads(&database, &VPrintersDb::initialized);
    QSignalSpy errors(&database, &VPrintersDb::error);
    device.failAlways(FaultyDevice::Open);
    QVERIFY(!database.reindex());
    device.failAlways(FaultyDevice::Open, false);
    device.failAlways(FaultyDevice::Read);
    QVERIFY(!database.reindex());
    device.failAlways(FaultyDevice::Read, false);
    QCOMPARE(loads.size(), 0);
    QCOMPARE(errors.size(), 0);
    QVERIFY(database.isDirty());
    QCOMPARE(database.count(), 1);
    QVERIFY(database.reindex());
}

void tst_maintenance::reindex_beforeAnyLoadLoads()
{
    for (const QString &key : {u""_s, u"key"_s}) {
        const QString file = path(u"unloaded"_s + key);
        QVERIFY(makeFile(file, {printer(u"A"_s)}, key));
        VPrintersDb database(file, key);
        database.insert(printer(u"pending"_s));
        QVERIFY(database.reindex());
        QCOMPARE(namesIn(database), QStringList({u"A"_s, u"pending"_s}));
    }
}

void tst_maintenance::reindex_runsInTheCallersThread()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(true);
    database.insert(printer(u"A"_s));
    QList<QThread *> threads;
    for (const auto signal : {&VPrintersDb::initialized, &VPrintersDb::committed})
        connect(
            &database, signal, this, [&] { threads += QThread::currentThread(); },
            Qt::DirectConnection);
    QVERIFY(database.reindex());
    QCOMPARE(threads, QList<QThread *>(2, QThread::currentThread()));
}

QTEST_GUILESS_MAIN(tst_maintenance)
#include "tst_maintenance.moc"
