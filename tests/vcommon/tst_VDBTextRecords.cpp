// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtTest/QTest>

#include <thread>

using namespace Support;
using Norvane::VBytes;

namespace {

/// A signed line, made by hand as another program might make it.
QByteArray fileWithPayload(const QByteArray &payload)
{
    const QByteArray ours = storeWith({{{u"A"_s, u"alpha"_s}}});
    // Without its signature the record is given nevertheless, and its fields are read.
    QByteArray bytes = ours;
    return bytes.replace("culture=en-US\tid=A\ttext=alpha", payload);
}

VDBRecord firstOf(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toRead());
    VDBRecord record;
    if (store.open(&buffer))
        store.first(record);
    return record; // It outlives its store.
}

QByteArray utf8Of(const VDBRecord &record, const QString &key)
{
    return record.utf8(key).value_or(VBytes("missing"_ba)).toByteArray();
}

} // namespace

class tst_VDBTextRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_areTheRecordsOfAWalk();
    void values_outliveTheAccessAndMayBeReadOnManyThreads();
    void utf8_isWhatWasInsertedHoweverItWas_data();
    void utf8_isWhatWasInsertedHoweverItWas();
    void utf8_ofAPlainValueIsNoCopy();
    void utf8_tellsNullAndMissingFromEmpty();
    void utf8_ofAnyBytesIsValid();
    void utf8_ofABrokenEscapeIsTheEscape_data();
    void utf8_ofABrokenEscapeIsTheEscape();
    void stored_isWhatStandsInTheFile();
    void stored_isNothingElsewhere();
    void insertUtf8_replacesWhatIsNoUtf8();
    void search_takesTheLastOfEqualFields();
    void search_findsAFieldWhereverItStands();
    void search_findsKeysWithNeedlessEscapes();
    void change_ofAStoredRecordKeepsTheOtherFields();
    void copies_areIndependent();
    void aStoreWithoutCulturesWritesNone();
};

void tst_VDBTextRecords::values_areTheRecordsOfAWalk()
{
    QByteArray bytes = storeWith({{{u"B"_s, u"1"_s}, {u"C"_s, u"2"_s}}, {{u"B"_s, u"3"_s}}});
    bytes.replace("text=2", "text=!"); // A damaged one is among them.
    QBuffer buffer(&bytes);
    VDBText store;
    QVERIFY(store.values().isEmpty());
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    const QList<VDBRecord> values = store.values();
    QCOMPARE(values.size(), 2);
    VDBRecord record;
    store.first(record);
    for (const VDBRecord &value : values) {
        QCOMPARE(value.keys(), record.keys());
        QCOMPARE(value.offset(), record.offset());
        QCOMPARE(value.line(), record.line());
        QCOMPARE(value.checkSignature(), record.checkSignature());
        QCOMPARE(utf8Of(value, u"text"_s), utf8Of(record, u"text"_s));
        store.next(record);
    }
    QVERIFY(record.isNull());
}

void tst_VDBTextRecords::values_outliveTheAccessAndMayBeReadOnManyThreads()
{
    QMap<QString, QString> batch;
    for (int i = 0; i < 200; ++i)
        batch.insert(QString::number(i), u"text \\ %1"_s.arg(i));
    QByteArray bytes = storeWith({batch});
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    const QList<VDBRecord> values = store.values();
    store.close();
    bytes.fill('x');
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int thread = 0; thread < 4; ++thread) {
        threads.emplace_back([copies = values, &batch, &right] {
            for (const VDBRecord &record : copies) {
                const QString id = record.search(u"id"_s).value().toString();
                right += utf8Of(record, u"text"_s) == batch.value(id).toUtf8() ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(right.load(), 800);
}

void tst_VDBTextRecords::utf8_isWhatWasInsertedHoweverItWas_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("plain") << u"alpha"_s;
    QTest::newRow("empty") << u""_s;
    QTest::newRow("JSON with escapes") << uR"({"a":"tab \t, \"quote\""})"_s;
    QTest::newRow("what must be escaped") << u"\\ \t \r \n \u0001 \u007f ="_s;
    QTest::newRow("not Latin") << u"日本語 \U0001F5A8"_s;
    QTest::newRow("a byte order mark in front") << u"\uFEFFalpha\uFEFF"_s;
    QTest::newRow("two byte order marks and an escape") << u"\uFEFF\uFEFF\t"_s;
    QTest::newRow("an escape behind many bytes") << QString(64 * 3 + 17, u'x') + u"\t\\"_s;
}

void tst_VDBTextRecords::utf8_isWhatWasInsertedHoweverItWas()
{
    QFETCH(QString, text);
    VDBRecord byBytes = record(u"A"_s, u"replaced"_s);
    byBytes.insertUtf8(u"text"_s, text.toUtf8());
    QList<QByteArray> files;
    for (const VDBRecord &inserted : {record(u"A"_s, text), byBytes}) {
        QCOMPARE(inserted.search(u"text"_s).value().toString(), text);
        QCOMPARE(utf8Of(inserted, u"text"_s), text.toUtf8());
        QBuffer buffer;
        VDBText store;
        QVERIFY(createStore(store, &buffer));
        QVERIFY(store.insert(inserted));
        store.close();
        const VDBRecord found = firstOf(buffer.data());
        QVERIFY(found.checkSignature());
        QCOMPARE(found.keys(), QStringList({u"culture"_s, u"id"_s, u"text"_s}));
        QCOMPARE(found.search(u"text"_s).value().toString(), text);
        QCOMPARE(utf8Of(found, u"text"_s), text.toUtf8());
        files.append(buffer.data());
    }
    QCOMPARE(files[0], files[1]);
}

void tst_VDBTextRecords::utf8_ofAPlainValueIsNoCopy()
{
    const VDBRecord record = firstOf(storeWith({{{u"A"_s, u"alpha"_s}}}));
    const VBytes text = record.utf8(u"text"_s).value();
    QCOMPARE(text.view().data(), record.utf8(u"text"_s)->view().data());
    QCOMPARE(text.view().data() - record.utf8(u"id"_s)->view().data(),
             qsizetype(sizeof("A\ttext=") - 1));
}

void tst_VDBTextRecords::utf8_tellsNullAndMissingFromEmpty()
{
    VDBRecord record;
    record.insert(u"id"_s, u"A"_s);
    record.insert(u"nothing"_s, QVariant());
    record.insertUtf8(u"empty"_s, QByteArray());
    record.insert(u"number"_s, 1.5);
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    QVERIFY(store.insert(record));
    store.close();
    for (const VDBRecord &one : {record, firstOf(buffer.data())}) {
        QVERIFY(!one.utf8(u"nothing"_s));
        QVERIFY(one.search(u"nothing"_s).isFound());
        QVERIFY(!one.utf8(u"missing"_s));
        QVERIFY(one.utf8(u"empty"_s) && one.utf8(u"empty"_s)->isEmpty());
        QVERIFY(!one.search(u"empty"_s).value().isNull());
        QCOMPARE(utf8Of(one, u"number"_s), "1.5"_ba);
    }
}

void tst_VDBTextRecords::utf8_ofAnyBytesIsValid()
{
    for (const QByteArray &value : {"\xff"_ba, "a\xc3"_ba, "\\xff"_ba, "\\x\xed\xa0\x80"_ba}) {
        const VDBRecord record = firstOf(fileWithPayload("id=A\ttext=" + value));
        QVERIFY(utf8Of(record, u"text"_s).isValidUtf8());
        QCOMPARE(QString::fromUtf8(utf8Of(record, u"text"_s)),
                 record.search(u"text"_s).value().toString());
    }
}

void tst_VDBTextRecords::utf8_ofABrokenEscapeIsTheEscape_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("nothing behind it") << "a\\"_ba;
    QTest::newRow("an unknown letter") << "a\\qz"_ba;
    QTest::newRow("one digit") << "a\\x4"_ba;
    QTest::newRow("a second digit that is none") << "a\\x4g"_ba;
    QTest::newRow("a first digit that is none") << "a\\xg4"_ba;
    QTest::newRow("a capital digit") << "a\\x4Bz"_ba;
}

void tst_VDBTextRecords::utf8_ofABrokenEscapeIsTheEscape()
{
    QFETCH(QByteArray, value);
    QCOMPARE(utf8Of(firstOf(fileWithPayload("id=A\ttext=" + value)), u"text"_s), value);
}

void tst_VDBTextRecords::stored_isWhatStandsInTheFile()
{
    for (const QByteArray &value : {"plain"_ba, ""_ba, "a\\tb\\"_ba, "\xff"_ba, "a=b"_ba}) {
        const VDBRecord record = firstOf(fileWithPayload("id=A\ttext=" + value));
        const std::optional<VBytes> stored = record.stored(u"text"_s);
        QVERIFY(stored);
        QCOMPARE(stored->toByteArray(), value);
        QCOMPARE(record.stored(u"id"_s).value().toByteArray(), "A"_ba);
    }
}

void tst_VDBTextRecords::stored_isNothingElsewhere()
{
    const VDBRecord record = firstOf(fileWithPayload("id=A\tnothing\ttext=alpha"));
    QVERIFY(!record.stored(u"nothing"_s));
    QVERIFY(!record.stored(u"missing"_s));
    QVERIFY(!VDBRecord().stored(QString()));
    VDBRecord changed = record;
    changed.insertUtf8(u"other"_s, "value"_ba);
    QVERIFY(!changed.stored(u"text"_s));
    QVERIFY(!changed.stored(u"other"_s));
}

void tst_VDBTextRecords::insertUtf8_replacesWhatIsNoUtf8()
{
    VDBRecord record;
    record.insertUtf8(u"text"_s, "a\xff\xc3z"_ba);
    QCOMPARE(utf8Of(record, u"text"_s), QString::fromUtf8("a\xff\xc3z").toUtf8());
}

void tst_VDBTextRecords::search_takesTheLastOfEqualFields()
{
    const VDBRecord record = firstOf(fileWithPayload("id=A\ttext=one\tother=2\ttext=three"));
    QCOMPARE(record.keys(), QStringList({u"id"_s, u"text"_s, u"other"_s}));
    QCOMPARE(record.search(u"text"_s).value().toString(), u"three"_s);
    QCOMPARE(utf8Of(record, u"text"_s), "three"_ba);
}

void tst_VDBTextRecords::search_findsAFieldWhereverItStands()
{
    for (const QByteArray &payload :
         {"id=A\tlast=1"_ba, "last=1\tid=A"_ba, "last=1\tid=A\t"_ba, "id=A\t\tlast=1"_ba,
          "last=1\t\tid=A\t\t"_ba, "last=0\tid=0\tid=A\tlast=1"_ba}) {
        const VDBRecord record = firstOf(fileWithPayload(payload));
        QCOMPARE(utf8Of(record, u"id"_s), "A"_ba);
        QCOMPARE(utf8Of(record, u"last"_s), "1"_ba);
        QVERIFY(!record.search(u"1"_s).isFound());
        QVERIFY(!record.search(u"la"_s).isFound());
    }
}

void tst_VDBTextRecords::search_findsKeysWithNeedlessEscapes()
{
    const VDBRecord record = firstOf(fileWithPayload("id=A\tte\\x78t=one\tgr\xc3\xb6\xc3\x9f"
                                                     "e=2"));
    QCOMPARE(utf8Of(record, u"text"_s), "one"_ba);
    QCOMPARE(utf8Of(record, u"größe"_s), "2"_ba);
    QVERIFY(!record.search(u"te\\x78t"_s).isFound());
}

void tst_VDBTextRecords::change_ofAStoredRecordKeepsTheOtherFields()
{
    VDBRecord record = firstOf(storeWith({{{u"A"_s, u"alpha"_s}}}));
    QVERIFY(record.checkSignature());
    record.insertUtf8(u"id"_s, "B"_ba);
    QVERIFY(!record.checkSignature());
    QCOMPARE(record.keys(), QStringList({u"culture"_s, u"id"_s, u"text"_s}));
    QCOMPARE(utf8Of(record, u"id"_s), "B"_ba);
    QCOMPARE(record.search(u"text"_s).value().toString(), u"alpha"_s);
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    QVERIFY(store.insert(record));
    store.close();
    QCOMPARE(readStore(&buffer).sound, (QMap<QString, QString>{{u"B"_s, u"alpha"_s}}));
}

void tst_VDBTextRecords::copies_areIndependent()
{
    const VDBRecord record = firstOf(storeWith({{{u"A"_s, u"alpha"_s}}}));
    VDBRecord copy = record;
    copy.insert(u"text"_s, u"beta"_s);
    QCOMPARE(utf8Of(record, u"text"_s), "alpha"_ba);
    QVERIFY(record.checkSignature());
    QCOMPARE(utf8Of(copy, u"text"_s), "beta"_ba);
}

void tst_VDBTextRecords::aStoreWithoutCulturesWritesNone()
{
    QBuffer buffer;
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.create(&buffer, u"id"_s, VDBText::WithSignature, QLocale::c(), u"2"_s));
    QVERIFY(store.insert(record(u"A"_s, u"alpha"_s)));
    store.close();
    const VDBRecord found = firstOf(buffer.data());
    QVERIFY(found.checkSignature());
    QCOMPARE(found.keys(), QStringList({u"id"_s, u"text"_s}));
}

QTEST_GUILESS_MAIN(tst_VDBTextRecords)
#include "tst_VDBTextRecords.moc"
