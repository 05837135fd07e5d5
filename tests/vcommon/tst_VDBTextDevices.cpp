// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Store.h"

#include <QtTest/QTest>

#include <limits>

using namespace Support;

namespace {

/// A device that says of itself what it is told to say.
class OddDevice : public FaultyDevice
{
public:
    using FaultyDevice::FaultyDevice;

    bool isSequential() const override { return saysSequential; }
    qint64 size() const override { return saysSize.value_or(FaultyDevice::size()); }
    bool seek(qint64 position) override { return !cannotSeek && FaultyDevice::seek(position); }

    bool saysSequential = false;
    bool cannotSeek = false;
    std::optional<qint64> saysSize;
};

QByteArray someBytes()
{
    return storeWith({{{u"A"_s, u"alpha"_s}, {u"B"_s, u"beta"_s}}});
}

} // namespace

/// Devices that are no files, and not what one would wish for.
class tst_VDBTextDevices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSequentialDevice_isRefused();
    void aDeviceThatIsOpenForSomethingElse_isRefused_data();
    void aDeviceThatIsOpenForSomethingElse_isRefused();
    void aDeviceThatCannotSeek_isAnError();
    void aDeviceLargerThanMemory_isAnError();
    void aDeviceThatHoldsLessThanItSays_isReadAsFarAsItGoes();
};

void tst_VDBTextDevices::aSequentialDevice_isRefused()
{
    OddDevice device(someBytes());
    device.saysSequential = true;
    VDBText store;
    QVERIFY(!store.open(&device));
    QCOMPARE(store.status(), VDBStatus::Io);
    QVERIFY(!store.errorString().isEmpty());
    QVERIFY(!device.isOpen());
}

void tst_VDBTextDevices::aDeviceThatIsOpenForSomethingElse_isRefused_data()
{
    QTest::addColumn<QIODevice::OpenMode>("mode");
    QTest::addColumn<QString>("purpose");
    QTest::addColumn<bool>("isTaken");
    const QIODevice::OpenMode readOnly = QIODevice::ReadOnly;
    const QIODevice::OpenMode writeOnly = QIODevice::WriteOnly;
    const QIODevice::OpenMode both = QIODevice::ReadWrite;
    QTest::newRow("for writing, to read") << writeOnly << toRead() << false;
    QTest::newRow("for writing, to write") << writeOnly << toWrite() << false;
    QTest::newRow("for reading, to write") << readOnly << toWrite() << false;
    QTest::newRow("for reading, to read") << readOnly << toRead() << true;
    QTest::newRow("for both, to read") << both << toRead() << true;
}

void tst_VDBTextDevices::aDeviceThatIsOpenForSomethingElse_isRefused()
{
    QFETCH(QIODevice::OpenMode, mode);
    QFETCH(QString, purpose);
    QFETCH(bool, isTaken);
    FaultyDevice device(someBytes());
    QVERIFY(device.open(mode));
    VDBText store;
    store.setKey({}, purpose);
    QCOMPARE(store.open(&device), isTaken);
    QCOMPARE(store.status(), isTaken ? VDBStatus::Ok : VDBStatus::Io);
    store.close();
    QVERIFY(device.isOpen());
}

void tst_VDBTextDevices::aDeviceThatCannotSeek_isAnError()
{
    OddDevice device(someBytes());
    device.cannotSeek = true;
    QCOMPARE(readStore(&device).status, VDBStatus::Io);
    device.cannotSeek = false;
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&device));
    QVERIFY(store.insert(record(u"C"_s, u"gamma"_s)));
    device.cannotSeek = true;
    store.close();
    QVERIFY(!store.wasDurable());
    QCOMPARE(device.bytes(), someBytes());
}

void tst_VDBTextDevices::aDeviceLargerThanMemory_isAnError()
{
    OddDevice device(someBytes());
    device.saysSize = std::numeric_limits<qint64>::max();
    VDBText store;
    QVERIFY(!store.open(&device));
    QCOMPARE(store.status(), VDBStatus::Io);
    QCOMPARE(store.errorString(), u"not enough memory for the file"_s);
    QVERIFY(!device.isOpen());
}

void tst_VDBTextDevices::aDeviceThatHoldsLessThanItSays_isReadAsFarAsItGoes()
{
    OddDevice device(someBytes());
    device.saysSize = device.bytes().size() + 1000;
    const Seen seen = readStore(&device);
    QCOMPARE(seen.status, VDBStatus::Ok);
    QCOMPARE(seen.sound.size(), 2);
    QVERIFY(seen.damage.empty());
}

QTEST_GUILESS_MAIN(tst_VDBTextDevices)
#include "tst_VDBTextDevices.moc"
