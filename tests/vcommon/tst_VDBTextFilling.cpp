// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Support;

using State = QMap<QString, QString>;

namespace {

const State kOld = {{u"A"_s, u"old"_s}, {u"B"_s, u"kept"_s}};
const State kNew = {{u"A"_s, u"new"_s}, {u"B"_s, u"kept"_s}, {u"C"_s, u"added"_s}};
const State kChange = {{u"A"_s, u"new"_s}, {u"C"_s, u"added"_s}};
constexpr qsizetype kFilling = 3000;

QByteArray filled(const QByteArray &bytes, qsizetype size = kFilling)
{
    return bytes + QByteArray(size, '\n');
}

/// The content without filling.
QByteArray contentOf(QByteArray bytes)
{
    while (bytes.endsWith("\n\n"))
        bytes.chop(1);
    return bytes;
}

/// The lines that the change appends, without its seal, which is written after the sync.
QByteArray batchOf(const QByteArray &before)
{
    QByteArray bytes = before;
    QBuffer buffer(&bytes);
    return commit(&buffer, kChange) ? bytes.sliced(before.size()).chopped(2) : QByteArray();
}

State stateAfter(QByteArray bytes, const State &change)
{
    QBuffer buffer(&bytes);
    return commit(&buffer, change) ? readStore(bytes).sound : State();
}

/// A file on a disk that has room for so many bytes.
class SmallDisk : public QFile
{
public:
    SmallDisk(const QString &path, qint64 room)
        : QFile(path)
        , m_room(room)
    { }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        const qint64 left = std::min(size, m_room - pos());
        return left <= 0 ? -1 : QFile::writeData(data, left);
    }

private:
    const qint64 m_room;
};

} // namespace

class tst_VDBTextFilling : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void file_keepsRoomBehindItsContent();
    void file_holdsWhatADeviceWithoutFillingHolds();
    void smallFile_staysSmall();
    void purge_leavesNoFilling();
    void filling_isNoDamageWhereverItStands();
    void batch_tornAtAnyByteIsOldOrNew();
    void batch_withAnySectorStillFillingIsOldOrNew();
    void lostSeal_harmsNothing();
    void failedBatch_becomesFillingAgain();
    void fullDisk_costsTheFillingFirst();
    void fullDisk_leavesTheFileAsItWas();

private:
    QByteArray bytes() const;

    QTemporaryDir m_folder;
    QString m_path;
    int m_count = 0;
};

/// A new store in a file.
void tst_VDBTextFilling::init()
{
    m_path = m_folder.filePath(u"%1.tdb"_s.arg(++m_count));
    QFile file(m_path);
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.close();
}

QByteArray tst_VDBTextFilling::bytes() const
{
    QFile file(m_path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_VDBTextFilling::file_keepsRoomBehindItsContent()
{
    QFile file(m_path);
    QVERIFY(commit(&file, {{u"A"_s, QString(10'000, u'a')}}));
    const QByteArray before = bytes();
    QVERIFY(before.size() > contentOf(before).size() + 1000);
    for (int i = 0; i < 5; ++i)
        QVERIFY(commit(&file, {{u"B"_s, QString::number(i)}}));
    QCOMPARE(bytes().size(), before.size());
    QVERIFY(bytes().startsWith(contentOf(before)));
}

void tst_VDBTextFilling::file_holdsWhatADeviceWithoutFillingHolds()
{
    QFile file(m_path);
    QList<State> batches;
    for (int i = 0; i < 20; ++i) {
        batches.append({{u"A"_s, QString(i * 100, u'a')}, {QString::number(i), u"x"_s}});
        QVERIFY(commit(&file, batches.last()));
        QCOMPARE(contentOf(bytes()), storeWith(batches));
    }
    QVERIFY(readStore(&file).damage.empty());
}

void tst_VDBTextFilling::smallFile_staysSmall()
{
    QCOMPARE(bytes(), storeWith({}));
    QFile file(m_path);
    for (const int size : {10, 1000, 100'000, 1'000'000, 10'000'000}) {
        QVERIFY(commit(&file, {{u"A"_s, QString(size, u'a')}}));
        const qsizetype content = contentOf(bytes()).size();
        const qsizetype filling = bytes().size() - content;
        QVERIFY(filling > 0);
        QVERIFY(filling <= std::min(content / 2, std::max(content / 50, qsizetype(64 * 1024))) + 2);
    }
}

void tst_VDBTextFilling::purge_leavesNoFilling()
{
    QFile file(m_path);
    QVERIFY(commit(&file, kOld));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    QVERIFY(store.purge());
    store.close();
    QCOMPARE(bytes(), storeWith({kOld}));
}

void tst_VDBTextFilling::filling_isNoDamageWhereverItStands()
{
    const QByteArray whole = storeWith({kOld, kChange});
    for (qsizetype at = whole.indexOf('\n') + 1; at > 0; at = whole.indexOf('\n', at) + 1) {
        if (at < storeWith({}).size())
            continue; // Between the copies of the header.
        QByteArray bytes = whole;
        const Seen seen = readStore(bytes.insert(at, QByteArray(10'000, '\n')));
        QCOMPARE(seen.sound, kNew);
        QVERIFY(seen.damage.empty());
    }
}

void tst_VDBTextFilling::batch_tornAtAnyByteIsOldOrNew()
{
    const QByteArray before = storeWith({kOld});
    const QByteArray batch = batchOf(before);
    State expected = kOld;
    for (qsizetype size = 0; size <= batch.size(); ++size) {
        // A line feed of filling stands in for the last byte.
        if (size == batch.size() - 1)
            expected = kNew;
        const QByteArray bytes = filled(before + batch.first(size));
        const Seen seen = readStore(bytes);
        QVERIFY2(seen.sound == expected, qPrintable(u"at byte %1"_s.arg(size)));
        QCOMPARE(seen.damagedRecords, 0);
        State later = expected;
        later.insert(u"N"_s, u"later"_s);
        QCOMPARE(stateAfter(bytes, {{u"N"_s, u"later"_s}}), later);
        QCOMPARE(stateAfter(bytes, kChange), kNew);
    }
}

void tst_VDBTextFilling::batch_withAnySectorStillFillingIsOldOrNew()
{
    const QByteArray before = storeWith({kOld});
    const QByteArray batch = batchOf(before);
    constexpr qsizetype kSector = 64; // Smaller than any disk's: more ways to be torn.
    const auto sectors = std::size_t(batch.size() / kSector + 1);
    QVERIFY(sectors < 12);
    for (std::size_t written = 0; written < std::size_t(1) << sectors; ++written) {
        QByteArray torn = batch;
        for (std::size_t sector = 0; sector < sectors; ++sector) {
            const qsizetype begin = qsizetype(sector) * kSector;
            const qsizetype size = std::min(kSector, batch.size() - begin);
            if ((written >> sector & 1) == 0)
                torn.replace(begin, size, QByteArray(size, '\n'));
        }
        const State found = readStore(filled(before + torn)).sound;
        QVERIFY2(found == (torn == batch ? kNew : kOld), qPrintable(QString::number(written)));
        State later = found;
        later.insert(u"N"_s, u"later"_s);
        QCOMPARE(stateAfter(filled(before + torn), {{u"N"_s, u"later"_s}}), later);
    }
}

void tst_VDBTextFilling::lostSeal_harmsNothing()
{
    const QByteArray before = storeWith({kOld});
    const QByteArray bytes = filled(before.chopped(2) + "\n\n" + batchOf(before));
    QCOMPARE(readStore(bytes).sound, kNew);
    QVERIFY(readStore(bytes).damage.empty());
}

void tst_VDBTextFilling::failedBatch_becomesFillingAgain()
{
    for (const auto call : {FaultyDevice::Write, FaultyDevice::Sync}) {
        const QByteArray before = filled(storeWith({kOld}));
        FaultyDevice device(before);
        device.failAt(call, 1);
        QVERIFY(!commit(&device, kChange));
        QCOMPARE(device.bytes(), before);
        QVERIFY(commit(&device, kChange));
        QCOMPARE(device.bytes().size(), before.size());
        QCOMPARE(readStore(device.bytes()).sound, kNew);
        QVERIFY(readStore(device.bytes()).damage.empty());
    }
}

void tst_VDBTextFilling::fullDisk_costsTheFillingFirst()
{
    const qsizetype need = storeWith({kOld}).size();
    for (qint64 room = need; room <= need + 300; room += 100) {
        init();
        SmallDisk file(m_path, room);
        QVERIFY(commit(&file, kOld));
        QCOMPARE(contentOf(bytes()), storeWith({kOld}));
        QVERIFY(bytes().size() <= room);
    }
}

void tst_VDBTextFilling::fullDisk_leavesTheFileAsItWas()
{
    QFile roomy(m_path);
    QVERIFY(commit(&roomy, kOld));
    const QByteArray before = bytes();
    const State large = {{u"C"_s, QString(100'000, u'c')}};
    for (const qint64 room : {before.size(), before.size() + 5000, before.size() + 90'000}) {
        SmallDisk file(m_path, room);
        VDBText store;
        store.setKey({}, toWrite());
        QVERIFY(store.open(&file));
        store.insert(record(u"C"_s, large.value(u"C"_s)));
        store.close();
        QVERIFY(!store.wasDurable());
        QCOMPARE(bytes(), before);
        QVERIFY(store.open(&file));
        store.insert(record(u"A"_s, u"old"_s)); // The filling has room for this one.
        store.close();
        QVERIFY(store.wasDurable());
        QCOMPARE(readStore(&roomy).sound, kOld);
        QVERIFY(roomy.open(QIODevice::WriteOnly) && roomy.write(before) == before.size());
        roomy.close();
    }
}

QTEST_GUILESS_MAIN(tst_VDBTextFilling)
#include "tst_VDBTextFilling.moc"
