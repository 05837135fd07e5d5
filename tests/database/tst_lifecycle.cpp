// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>

#include <memory>

using namespace Support;

/// Construction, loading in the caller's thread, and destruction.
class tst_lifecycle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultFilename_isABareName();
    void construction_givesAReadyAndCleanObject();
    void construction_doesNotTouchTheFile();
    void construction_ownsTheFileItMakes();
    void construction_leavesAGivenDeviceToTheCaller();
    void init_createsAMissingFileAndSaysSoBeforeReturning();
    void init_loadsAnExistingFile();
    void init_withoutADeviceFails();
    void aFileWithoutAName_failsInSilence();
    void init_ofAForeignFileFailsAndLeavesIt();
    void init_afterAFailureRecovers();
    void init_thatFailsKeepsTheContent();
    void init_again_replacesTheContentButNotTheVolatileIds();
    void ready_followsTheMakingOfTheTimer();
    void destruction_writesPendingChanges();
    void destruction_reportsAFailedWrite();
    void destruction_withoutChangesDoesNotTouchTheFile();
    void key_opensItsOwnFilesOnly();

private:
    QString path(const char *name) const { return m_dir.filePath(QString::fromLatin1(name)); }

    QTemporaryDir m_dir;
};

void tst_lifecycle::defaultFilename_isABareName()
{
    QCOMPARE(VPrintersDb::defaultFilename(), u"Printers.tdb"_s);
}

void tst_lifecycle::construction_givesAReadyAndCleanObject()
{
    VPrintersDb database(path("fresh.tdb"), QString());
    QVERIFY(database.isReady());
    QVERIFY(!database.isNull());
    QVERIFY(!database.isDirty());
    QCOMPARE(database.count(), 0);
    database.waitForFinished();
}

void tst_lifecycle::construction_doesNotTouchTheFile()
{
    {
        VPrintersDb database(path("untouched.tdb"), QString());
    }
    QVERIFY(!QFile::exists(path("untouched.tdb")));
}

void tst_lifecycle::construction_ownsTheFileItMakes()
{
    VPrintersDb database(path("owned.tdb"), QString());
    const auto files = database.findChildren<QFile *>();
    QCOMPARE(files.size(), 1);
    QCOMPARE(files.first()->fileName(), path("owned.tdb"));
    QVERIFY(!files.first()->isOpen());
}

void tst_lifecycle::construction_leavesAGivenDeviceToTheCaller()
{
    QBuffer buffer;
    {
        VPrintersDb database(&buffer, QString());
        QVERIFY(database.findChildren<QIODevice *>().isEmpty());
        database.init(false);
        database.insert(printer(u"A"_s));
    }
    QVERIFY(!buffer.isOpen());
    QCOMPARE(stored(buffer.data()), storedFrom({printer(u"A"_s)}));
}

void tst_lifecycle::init_createsAMissingFileAndSaysSoBeforeReturning()
{
    VPrintersDb database(path("missing.tdb"), QString());
    QStringList events;
    connect(&database, &VPrintersDb::initialized, [&] { events += u"initialized"_s; });
    connect(&database, &VPrintersDb::ready, [&] { events += u"ready"_s; });
    connect(&database, &VPrintersDb::error, [&] { events += u"error"_s; });
    database.init(false);
    // ready() is re-emitted by a connection that is older than this test's to initialized().
    QCOMPARE(events, QStringList({u"ready"_s, u"initialized"_s}));
    QVERIFY(database.isReady());
    QVERIFY(QFile::exists(path("missing.tdb")));
    QCOMPARE(stored(path("missing.tdb")), Stored());
}

void tst_lifecycle::init_loadsAnExistingFile()
{
    QVERIFY(makeFile(path("existing.tdb"), printers({u"A"_s, u"B"_s})));
    const QByteArray before = bytesOf(path("existing.tdb"));
    VPrintersDb database(path("existing.tdb"), QString());
    database.init(false);
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"B"_s}));
    QVERIFY(!database.isDirty());
    QCOMPARE(bytesOf(path("existing.tdb")), before);
}

void tst_lifecycle::init_withoutADeviceFails()
{
    VPrintersDb database(static_cast<QIODevice *>(nullptr), u"key"_s);
    QSignalSpy errors(&database, &VPrintersDb::error);
    QSignalSpy readies(&database, &VPrintersDb::ready);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    database.init(false);
    QVERIFY(database.isNull());
    QVERIFY(!database.isReady());
    QCOMPARE(errors.size(), 1);
    QCOMPARE(readies.size(), 0);

    // It is still a catalogue in memory, whose commits end in silence.
    QVERIFY(database.insert(printer(u"A"_s)));
    database.commit();
    QCOMPARE(commits.size(), 0);
    QCOMPARE(errors.size(), 1);
    QVERIFY(database.isDirty());
}

// Every access reports that it has failed; Qt, which would print that, is not asked.
void tst_lifecycle::aFileWithoutAName_failsInSilence()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    VPrintersDb database(QString(), u"key"_s);
    QSignalSpy errors(&database, &VPrintersDb::error);
    database.init(false);
    QVERIFY(database.isNull());
    QCOMPARE(errors.size(), 1);
    QVERIFY(database.insert(printer(u"A"_s)));
    database.commit();
    QCOMPARE(errors.size(), 2);
    QVERIFY(database.isDirty());
    QVERIFY(!database.purge());
    QVERIFY(!database.reindex());
    database.init(true);
    database.commit();
    database.waitForFinished();
    QCOMPARE(errors.size(), 4);
    QCOMPARE(Support::namesIn(database), QStringList{u"A"_s});
}

void tst_lifecycle::init_ofAForeignFileFailsAndLeavesIt()
{
    QVERIFY(writeBytes(path("foreign.tdb"), "a letter to the editor\n"));
    VPrintersDb database(path("foreign.tdb"), QString());
    QSignalSpy errors(&database, &VPrintersDb::error);
    database.init(false);
    QVERIFY(database.isNull());
    QCOMPARE(errors.size(), 1);
    QCOMPARE(bytesOf(path("foreign.tdb")), "a letter to the editor\n");
}

void tst_lifecycle::init_afterAFailureRecovers()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    device.failAlways(FaultyDevice::Open);
    database.init(false);
    QVERIFY(database.isNull());
    device.failAlways(FaultyDevice::Open, false);
    database.init(false);
    QVERIFY(!database.isNull());
    QVERIFY(database.isReady());
}

void tst_lifecycle::init_thatFailsKeepsTheContent()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    database.init(false);
    database.insert(printers({u"A"_s, u"B"_s}));
    database.commit();
    device.failAlways(FaultyDevice::Open);
    database.init(false);
    QVERIFY(database.isNull());
    QCOMPARE(namesIn(database), QStringList({u"A"_s, u"B"_s}));
}

void tst_lifecycle::init_again_replacesTheContentButNotTheVolatileIds()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    database.insert(printer(u"stays"_s));
    database.commit();
    database.insert(printer(u"pending"_s));
    database.insertVolatile(printer(u"volatile"_s));
    database.init(false);
    QCOMPARE(namesIn(database), QStringList({u"stays"_s}));
    QVERIFY(database.isDirty());
    QVERIFY(database.isVolatile(printer(u"volatile"_s).dataId()));
    QCOMPARE(database.volatileCount(), 1);
}

void tst_lifecycle::ready_followsTheMakingOfTheTimer()
{
    VPrintersDb database(path("order.tdb"), QString());
    qsizetype timers = 0;
    connect(&database, &VPrintersDb::ready,
            [&] { timers = database.findChildren<QTimer *>().size(); });
    database.init(false);
    QCOMPARE(timers, 1);
}

void tst_lifecycle::destruction_writesPendingChanges()
{
    {
        VPrintersDb database(path("pending.tdb"), u"key"_s);
        database.init(false);
        database.insert(printers({u"A"_s, u"B"_s}));
    }
    QCOMPARE(stored(path("pending.tdb"), u"key"_s), storedFrom(printers({u"A"_s, u"B"_s})));
}

void tst_lifecycle::destruction_reportsAFailedWrite()
{
    FaultyDevice device;
    int errors = 0;
    {
        VPrintersDb database(&device, QString());
        database.init(false);
        database.insert(printer(u"A"_s));
        device.failAlways(FaultyDevice::Open);
        connect(&database, &VPrintersDb::error, [&] { ++errors; });
    }
    QCOMPARE(errors, 1);
}

void tst_lifecycle::destruction_withoutChangesDoesNotTouchTheFile()
{
    FaultyDevice device;
    auto database = std::make_unique<VPrintersDb>(&device, QString());
    database->init(false);
    const int opens = device.calls(FaultyDevice::Open);
    database.reset();
    QCOMPARE(device.calls(FaultyDevice::Open), opens);
}

void tst_lifecycle::key_opensItsOwnFilesOnly()
{
    QVERIFY(makeFile(path("keyed.tdb"), {printer(u"A"_s)}, u"mine"_s));
    const QByteArray before = bytesOf(path("keyed.tdb"));

    VPrintersDb other(path("keyed.tdb"), u"yours"_s);
    other.init(false);
    QVERIFY(other.isNull());

    VPrintersDb reader(path("keyed.tdb"), QString());
    reader.init(false);
    QVERIFY(!reader.isNull());
    QCOMPARE(namesIn(reader), QStringList({u"A"_s}));
    QSignalSpy errors(&reader, &VPrintersDb::error);
    reader.insert(printer(u"B"_s));
    reader.commit();
    QCOMPARE(errors.size(), 1);
    QCOMPARE(bytesOf(path("keyed.tdb")), before);
}

QTEST_GUILESS_MAIN(tst_lifecycle)
#include "tst_lifecycle.moc"
