// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"
#include "support/Torture.h"

#include <QtTest/QTest>

using namespace Support;
using Reason = VDBDamage::Reason;

namespace {

/// Three batches: a record, two records, and one that replaces and removes.
QByteArray sample(const QString &key = {})
{
    return storeWith({{{u"A"_s, u"alpha"_s}},
                      {{u"B"_s, u"beta"_s}, {u"C"_s, u"gamma"_s}, {u"D"_s, u"delta"_s}},
                      {{u"B"_s, u"BETA"_s}, {u"D"_s, QString()}, {u"E"_s, u"epsilon"_s}}},
                     key);
}

const QMap<QString, QString> kWhole = {
    {u"A"_s, u"alpha"_s}, {u"B"_s, u"BETA"_s}, {u"C"_s, u"gamma"_s}, {u"E"_s, u"epsilon"_s}};

/// What the sample held after each of its batches.
const QList<QMap<QString, QString>> kStates = {
    {},
    {{u"A"_s, u"alpha"_s}},
    {{u"A"_s, u"alpha"_s}, {u"B"_s, u"beta"_s}, {u"C"_s, u"gamma"_s}, {u"D"_s, u"delta"_s}},
    kWhole};

/// How many of the expected records are missing or not as they were.
int lost(const QMap<QString, QString> &sound)
{
    int count = 0;
    for (auto expected = kWhole.begin(); expected != kWhole.end(); ++expected)
        count += sound.value(expected.key()) != *expected;
    return count;
}

/// True when every record is one that the sample held at some time.
bool nothingInvented(const QMap<QString, QString> &sound)
{
    for (auto record = sound.begin(); record != sound.end(); ++record) {
        const bool known = std::any_of(kStates.begin(), kStates.end(), [&](const auto &state) {
            return state.contains(record.key()) && state.value(record.key()) == *record;
        });
        if (!known)
            return false;
    }
    return true;
}

} // namespace

class tst_VDBTextDamage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sample_isSound();
    void truncation_atEveryByteGivesTheStateOfAWholeBatch();
    void truncation_atEveryByteStillTakesANewBatch();
    void oneFlippedBit_losesOneRecordAtMost_data();
    void oneFlippedBit_losesOneRecordAtMost();
    void oneLostByte_losesOneRecordAtMost();
    void oneAddedByte_losesOneRecordAtMost();
    void headerDamage_isRepairedFromTheOtherCopy();
    void lostHeaderCopy_costsNoRecord();
    void bothHeadersDamaged_opensForNobody();
    void newerFormat_isRefused();
    void foreignContent_isRefused_data();
    void foreignContent_isRefused();
    void appendedGarbage_isReportedAndKept();
    void duplicatedFile_loadsAndIsReported();
    void crlfConversion_losesNothingAndIsReported();
    void damagedBatch_isSalvagedWhenItWasSealed();
    void unfinishedBatch_isDroppedWholeEvenAfterALaterOne();
    void reordered_sectorsOfTheLastBatchDropItWhole();
    void damagedRecord_isGivenWithoutItsSignature();
    void laterRecord_standsForADamagedOneOfItsKey();
};

void tst_VDBTextDamage::sample_isSound()
{
    const Seen seen = readStore(sample());
    QCOMPARE(seen.sound, kWhole);
    QVERIFY(seen.damage.empty());
}

void tst_VDBTextDamage::truncation_atEveryByteGivesTheStateOfAWholeBatch()
{
    const QByteArray whole = sample();
    qsizetype reached = 0;
    for (qsizetype size = storeWith({}).size(); size <= whole.size(); ++size) {
        const Seen seen = readStore(whole.first(size));
        const qsizetype state = kStates.indexOf(seen.sound);
        QVERIFY2(state >= reached, qPrintable(u"at byte %1"_s.arg(size)));
        reached = state;
        for (const VDBDamage &damage : seen.damage)
            QCOMPARE(damage.reason, Reason::Unfinished);
    }
    QCOMPARE(reached, kStates.size() - 1);
}

void tst_VDBTextDamage::truncation_atEveryByteStillTakesANewBatch()
{
    const QByteArray whole = sample();
    for (qsizetype size = storeWith({}).size(); size <= whole.size(); ++size) {
        QByteArray bytes = whole.first(size);
        QMap<QString, QString> expected = readStore(bytes).sound;
        QBuffer buffer(&bytes);
        QVERIFY(commit(&buffer, {{u"N"_s, u"new"_s}, {u"A"_s, u"changed"_s}}));
        expected.insert(u"N"_s, u"new"_s);
        expected.insert(u"A"_s, u"changed"_s);
        QVERIFY(bytes.startsWith(whole.first(size)));
        const Seen seen = readStore(bytes);
        QVERIFY2(seen.sound == expected, qPrintable(u"at byte %1"_s.arg(size)));
        QCOMPARE(seen.damagedRecords, 0);
    }
    figure(u"store cut after each of its %1 bytes: every state that of a whole batch, every next "
           "batch taken"_s.arg(whole.size()));
}

void tst_VDBTextDamage::oneFlippedBit_losesOneRecordAtMost_data()
{
    QTest::addColumn<QString>("writeKey");
    QTest::addColumn<QString>("readKey");
    QTest::newRow("without a key") << QString() << QString();
    QTest::newRow("with a key") << u"secret"_s << u"secret"_s;
    QTest::newRow("with a key, read without it") << u"secret"_s << QString();
}

void tst_VDBTextDamage::oneFlippedBit_losesOneRecordAtMost()
{
    QFETCH(QString, writeKey);
    QFETCH(QString, readKey);
    const QByteArray whole = sample(writeKey);
    for (qsizetype at = 0; at < whole.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray bytes = whole;
            bytes[at] = char(uchar(bytes[at]) ^ (1U << bit));
            const Seen seen = readStore(bytes, readKey);
            const QString where = u"bit %1 of byte %2"_s.arg(bit).arg(at);
            QVERIFY2(seen.status == VDBStatus::Ok, qPrintable(where));
            QVERIFY2(lost(seen.sound) <= 1, qPrintable(where));
            QVERIFY2(nothingInvented(seen.sound), qPrintable(where));
            QVERIFY2(lost(seen.sound) == 0 || !seen.damage.empty(), qPrintable(where));
        }
    }
    figure(u"all %1 bits of a store flipped %2: no two records lost, 0 altered ones accepted"_s
               .arg(whole.size() * 8)
               .arg(QString::fromLatin1(QTest::currentDataTag())));
}

void tst_VDBTextDamage::oneLostByte_losesOneRecordAtMost()
{
    const QByteArray whole = sample();
    for (qsizetype at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes.remove(at, 1);
        const Seen seen = readStore(bytes);
        QVERIFY2(lost(seen.sound) <= 1, qPrintable(u"byte %1"_s.arg(at)));
        QVERIFY2(nothingInvented(seen.sound), qPrintable(u"byte %1"_s.arg(at)));
    }
}

void tst_VDBTextDamage::oneAddedByte_losesOneRecordAtMost()
{
    const QByteArray whole = sample();
    for (const char added : {'\n', '\0', 'x', '+', '.', '~', '\t'}) {
        for (qsizetype at = 0; at <= whole.size(); ++at) {
            QByteArray bytes = whole;
            bytes.insert(at, added);
            const Seen seen = readStore(bytes);
            const QString where = u"before byte %1, %2"_s.arg(at).arg(int(added));
            QVERIFY2(lost(seen.sound) <= 1, qPrintable(where));
            QVERIFY2(nothingInvented(seen.sound), qPrintable(where));
        }
    }
}

void tst_VDBTextDamage::headerDamage_isRepairedFromTheOtherCopy()
{
    const QByteArray whole = sample(u"secret"_s);
    const qsizetype copy = whole.indexOf('\n') + 1;
    for (const qsizetype begin : {qsizetype(0), copy}) {
        QByteArray bytes = whole;
        bytes.replace(begin, copy - 1, QByteArray(copy - 1, '\0'));
        const Seen seen = readStore(bytes, u"secret"_s);
        QCOMPARE(seen.status, VDBStatus::Ok);
        QCOMPARE(seen.sound, kWhole);
        QVERIFY(seen.hears(Reason::BadHeader));
        QCOMPARE(readStore(bytes, u"wrong"_s).status, VDBStatus::WrongKey);
    }
}

// As when a person removes repeated lines.
void tst_VDBTextDamage::lostHeaderCopy_costsNoRecord()
{
    QByteArray bytes = sample();
    bytes.remove(0, bytes.indexOf('\n') + 1);
    QBuffer buffer(&bytes);
    const Seen seen = readStore(&buffer);
    QCOMPARE(seen.sound, kWhole);
    QVERIFY(seen.hears(Reason::BadHeader));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    QVERIFY(store.purge());
    store.close();
    QCOMPARE(readStore(&buffer).sound, kWhole);
}

void tst_VDBTextDamage::bothHeadersDamaged_opensForNobody()
{
    QByteArray bytes = sample();
    const qsizetype copy = bytes.indexOf('\n') + 1;
    bytes[20] = '!';
    bytes[copy + 30] = '!';
    const QByteArray before = bytes;
    QBuffer buffer(&bytes);
    QVERIFY(!commit(&buffer, {{u"N"_s, u"new"_s}}));
    QCOMPARE(readStore(&buffer).status, VDBStatus::DamagedHeader);
    VDBText store;
    QVERIFY(!createStore(store, &buffer));
    QCOMPARE(bytes, before);
}

void tst_VDBTextDamage::newerFormat_isRefused()
{
    QByteArray bytes = sample();
    bytes.replace("vdbtext\t1\t", "vdbtext\t2\t");
    const QByteArray before = bytes;
    QBuffer buffer(&bytes);
    QCOMPARE(readStore(&buffer).status, VDBStatus::NewerFormat);
    VDBText store;
    QVERIFY(!createStore(store, &buffer));
    QCOMPARE(bytes, before);
}

void tst_VDBTextDamage::foreignContent_isRefused_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("a JSON file") << "{\"a\": 1}\n"_ba;
    QTest::newRow("a line of text") << "hello\n"_ba;
    QTest::newRow("NULs as long as a store") << QByteArray(sample().size(), '\0');
    QTest::newRow("binary") << QByteArray::fromHex("7f454c460201010000000000000000000a");
    QTest::newRow("blank lines") << "\n\n\n"_ba;
    QTest::newRow("a long line") << QByteArray(100'000, 'x');
}

void tst_VDBTextDamage::foreignContent_isRefused()
{
    QFETCH(QByteArray, content);
    QByteArray bytes = content;
    QBuffer buffer(&bytes);
    QCOMPARE(readStore(&buffer).status, VDBStatus::NotADatabase);
    VDBText store;
    QVERIFY(!createStore(store, &buffer));
    QVERIFY(!commit(&buffer, {{u"N"_s, u"new"_s}}));
    QCOMPARE(bytes, content);
}

void tst_VDBTextDamage::appendedGarbage_isReportedAndKept()
{
    for (const QByteArray &garbage :
         {"garbage"_ba, "garbage\n"_ba, "\x80\xff\0\x01"_ba, "two\nlines\n"_ba}) {
        QByteArray bytes = sample() + garbage;
        const Seen seen = readStore(bytes);
        QCOMPARE(seen.sound, kWhole);
        QVERIFY(seen.hears(Reason::NotALine));
        QBuffer buffer(&bytes);
        QVERIFY(commit(&buffer, {{u"N"_s, u"new"_s}}));
        QVERIFY(bytes.startsWith(sample() + garbage));
        QCOMPARE(readStore(bytes).sound.size(), kWhole.size() + 1);
    }
}

void tst_VDBTextDamage::duplicatedFile_loadsAndIsReported()
{
    const Seen seen = readStore(sample() + sample());
    QCOMPARE(seen.sound, kWhole);
    QVERIFY(seen.hears(Reason::BadHeader));
}

void tst_VDBTextDamage::crlfConversion_losesNothingAndIsReported()
{
    QByteArray bytes = sample(u"secret"_s);
    bytes.replace("\n", "\r\n");
    const Seen seen = readStore(bytes, u"secret"_s);
    QCOMPARE(seen.sound, kWhole);
    QVERIFY(seen.hears(Reason::BadLineEnd));
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"N"_s, u"new"_s}}, u"secret"_s));
    QCOMPARE(readStore(bytes, u"secret"_s).sound.size(), kWhole.size() + 1);
}

void tst_VDBTextDamage::damagedBatch_isSalvagedWhenItWasSealed()
{
    QByteArray bytes = sample();
    bytes.replace("text=BETA", "text=BETO");
    const Seen seen = readStore(bytes);
    QCOMPARE(seen.sound.value(u"E"_s), u"epsilon"_s);
    QCOMPARE(seen.sound.value(u"B"_s), u"beta"_s); // The last intact version.
    QVERIFY(!seen.sound.contains(u"D"_s));
    QVERIFY(seen.hears(Reason::BadSignature));
    QCOMPARE(seen.damagedRecords, 1);
}

void tst_VDBTextDamage::unfinishedBatch_isDroppedWholeEvenAfterALaterOne()
{
    QByteArray bytes = sample();
    bytes.chop(2); // The seal.
    bytes.replace("text=BETA", QByteArray(9, '\0')); // And a part that never reached the disk.
    QCOMPARE(readStore(bytes).sound, kStates.at(2));
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"N"_s, u"new"_s}}));
    QMap<QString, QString> expected = kStates.at(2);
    expected.insert(u"N"_s, u"new"_s);
    QCOMPARE(readStore(bytes).sound, expected);
}

void tst_VDBTextDamage::reordered_sectorsOfTheLastBatchDropItWhole()
{
    const QByteArray before = storeWith({{{u"A"_s, u"old"_s}}});
    QByteArray whole = before;
    QBuffer buffer(&whole);
    QMap<QString, QString> batch;
    for (int i = 0; i < 40; ++i)
        batch.insert(QString::number(i), QString(50, QChar(u'a' + i % 26)));
    QVERIFY(commit(&buffer, batch));
    whole.chop(2); // A power cut before the sync leaves no seal.
    constexpr qsizetype kSector = 512;
    for (qsizetype sector = before.size() / kSector; sector <= whole.size() / kSector; ++sector) {
        const qsizetype begin = std::max(sector * kSector, before.size());
        const qsizetype end = std::min((sector + 1) * kSector, whole.size());
        QByteArray torn = whole;
        torn.replace(begin, end - begin, QByteArray(end - begin, '\0'));
        QCOMPARE(readStore(torn).sound, (QMap<QString, QString>{{u"A"_s, u"old"_s}}));
        QBuffer device(&torn);
        QVERIFY(commit(&device, {{u"B"_s, u"new"_s}}));
        QCOMPARE(readStore(torn).sound,
                 (QMap<QString, QString>{{u"A"_s, u"old"_s}, {u"B"_s, u"new"_s}}));
    }
}

void tst_VDBTextDamage::damagedRecord_isGivenWithoutItsSignature()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"alpha"_s}}});
    bytes.replace("alpha", "alpho");
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    QVERIFY(!store.contains(u"A"_s));
    VDBRecord record;
    store.first(record);
    QVERIFY(!record.isNull());
    QVERIFY(!record.checkSignature());
    QCOMPARE(record.search(u"text"_s).value().toString(), u"alpho"_s);
}

void tst_VDBTextDamage::laterRecord_standsForADamagedOneOfItsKey()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"alpha"_s}}});
    bytes.replace("alpha", "alpho");
    QBuffer buffer(&bytes);
    QVERIFY(commit(&buffer, {{u"A"_s, u"again"_s}}));
    const Seen seen = readStore(bytes);
    QCOMPARE(seen.sound, (QMap<QString, QString>{{u"A"_s, u"again"_s}}));
    QCOMPARE(seen.damagedRecords, 0);
}

QTEST_GUILESS_MAIN(tst_VDBTextDamage)
#include "tst_VDBTextDamage.moc"
