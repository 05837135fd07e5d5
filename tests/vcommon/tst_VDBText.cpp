// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Support;

class tst_VDBText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void create_writesAnEmptyStoreThatOpens();
    void create_refusesADeviceWithContent();
    void create_goesOnWhereACrashLeftOff();
    void open_failsWithoutADevice();
    void open_failsOnAMissingFileAndMakesNone();
    void open_failsOnWhatIsNoPlainFile();
    void insert_bringsBackEveryFieldAsText();
    void insert_ofAKnownKeyReplacesTheRecord();
    void insert_withoutAKeyIsRefused();
    void remove_ofAnUnknownKeyIsRefused();
    void contains_seesTheBatch();
    void close_withoutChangesWritesNothing();
    void values_surviveAnyCharacter();
    void records_comeInFileOrderOnce();
    void devices_areLeftAsTheyWereFound();
    void open_ofAnUnchangedFileDoesNotReadItAgain();
    void open_seesWhatAnotherStoreWrote();
    void aClosedStore_givesAndTakesNothing();
    void settings_areToldAgain();
};

void tst_VDBText::create_writesAnEmptyStoreThatOpens()
{
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    QVERIFY(store.isOpen());
    QCOMPARE(store.count(), 0);
    VDBRecord first;
    store.first(first);
    QVERIFY(first.isNull());
    store.close();
    QVERIFY(buffer.data().startsWith("vdbtext\t1\t"));
    QCOMPARE(readStore(&buffer).status, VDBStatus::Ok);
}

void tst_VDBText::create_refusesADeviceWithContent()
{
    for (const QByteArray &content : {storeWith({}), "something else"_ba, "\n"_ba}) {
        QByteArray bytes = content;
        QBuffer buffer(&bytes);
        VDBText store;
        QVERIFY(!createStore(store, &buffer));
        QCOMPARE(store.status(), VDBStatus::NotEmpty);
        QCOMPARE(bytes, content);
        QVERIFY(!store.isOpen());
    }
}

void tst_VDBText::create_goesOnWhereACrashLeftOff()
{
    const QByteArray whole = storeWith({});
    for (qsizetype size = 0; size < whole.size(); ++size) {
        for (const QByteArray &torn : {whole.first(size), QByteArray(size, '\0')}) {
            QByteArray bytes = torn;
            QBuffer buffer(&bytes);
            VDBText store;
            store.setKey({}, toRead());
            QVERIFY(!store.open(&buffer));
            QCOMPARE(store.status(), VDBStatus::Empty);
            QVERIFY2(createStore(store, &buffer), qPrintable(u"%1 bytes"_s.arg(size)));
            store.close();
            QCOMPARE(bytes, whole);
        }
    }
}

void tst_VDBText::open_failsWithoutADevice()
{
    VDBText store;
    QVERIFY(!store.open(nullptr));
    QCOMPARE(store.status(), VDBStatus::NoDevice);
}

void tst_VDBText::open_failsOnAMissingFileAndMakesNone()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"missing.tdb"_s));
    VDBText store;
    QVERIFY(!store.open(&file));
    QCOMPARE(store.status(), VDBStatus::NotFound);
    QVERIFY(!file.exists());
}

void tst_VDBText::open_failsOnWhatIsNoPlainFile()
{
    QTemporaryDir folder;
    QFile file(folder.path());
    VDBText store;
    QVERIFY(!store.open(&file));
    QCOMPARE(store.status(), VDBStatus::Io);
    QVERIFY(!createStore(store, &file));
}

void tst_VDBText::insert_bringsBackEveryFieldAsText()
{
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    VDBRecord record;
    record.insert(u"id"_s, u"A"_s);
    record.insert(u"number"_s, 1234567);
    record.insert(u"nothing"_s, QVariant());
    record.insert(u"empty"_s, u""_s);
    QVERIFY(store.insert(record));
    store.close();
    QVERIFY(store.open(&buffer));
    store.first(record);
    QVERIFY(record.checkSignature());
    QCOMPARE(record.keys(),
             QStringList({u"culture"_s, u"id"_s, u"number"_s, u"nothing"_s, u"empty"_s}));
    QCOMPARE(record.search(VDBRecord::cultureKey()).value().toString(), u"en-US"_s);
    QCOMPARE(record.search(u"number"_s).value().toString(), u"1234567"_s);
    QVERIFY(record.search(u"nothing"_s).isFound());
    QVERIFY(record.search(u"nothing"_s).value().isNull());
    QVERIFY(!record.search(u"empty"_s).value().isNull());
    QVERIFY(!record.search(u"missing"_s).isFound());
    record.insert(u"number"_s, 2);
    QVERIFY(!record.checkSignature());
}

void tst_VDBText::insert_ofAKnownKeyReplacesTheRecord()
{
    const QByteArray bytes = storeWith({{{u"A"_s, u"one"_s}}, {{u"A"_s, u"two"_s}}});
    QCOMPARE(readStore(bytes).sound, (QMap<QString, QString>{{u"A"_s, u"two"_s}}));
}

void tst_VDBText::insert_withoutAKeyIsRefused()
{
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    VDBRecord nameless;
    nameless.insert(u"text"_s, u"x"_s);
    QVERIFY(!store.insert(nameless));
    store.close();
    QVERIFY(readStore(&buffer).sound.isEmpty());
}

void tst_VDBText::remove_ofAnUnknownKeyIsRefused()
{
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    QVERIFY(!store.remove(u"A"_s));
    QVERIFY(store.insert(record(u"A"_s, u"x"_s)));
    QVERIFY(store.remove(u"A"_s));
    store.close();
    QVERIFY(readStore(&buffer).sound.isEmpty());
}

void tst_VDBText::contains_seesTheBatch()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}}});
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    QVERIFY(store.contains(u"A"_s));
    QVERIFY(store.remove(u"A"_s));
    QVERIFY(!store.contains(u"A"_s));
    QVERIFY(store.insert(record(u"B"_s, u"y"_s)));
    QVERIFY(store.contains(u"B"_s));
    store.close();
    QVERIFY(!store.contains(u"B"_s)); // Nothing is there to be asked between accesses.
}

void tst_VDBText::close_withoutChangesWritesNothing()
{
    const QByteArray before = storeWith({{{u"A"_s, u"x"_s}}});
    QByteArray bytes = before;
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    store.close();
    QVERIFY(store.wasDurable());
    QCOMPARE(bytes, before);
}

void tst_VDBText::values_surviveAnyCharacter()
{
    QString all;
    for (char16_t c = 0; c < 0x180; ++c)
        all += QChar(c);
    all += u"日本語 \U0001F5A8 \\t \\x41 =+-.~ \r\n\t"_s;
    const QByteArray bytes = storeWith({{{all, all}, {u"-"_s, u"."_s}}});
    QCOMPARE(readStore(bytes).sound, (QMap<QString, QString>{{all, all}, {u"-"_s, u"."_s}}));
    QVERIFY(readStore(bytes).damage.empty());
    for (const char c : bytes)
        QVERIFY(uchar(c) >= 0x20 || c == '\n' || c == '\t');
}

void tst_VDBText::records_comeInFileOrderOnce()
{
    QByteArray bytes = storeWith({{{u"B"_s, u"1"_s}}, {{u"A"_s, u"2"_s}}, {{u"B"_s, u"3"_s}}});
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    QCOMPARE(store.count(), 2);
    VDBRecord record;
    store.first(record);
    QCOMPARE(record.search(u"id"_s).value().toString(), u"A"_s);
    QCOMPARE(record.line(), 6);
    QCOMPARE(bytes.mid(record.offset(), 2), "+\t"_ba);
    store.next(record);
    QCOMPARE(record.search(u"id"_s).value().toString(), u"B"_s);
    store.next(record);
    QVERIFY(record.isNull());
    store.next(record);
    QVERIFY(record.isNull());
}

void tst_VDBText::devices_areLeftAsTheyWereFound()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}}});
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadWrite | QIODevice::Text));
    buffer.seek(3);
    QVERIFY(commit(&buffer, {{u"B"_s, u"y"_s}}));
    QVERIFY(buffer.isOpen());
    QVERIFY(buffer.isTextModeEnabled());
    QCOMPARE(buffer.pos(), 3);
    buffer.close();
    QVERIFY(commit(&buffer, {{u"C"_s, u"z"_s}}));
    QVERIFY(!buffer.isOpen());
    QCOMPARE(readStore(&buffer).sound.size(), 3);
}

void tst_VDBText::open_ofAnUnchangedFileDoesNotReadItAgain()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.insert(record(u"A"_s, QString(1'000'000, u'x')));
    store.close();
    const auto bytesRead = [] {
        QFile counters(u"/proc/self/io"_s);
        if (!counters.open(QIODevice::ReadOnly))
            return qint64(-1);
        return counters.readLine().mid(int(qstrlen("rchar: "))).trimmed().toLongLong();
    };
    if (bytesRead() < 0)
        QSKIP("This system does not count the bytes that a process reads.");
    const qint64 before = bytesRead();
    QVERIFY(store.open(&file));
    QVERIFY(store.contains(u"A"_s));
    store.close();
    QVERIFY(bytesRead() - before < 100'000);
}

void tst_VDBText::open_seesWhatAnotherStoreWrote()
{
    QTemporaryDir folder;
    QFile one(folder.filePath(u"a.tdb"_s));
    QFile two(one.fileName());
    VDBText store;
    QVERIFY(createStore(store, &one));
    store.close();
    for (int i = 0; i < 20; ++i) {
        const QString id = QString::number(i);
        QVERIFY(commit(&two, {{id, u"x"_s}}));
        QVERIFY(store.open(&one));
        QVERIFY(store.contains(id));
        store.close();
    }
}

void tst_VDBText::aClosedStore_givesAndTakesNothing()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}, {u"B"_s, u"y"_s}}});
    const QByteArray before = bytes;
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    VDBRecord known;
    store.first(known);
    store.close();
    store.close();
    QVERIFY(!store.insert(record(u"C"_s, u"z"_s)));
    QVERIFY(!store.remove(u"A"_s));
    QVERIFY(!store.contains(u"A"_s));
    QCOMPARE(store.count(), 0);
    VDBRecord first = known;
    store.first(first);
    QVERIFY(first.isNull());
    VDBRecord last = known;
    store.last(last);
    QVERIFY(last.isNull());
    store.next(known);
    QVERIFY(known.isNull());
    QCOMPARE(bytes, before);
}

void tst_VDBText::settings_areToldAgain()
{
    VDBText store;
    QVERIFY(store.lockTimeout() > std::chrono::seconds(0));
    store.setLockTimeout(std::chrono::milliseconds(7));
    QCOMPARE(store.lockTimeout().count(), 7);
    QVERIFY(storeWith({}).startsWith("vdbtext\t" + QByteArray::number(VDBText::formatVersion())));
    store.setKey({}, toRead());
    QByteArray bytes = storeWith({});
    QBuffer buffer(&bytes);
    QVERIFY(store.open(&buffer));
    QVERIFY(!store.insert(record(u"A"_s, u"x"_s))); // It was opened to read.
}

QTEST_GUILESS_MAIN(tst_VDBText)
#include "tst_VDBText.moc"
