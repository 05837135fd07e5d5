// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Store.h"

#include <QtTest/QTest>

using namespace Support;

using State = QMap<QString, QString>;

namespace {

const State kOld = {{u"A"_s, u"old"_s}, {u"B"_s, u"kept"_s}};
const State kNew = {{u"A"_s, u"new"_s}, {u"B"_s, u"kept"_s}, {u"C"_s, u"added"_s}};
const State kChange = {{u"A"_s, u"new"_s}, {u"C"_s, u"added"_s}};

QByteArray oldBytes()
{
    return storeWith({kOld});
}

} // namespace

class tst_VDBTextFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commit_withOneFailingCallIsOldOrNew_data();
    void commit_withOneFailingCallIsOldOrNew();
    void commit_isNeverAcknowledgedWhenTheSyncFails();
    void commit_onADeviceThatKeepsFailingChangesNothingThatIsStored();
    void commit_overFillingOnADeviceThatKeepsFailingChangesNothing();
    void commit_behindAnUnfinishedBatchIsOldOrNew();
    void commit_takesShortWrites();
    void create_thatFailsCanBeDoneAgain();
    void open_thatCannotReadSaysSo();
    void purge_thatCannotReadOrWriteSaysSo_data();
    void purge_thatCannotReadOrWriteSaysSo();
    void purge_thatCannotWriteThePendingBatchChangesNothing();
    void failedBatch_doesNotReachTheNextOne();
};

void tst_VDBTextFaults::commit_withOneFailingCallIsOldOrNew_data()
{
    QTest::addColumn<FaultyDevice::Call>("call");
    QTest::newRow("an open fails") << FaultyDevice::Open;
    QTest::newRow("a read fails") << FaultyDevice::Read;
    QTest::newRow("a write fails half way") << FaultyDevice::Write;
    QTest::newRow("a sync fails") << FaultyDevice::Sync;
}

void tst_VDBTextFaults::commit_withOneFailingCallIsOldOrNew()
{
    QFETCH(FaultyDevice::Call, call);
    for (int n = 1;; ++n) {
        FaultyDevice device(oldBytes());
        device.failAt(call, n);
        const bool acknowledged = commit(&device, kChange);
        const bool hasFailed = device.calls(call) >= n;
        const State found = readStore(device.bytes()).sound;
        QVERIFY(found == kNew || (found == kOld && !acknowledged));
        QVERIFY(device.bytes().startsWith(oldBytes()));
        device.failAt(call, 0); // Not any more.
        QVERIFY(commit(&device, kChange));
        QCOMPARE(readStore(device.bytes()).sound, kNew);
        QCOMPARE(readStore(device.bytes()).damagedRecords, 0);
        if (!hasFailed)
            break;
    }
}

void tst_VDBTextFaults::commit_isNeverAcknowledgedWhenTheSyncFails()
{
    FaultyDevice device(oldBytes());
    device.failAlways(FaultyDevice::Sync);
    QVERIFY(!commit(&device, kChange));
    QVERIFY(!commit(&device, kChange));
    device.failAlways(FaultyDevice::Sync, false);
    QVERIFY(commit(&device, kChange));
    QCOMPARE(readStore(device.bytes()).sound, kNew);
}

void tst_VDBTextFaults::commit_onADeviceThatKeepsFailingChangesNothingThatIsStored()
{
    FaultyDevice device(oldBytes());
    device.failAlways(FaultyDevice::Write);
    for (int i = 0; i < 5; ++i) {
        QVERIFY(!commit(&device, kChange));
        QCOMPARE(readStore(device.bytes()).sound, kOld);
    }
    device.failAlways(FaultyDevice::Write, false);
    QVERIFY(commit(&device, kChange));
    QCOMPARE(readStore(device.bytes()).sound, kNew);
}

void tst_VDBTextFaults::commit_overFillingOnADeviceThatKeepsFailingChangesNothing()
{
    FaultyDevice device(oldBytes() + QByteArray(5000, '\n'));
    device.failAlways(FaultyDevice::Write);
    VDBText store;
    store.setKey({}, toWrite());
    for (int i = 0; i < 2; ++i) {
        QVERIFY(store.open(&device));
        QVERIFY(store.insert(record(u"A"_s, u"new"_s)));
        store.close();
        QVERIFY(!store.wasDurable());
        QCOMPARE(readStore(device.bytes()).sound, kOld);
    }
    device.failAlways(FaultyDevice::Write, false);
    QVERIFY(commit(&device, kChange));
    QCOMPARE(readStore(device.bytes()).sound, kNew);
}

// The mark that makes the unfinished one void goes ahead, and is synced by itself.
void tst_VDBTextFaults::commit_behindAnUnfinishedBatchIsOldOrNew()
{
    QByteArray unfinished = storeWith({kOld, {{u"A"_s, u"never"_s}}});
    unfinished.truncate(unfinished.lastIndexOf("\n=\t") + 1);
    for (const auto call : {FaultyDevice::Write, FaultyDevice::Sync}) {
        for (int n = 1; n <= 4; ++n) {
            FaultyDevice device(unfinished);
            device.failAt(call, n);
            const bool acknowledged = commit(&device, kChange);
            const State found = readStore(device.bytes()).sound;
            QVERIFY(found == kNew || (found == kOld && !acknowledged));
            device.failAt(call, 0);
            QVERIFY(commit(&device, kChange));
            QCOMPARE(readStore(device.bytes()).sound, kNew);
        }
    }
}

void tst_VDBTextFaults::commit_takesShortWrites()
{
    class ShortDevice : public FaultyDevice
    {
    public:
        using FaultyDevice::FaultyDevice;

    protected:
        qint64 writeData(const char *data, qint64 size) override
        {
            return FaultyDevice::writeData(data, std::min<qint64>(size, 7));
        }
    };
    ShortDevice device(oldBytes());
    QVERIFY(commit(&device, kChange));
    QCOMPARE(readStore(device.bytes()).sound, kNew);
}

void tst_VDBTextFaults::create_thatFailsCanBeDoneAgain()
{
    for (const auto call : {FaultyDevice::Open, FaultyDevice::Write, FaultyDevice::Sync}) {
        FaultyDevice device;
        device.failAt(call, 1);
        VDBText store;
        QVERIFY(!createStore(store, &device));
        QCOMPARE(store.status(), VDBStatus::Io);
        if (call == FaultyDevice::Sync)
            continue; // All of the header is there; whether it stays is the device's secret.
        QVERIFY(createStore(store, &device)); // Though this device cannot be cut.
        store.close();
        QCOMPARE(device.bytes(), storeWith({}));
    }
}

void tst_VDBTextFaults::open_thatCannotReadSaysSo()
{
    FaultyDevice device(oldBytes());
    device.failAlways(FaultyDevice::Read);
    QCOMPARE(readStore(&device).status, VDBStatus::Io);
    QVERIFY(!device.isOpen());
    QCOMPARE(device.bytes(), oldBytes());
}

void tst_VDBTextFaults::purge_thatCannotReadOrWriteSaysSo_data()
{
    QTest::addColumn<FaultyDevice::Call>("call");
    QTest::addColumn<int>("n");
    QTest::newRow("no line can be read") << FaultyDevice::Read << 1;
    QTest::newRow("the new content cannot be written") << FaultyDevice::Write << 1;
    QTest::newRow("what is left over cannot be made blank") << FaultyDevice::Write << 2;
    QTest::newRow("it cannot be synced") << FaultyDevice::Sync << 1;
}

void tst_VDBTextFaults::purge_thatCannotReadOrWriteSaysSo()
{
    QFETCH(FaultyDevice::Call, call);
    QFETCH(int, n);
    FaultyDevice device(storeWith({kOld, kChange})); // It is longer than what is live.
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&device));
    device.failAt(call, n);
    QVERIFY(!store.purge());
    QCOMPARE(store.status(), VDBStatus::Io);
    store.close();
}

void tst_VDBTextFaults::purge_thatCannotWriteThePendingBatchChangesNothing()
{
    FaultyDevice device(oldBytes());
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&device));
    QVERIFY(store.insert(record(u"A"_s, u"new"_s)));
    device.failAlways(FaultyDevice::Write);
    QVERIFY(!store.purge());
    QVERIFY(!store.wasDurable());
    store.close();
    QCOMPARE(readStore(device.bytes()).sound, kOld);
}

void tst_VDBTextFaults::failedBatch_doesNotReachTheNextOne()
{
    FaultyDevice device(oldBytes());
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&device));
    store.insert(record(u"X"_s, u"lost"_s));
    device.failAlways(FaultyDevice::Write);
    store.close();
    QVERIFY(!store.wasDurable());
    QCOMPARE(store.status(), VDBStatus::Io);
    device.failAlways(FaultyDevice::Write, false);
    QVERIFY(store.open(&device));
    QVERIFY(!store.contains(u"X"_s));
    store.close();
    QVERIFY(store.wasDurable());
    QCOMPARE(readStore(device.bytes()).sound, kOld);
}

QTEST_GUILESS_MAIN(tst_VDBTextFaults)
#include "tst_VDBTextFaults.moc"
