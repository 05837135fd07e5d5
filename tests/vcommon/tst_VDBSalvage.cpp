// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Store.h"

#include <vcommon/VDBSalvage.h>

#include <QtTest/QTest>

using namespace Support;
using Proof = VDBSalvagedRecord::Proof;
using Texts = QMap<QString, QString>;

namespace {

/// What is left of the bytes.
struct Salvaged
{
    VDBStatus status = VDBStatus::Ok;
    bool isKeyed = false;
    Texts sound;
    Texts unproven;
    QStringList unfinished;
    QMap<QString, qint64> offsets;
    QList<VDBDamage> damage;
};

Salvaged salvage(QByteArray bytes, const QString &key = {})
{
    QBuffer buffer(&bytes);
    VDBSalvage reader(u"id"_s);
    Salvaged result;
    result.status = reader.read(&buffer, key, {});
    result.isKeyed = reader.isKeyed();
    result.damage = reader.damage();
    for (qsizetype i = 0; i < reader.count(); ++i) {
        const VDBSalvagedRecord found = reader.record(i);
        const QString text = found.record.search(u"text"_s).value().toString();
        (found.proof == Proof::None ? result.unproven : result.sound).insert(found.id, text);
        if (found.isUnfinished)
            result.unfinished.append(found.id);
        result.offsets.insert(found.id, found.record.offset());
    }
    return result;
}

/// Three batches: a record, three records, and one that replaces, removes and adds.
QByteArray sample(const QString &key = {})
{
    return storeWith({{{u"A"_s, u"alpha"_s}},
                      {{u"B"_s, u"beta"_s}, {u"C"_s, u"gamma"_s}, {u"D"_s, u"delta"_s}},
                      {{u"B"_s, u"BETA"_s}, {u"D"_s, QString()}, {u"E"_s, u"epsilon"_s}}},
                     key);
}

const Texts kWhole = {
    {u"A"_s, u"alpha"_s}, {u"B"_s, u"BETA"_s}, {u"C"_s, u"gamma"_s}, {u"E"_s, u"epsilon"_s}};
/// Whatever the sample held at any time.
const QSet<QString> kTexts = {u"alpha"_s, u"beta"_s,  u"BETA"_s,
                              u"gamma"_s, u"delta"_s, u"epsilon"_s};

/// The records of the sample whose lines the bytes from `begin` to `end` do not touch.
Texts untouched(const QByteArray &bytes, qsizetype begin, qsizetype end)
{
    Texts texts;
    const Salvaged whole = salvage(bytes);
    for (auto at = whole.offsets.begin(); at != whole.offsets.end(); ++at) {
        if (end <= *at || begin >= bytes.indexOf('\n', *at))
            texts.insert(at.key(), whole.sound.value(at.key()));
    }
    return texts;
}

/// True when `texts` holds all of `least`, and nothing that the sample never held.
bool holds(const Texts &texts, const Texts &least)
{
    for (auto text = least.begin(); text != least.end(); ++text) {
        if (texts.value(text.key()) != *text)
            return false;
    }
    return std::all_of(texts.begin(), texts.end(),
                       [](const QString &text) { return kTexts.contains(text); });
}

} // namespace

class tst_VDBSalvage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSoundFile_givesWhatAReaderSees();
    void withoutAnyHeader_everyRecordIsFound();
    void whateverBecameOfLineEnds_everyRecordIsFound_data();
    void whateverBecameOfLineEnds_everyRecordIsFound();
    void aLostLineEnd_costsNothing();
    void aZeroedBlock_costsWhatItTouches();
    void aFlippedBit_costsOneRecordAtMost();
    void cutAnywhere_everyWholeLineIsFound();
    void aBatchWithoutItsEnd_countsButForRemovals();
    void aVoidBatch_onlyFillsGaps();
    void aVoidBatch_bringsNothingBackThatWasRemoved();
    void whatAnInterruptedBatchLeft_isUnfinished();
    void aDamagedRecord_isGivenWhenNothingSoundIsLeft();
    void damageBehindASoundVersion_isReportedOnly();
    void theKey_provesRecords();
    void withoutItsKey_sumsProveRecords();
    void aRecordOfAnotherKey_isUnproven();
    void anotherKey_isRefused();
    void whatIsNoDatabase_isSaidSo_data();
    void whatIsNoDatabase_isSaidSo();
    void hostileBytes_endInTime();
    void aRecordWithoutAnId_isReportedOnly();
    void theFile_isOnlyRead();
    void whatCannotBeRead_isSaidWhy();
};

void tst_VDBSalvage::aSoundFile_givesWhatAReaderSees()
{
    const Salvaged found = salvage(sample());
    QCOMPARE(found.status, VDBStatus::Ok);
    QCOMPARE(found.sound, kWhole);
    QVERIFY(found.unproven.isEmpty());
    QVERIFY(found.unfinished.isEmpty());
    QVERIFY(found.damage.isEmpty());
    QVERIFY(!found.isKeyed);
    QCOMPARE(salvage(sample() + sample()).sound, kWhole);
}

void tst_VDBSalvage::withoutAnyHeader_everyRecordIsFound()
{
    const QByteArray whole = sample();
    const qsizetype headers = storeWith({}).size();
    for (const QByteArray &start : {""_ba, "\n"_ba, QByteArray(headers, '\0'), "garbage "_ba,
                                    QByteArray(headers, 'x') + "\n"}) {
        const Salvaged found = salvage(start + whole.sliced(headers));
        QCOMPARE(found.status, VDBStatus::Ok);
        QCOMPARE(found.sound, kWhole);
        QVERIFY(found.unfinished.isEmpty());
    }
}

void tst_VDBSalvage::whateverBecameOfLineEnds_everyRecordIsFound_data()
{
    QTest::addColumn<QByteArray>("lineEnd");
    QTest::newRow("carriage return and line feed") << "\r\n"_ba;
    QTest::newRow("carriage returns") << "\r"_ba;
    QTest::newRow("NULs") << "\0"_ba;
    QTest::newRow("blanks") << " "_ba;
    QTest::newRow("several") << "\n\n\n"_ba;
}

void tst_VDBSalvage::whateverBecameOfLineEnds_everyRecordIsFound()
{
    QFETCH(QByteArray, lineEnd);
    for (const QString &key : {QString(), u"secret"_s}) {
        const Salvaged found = salvage(sample(key).replace("\n", lineEnd), key);
        QCOMPARE(found.status, VDBStatus::Ok);
        QCOMPARE(found.sound, kWhole);
    }
}

void tst_VDBSalvage::aLostLineEnd_costsNothing()
{
    const QByteArray whole = sample();
    for (qsizetype at = whole.indexOf('\n'); at >= 0; at = whole.indexOf('\n', at + 1)) {
        QByteArray bytes = whole;
        const Salvaged found = salvage(bytes.remove(at, 1));
        QVERIFY2(found.sound == kWhole, qPrintable(u"at byte %1"_s.arg(at)));
    }
}

void tst_VDBSalvage::aZeroedBlock_costsWhatItTouches()
{
    const QByteArray whole = sample();
    for (const qsizetype size : {1, 16, 100, 300}) {
        for (qsizetype begin = 0; begin < whole.size(); begin += size / 2 + 1) {
            const qsizetype end = std::min(begin + size, whole.size());
            QByteArray bytes = whole;
            bytes.replace(begin, end - begin, QByteArray(end - begin, '\0'));
            const Salvaged found = salvage(bytes);
            const QString where = u"%1 bytes at %2"_s.arg(size).arg(begin);
            QVERIFY2(holds(found.sound, untouched(whole, begin, end)), qPrintable(where));
            QVERIFY2(found.sound == kWhole || !found.damage.isEmpty(), qPrintable(where));
        }
    }
}

void tst_VDBSalvage::aFlippedBit_costsOneRecordAtMost()
{
    for (const QString &key : {QString(), u"secret"_s}) {
        const QByteArray whole = sample(key);
        for (qsizetype at = 0; at < whole.size(); ++at) {
            QByteArray bytes = whole;
            bytes[at] = char(uchar(bytes[at]) ^ (1U << (at % 8)));
            const Salvaged found = salvage(bytes, key);
            const QString where = u"bit %1 of byte %2"_s.arg(at % 8).arg(at);
            QVERIFY2(found.status == VDBStatus::Ok, qPrintable(where));
            QVERIFY2(holds(found.sound, untouched(whole, at, at + 1)), qPrintable(where));
        }
    }
}

void tst_VDBSalvage::cutAnywhere_everyWholeLineIsFound()
{
    const QByteArray whole = sample();
    for (qsizetype size = storeWith({}).size(); size <= whole.size(); ++size) {
        const Salvaged found = salvage(whole.first(size));
        QVERIFY2(holds(found.sound, untouched(whole, size, whole.size())),
                 qPrintable(u"at byte %1"_s.arg(size)));
    }
}

void tst_VDBSalvage::aBatchWithoutItsEnd_countsButForRemovals()
{
    QByteArray bytes = sample();
    bytes.truncate(bytes.lastIndexOf("\n=\t") + 1);
    const Salvaged found = salvage(bytes);
    Texts expected = kWhole;
    expected.insert(u"D"_s, u"delta"_s);
    QCOMPARE(found.sound, expected);
    QCOMPARE(found.unfinished, QStringList({u"B"_s, u"E"_s}));
}

void tst_VDBSalvage::aVoidBatch_onlyFillsGaps()
{
    QByteArray bytes = sample();
    bytes.truncate(bytes.lastIndexOf("\n=\t") + 1);
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"N"_s, u"alpha"_s}}));
    QVERIFY(bytes.contains("\n~\n"));
    const Salvaged found = salvage(bytes);
    QCOMPARE(found.sound.value(u"B"_s), u"beta"_s);
    QCOMPARE(found.sound.value(u"D"_s), u"delta"_s);
    QCOMPARE(found.sound.value(u"E"_s), u"epsilon"_s);
    QCOMPARE(found.unfinished, QStringList{u"E"_s});
}

void tst_VDBSalvage::aVoidBatch_bringsNothingBackThatWasRemoved()
{
    QByteArray bytes = sample();
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"D"_s, u"delta"_s}}));
    bytes.truncate(bytes.lastIndexOf("\n=\t") + 1);
    QVERIFY(commit(&buffer, {{u"N"_s, u"alpha"_s}}));
    QVERIFY(bytes.contains("\n~\n"));
    QVERIFY(!salvage(bytes).sound.contains(u"D"_s));
}

// The mark that separates it from the next batch is gone, too.
void tst_VDBSalvage::whatAnInterruptedBatchLeft_isUnfinished()
{
    QByteArray bytes = sample();
    bytes.truncate(bytes.lastIndexOf("\n=\t") + 1);
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"N"_s, u"alpha"_s}}));
    bytes.replace("\n~\n", "\n");
    const Salvaged found = salvage(bytes);
    QCOMPARE(found.sound.value(u"D"_s), u"delta"_s);
    QCOMPARE(found.unfinished, QStringList({u"B"_s, u"E"_s}));
}

void tst_VDBSalvage::aDamagedRecord_isGivenWhenNothingSoundIsLeft()
{
    QByteArray bytes = sample();
    bytes.replace("gamma", "gamba");
    const Salvaged found = salvage(bytes);
    QCOMPARE(found.unproven, (Texts{{u"C"_s, u"gamba"_s}}));
    QCOMPARE(found.sound.size(), kWhole.size() - 1);
    QCOMPARE(found.damage.size(), 1);
    QCOMPARE(found.damage[0].id, u"C"_s);
    QCOMPARE(found.damage[0].offset, found.offsets.value(u"C"_s));
    QCOMPARE(found.damage[0].reason, VDBDamage::Reason::BadSignature);
    // One that is removed later is not missed.
    bytes.replace("delta", "dolta");
    QVERIFY(!salvage(bytes).unproven.contains(u"D"_s));
    // Not even the beginning of its line is needed.
    const qsizetype line = bytes.lastIndexOf('\n', bytes.indexOf("gamba")) + 1;
    bytes.replace(line, 5, "?????");
    QCOMPARE(salvage(bytes).unproven, (Texts{{u"C"_s, u"gamba"_s}}));
}

void tst_VDBSalvage::damageBehindASoundVersion_isReportedOnly()
{
    QByteArray bytes = sample();
    bytes.replace("BETA", "BETO");
    const Salvaged found = salvage(bytes);
    QCOMPARE(found.sound.value(u"B"_s), u"beta"_s);
    QVERIFY(found.unproven.isEmpty());
    QCOMPARE(found.damage.size(), 1);
    QVERIFY(found.damage[0].offset > found.offsets.value(u"B"_s));
}

void tst_VDBSalvage::theKey_provesRecords()
{
    for (const bool hasHeader : {true, false}) {
        QByteArray bytes = sample(u"secret"_s);
        if (!hasHeader)
            bytes = bytes.sliced(storeWith({}, u"secret"_s).size());
        QBuffer buffer(&bytes);
        VDBSalvage reader(u"id"_s);
        QCOMPARE(reader.read(&buffer, u"secret"_s, {}), VDBStatus::Ok);
        QVERIFY(reader.isKeyed());
        QCOMPARE(reader.hasHeader(), hasHeader);
        QCOMPARE(reader.count(), kWhole.size());
        for (qsizetype i = 0; i < reader.count(); ++i) {
            QCOMPARE(reader.record(i).proof, Proof::Code);
            QVERIFY(reader.record(i).record.checkSignature());
        }
    }
}

void tst_VDBSalvage::withoutItsKey_sumsProveRecords()
{
    const Salvaged found = salvage(sample(u"secret"_s));
    QCOMPARE(found.sound, kWhole);
    QVERIFY(found.isKeyed);
    const QByteArray rest = sample(u"secret"_s).sliced(storeWith({}, u"secret"_s).size());
    QVERIFY(salvage(rest).isKeyed);
}

void tst_VDBSalvage::aRecordOfAnotherKey_isUnproven()
{
    const QByteArray forged = storeWith({{{u"F"_s, u"alpha"_s}}}, u"another"_s);
    const QByteArray line =
        forged.sliced(forged.indexOf("\n+") + 1).chopped(2); // With its commit, without its seal.
    const Salvaged found = salvage(sample(u"secret"_s) + line, u"secret"_s);
    QCOMPARE(found.sound, kWhole);
    QCOMPARE(found.unproven.keys(), QStringList{u"F"_s});
}

void tst_VDBSalvage::anotherKey_isRefused()
{
    const QByteArray keyed = sample(u"secret"_s);
    for (const QByteArray &bytes : {keyed, keyed.sliced(storeWith({}, u"secret"_s).size()),
                                    sample(), sample().sliced(storeWith({}).size())})
        QCOMPARE(salvage(bytes, u"another"_s).status, VDBStatus::WrongKey);
}

void tst_VDBSalvage::whatIsNoDatabase_isSaidSo_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<VDBStatus>("status");
    QTest::newRow("nothing") << QByteArray("") << VDBStatus::Empty;
    QTest::newRow("NULs") << QByteArray(100'000, '\0') << VDBStatus::NotADatabase;
    QTest::newRow("text") << "dear diary\nid=\n"_ba << VDBStatus::NotADatabase;
    QTest::newRow("a torn header") << sample().first(20) << VDBStatus::DamagedHeader;
    QTest::newRow("a newer format")
        << sample().replace("vdbtext\t1\t", "vdbtext\t2\t") << VDBStatus::NewerFormat;
    QTest::newRow("a header and no record") << storeWith({}) << VDBStatus::Ok;
}

void tst_VDBSalvage::whatIsNoDatabase_isSaidSo()
{
    QFETCH(QByteArray, bytes);
    QFETCH(VDBStatus, status);
    const Salvaged found = salvage(bytes);
    QCOMPARE(found.status, status);
    QVERIFY(found.sound.isEmpty());
}

// Without bounds each of these would take hours.
void tst_VDBSalvage::hostileBytes_endInTime()
{
    const QByteArray sum(43, 'A');
    const QByteArray start = "+\t900000\t" + sum + "\t-\t";
    for (const QByteArray &unit : {start, "+\t"_ba, "\t"_ba, "vdbtext\t1\t"_ba, "+\n"_ba}) {
        const Salvaged found = salvage(unit.repeated(2'000'000 / unit.size()));
        QVERIFY(found.sound.isEmpty());
    }
    QCOMPARE(salvage(start.repeated(1000) + sample()).sound, kWhole);
}

void tst_VDBSalvage::aRecordWithoutAnId_isReportedOnly()
{
    QByteArray bytes = sample().sliced(storeWith({}).size());
    QBuffer buffer(&bytes);
    VDBSalvage reader(u"number"_s);
    QCOMPARE(reader.read(&buffer, {}, {}), VDBStatus::Ok);
    QCOMPARE(reader.count(), 0);
    QCOMPARE(reader.damage().size(), 6); // Every insertion; a removal says itself what it removes.
    for (const VDBDamage &damage : reader.damage())
        QCOMPARE(damage.reason, VDBDamage::Reason::NotALine);
}

void tst_VDBSalvage::theFile_isOnlyRead()
{
    QByteArray bytes = sample() + "garbage";
    const QByteArray before = bytes;
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    VDBSalvage reader(u"id"_s);
    QCOMPARE(reader.read(&buffer, {}, {}), VDBStatus::Ok);
    QVERIFY(buffer.isOpen());
    QCOMPARE(bytes, before);
    // It is one answer after the other.
    QBuffer nothing;
    QCOMPARE(reader.read(&nothing, {}, {}), VDBStatus::Empty);
    QCOMPARE(reader.count(), 0);
    QVERIFY(reader.damage().isEmpty());
    QCOMPARE(reader.read(nullptr, {}, {}), VDBStatus::NoDevice);
}

void tst_VDBSalvage::whatCannotBeRead_isSaidWhy()
{
    FaultyDevice device(sample());
    device.failAlways(FaultyDevice::Read);
    VDBSalvage reader(u"id"_s);
    QCOMPARE(reader.read(&device, {}, {}), VDBStatus::Io);
    QVERIFY(!reader.errorString().isEmpty());
    device.failAlways(FaultyDevice::Read, false);
    QCOMPARE(reader.read(&device, {}, {}), VDBStatus::Ok);
    QVERIFY(reader.errorString().isEmpty());
}

QTEST_GUILESS_MAIN(tst_VDBSalvage)
#include "tst_VDBSalvage.moc"
