// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

using namespace Support;

/// Devices that fail: nothing is acknowledged that is not written, and nothing pending is lost.
class tst_faults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_thatFails_reportsAndRecovers_data();
    void load_thatFails_reportsAndRecovers();
    void commit_thatFailsAtAnyCall_isRepeatedByTheNext_data();
    void commit_thatFailsAtAnyCall_isRepeatedByTheNext();
    void commit_inTheBackgroundThatFails_keepsTheChanges();
    void destructor_triesOnceMore();
};

void tst_faults::load_thatFails_reportsAndRecovers_data()
{
    QTest::addColumn<FaultyDevice::Call>("call");
    QTest::addColumn<bool>("isNew");
    QTest::newRow("a new device does not open") << FaultyDevice::Open << true;
    QTest::newRow("a new device does not sync") << FaultyDevice::Sync << true;
    QTest::newRow("a file does not open") << FaultyDevice::Open << false;
    QTest::newRow("a file cannot be read") << FaultyDevice::Read << false;
}

void tst_faults::load_thatFails_reportsAndRecovers()
{
    QFETCH(FaultyDevice::Call, call);
    QFETCH(bool, isNew);
    FaultyDevice device;
    if (!isNew) {
        VPrintersDb writer(&device, QString());
        writer.init(false);
        writer.insert(printer(u"A"_s));
    }
    const QByteArray before = device.bytes();
    VPrintersDb database(&device, QString());
    QSignalSpy errors(&database, &VPrintersDb::error);
    QSignalSpy loads(&database, &VPrintersDb::initialized);
    device.failAlways(call);
    database.init(false);
    QVERIFY(database.isNull());
    QVERIFY(!database.isReady());
    QCOMPARE(errors.size(), 1);
    QCOMPARE(loads.size(), 0);
    device.failAlways(call, false);
    if (!isNew)
        QCOMPARE(device.bytes(), before);
    database.init(false);
    QVERIFY(database.isReady());
    QCOMPARE(database.count(), isNew ? 0 : 1);
}

void tst_faults::commit_thatFailsAtAnyCall_isRepeatedByTheNext_data()
{
    QTest::addColumn<FaultyDevice::Call>("call");
    QTest::newRow("open") << FaultyDevice::Open;
    QTest::newRow("read") << FaultyDevice::Read;
    QTest::newRow("write") << FaultyDevice::Write;
    QTest::newRow("sync") << FaultyDevice::Sync;
}

// Fails the first call of a kind that a commit makes, then the second, until a commit makes no
// more.
void tst_faults::commit_thatFailsAtAnyCall_isRepeatedByTheNext()
{
    QFETCH(FaultyDevice::Call, call);
    int failures = 0;
    bool hasFailed = true;
    for (int n = 1; hasFailed; ++n) {
        FaultyDevice device;
        VPrintersDb database(&device, u"key"_s);
        database.init(false);
        database.insert(printers({u"A"_s, u"B"_s}));
        database.commit();
        database.insert(printer(u"C"_s));
        database.remove(printer(u"A"_s));
        QSignalSpy errors(&database, &VPrintersDb::error);
        QSignalSpy commits(&database, &VPrintersDb::committed);
        device.failAt(call, n);
        database.commit();
        hasFailed = commits.isEmpty();
        failures += hasFailed ? 1 : 0;
        QCOMPARE(errors.size(), hasFailed ? 1 : 0);
        QCOMPARE(database.isDirty(), hasFailed);
        if (hasFailed) {
            // Before or after, never between. What was not synced may be there, or not.
            const Stored found = stored(device.bytes(), u"key"_s);
            QVERIFY(found == storedFrom(printers({u"A"_s, u"B"_s}))
                    || found == storedFrom(printers({u"B"_s, u"C"_s})));
            database.commit();
            QCOMPARE(commits.size(), 1);
        }
        QVERIFY(!database.isDirty());
        QCOMPARE(stored(device.bytes(), u"key"_s), storedFrom(printers({u"B"_s, u"C"_s})));
        QVERIFY(n < 100);
    }
    QVERIFY(failures > 0);
}

void tst_faults::commit_inTheBackgroundThatFails_keepsTheChanges()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    database.init(true);
    database.waitForFinished();
    QSignalSpy errors(&database, &VPrintersDb::error);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    database.insert(printer(u"A"_s));
    device.failAlways(FaultyDevice::Sync);
    database.commit();
    database.waitForFinished();
    QCOMPARE(errors.size(), 1);
    QVERIFY(database.isDirty());
    // It is the load that says whether there is a database at all.
    QVERIFY(!database.isNull());
    device.failAlways(FaultyDevice::Sync, false);
    database.commit();
    database.waitForFinished();
    QCOMPARE(commits.size(), 1);
    QCOMPARE(stored(device.bytes()), storedFrom({printer(u"A"_s)}));
}

void tst_faults::destructor_triesOnceMore()
{
    FaultyDevice device;
    {
        VPrintersDb database(&device, QString());
        database.init(false);
        database.insert(printer(u"A"_s));
        device.failAt(FaultyDevice::Sync, 1);
        database.commit();
        QVERIFY(database.isDirty());
    }
    QCOMPARE(stored(device.bytes()), storedFrom({printer(u"A"_s)}));
}

QTEST_GUILESS_MAIN(tst_faults)
#include "tst_faults.moc"
