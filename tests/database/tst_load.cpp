// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtCore/QCryptographicHash>
#include <QtTest/QTest>

#include <vcommon/VDBRecord.h>

using namespace Support;
using Norvane::Database::VDBRecord;
using Norvane::Database::VDBText;

namespace {

/// A record as a database writes it, under the name by which these tests' files are keyed.
VDBRecord recordFor(const QString &name, const QVariant &id, const QVariant &driver)
{
    VDBRecord record;
    record.insert(u"name"_s, name);
    record.insert(u"id"_s, id);
    record.insert(u"driver"_s, driver);
    return record;
}

VDBRecord recordFor(const QString &name, const VPrinterDriver &driver)
{
    return recordFor(name, idText(driver), jsonText(driver));
}

/// A file of hand-made records. It is keyed by another field than a database's own files, so that
/// "id" may be anything.
QByteArray fileWith(const QList<VDBRecord> &records, const QString &key = {})
{
    QBuffer buffer;
    VDBText store;
    store.setKey(key, QString());
    if (!store.create(&buffer, u"name"_s, VDBText::WithCulture | VDBText::WithSignature,
                      QLocale(u"en-US"_s), u"2"_s))
        return {};
    for (const VDBRecord &record : records) {
        if (!store.insert(record))
            return {};
    }
    store.close();
    return buffer.data();
}

QByteArray sumOf(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256)
        .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

/// A line with its sum, made by hand: a record may hold bytes then that no text has.
QByteArray signedLine(const QByteArray &kind, const QByteArray &payload)
{
    return kind + '\t' + QByteArray::number(payload.size()) + '\t' + sumOf(kind + payload) + "\t-\t"
        + payload + '\n';
}

/// A file of one record with this payload.
QByteArray fileWithPayload(const QByteArray &payload)
{
    return fileWith({}) + signedLine("+", payload)
        + signedLine("=", "lines=1\tdigest=" + sumOf(sumOf("+" + payload)));
}

/// The names of the entries that a database finds in the file.
QStringList loadedNames(QByteArray bytes, const QString &key = {})
{
    QBuffer buffer(&bytes);
    VPrintersDb database(&buffer, key);
    database.init(false);
    return database.isNull() ? QStringList{u"not loaded"_s} : namesIn(database);
}

} // namespace

/// Which records of a file become entries.
class tst_load : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void load_takesWhatACommitWrote();
    void load_dropsOnlyTheBadRecord_data();
    void load_dropsOnlyTheBadRecord();
    void load_dropsARecordWithoutAnId();
    void load_dropsARecordWithoutADriver();
    void load_dropsARecordWithABadSignature();
    void load_checksTheSignatureUnderTheKey();
    void load_takesTheLaterOfTwoRecordsWithOneId();
    void load_takesADriverHoweverItIsStored();
    void load_takesAnInvalidDriver();
    void load_takesAnIdWithoutBraces();
    void load_leavesTheFileAsItIs();
    void load_survivesTruncationAtEveryByte();
};

void tst_load::load_takesWhatACommitWrote()
{
    QBuffer buffer;
    const QList<VPrinterDriver> drivers = printers({u"Linea 2 – è"_s, u"テスト"_s, u"a\tb\nc"_s});
    {
        VPrintersDb database(&buffer, u"key"_s);
        database.init(false);
        database.insert(drivers);
    }
    VPrintersDb database(&buffer, u"key"_s);
    database.init(false);
    QCOMPARE(database.count(), 3);
    for (const VPrinterDriver &driver : drivers)
        QCOMPARE(database.value(driver), driver);
}

void tst_load::load_dropsOnlyTheBadRecord_data()
{
    QTest::addColumn<QVariant>("id");
    QTest::addColumn<QVariant>("driver");

    const VPrinterDriver driver = printer(u"bad"_s);
    Norvane::Kilnjet::VElaborationDriver elaboration(driver.deviceId());
    const QVariant id = idText(driver);
    const QVariant json = jsonText(driver);
    const QString nullId = QUuid().toString();

    QTest::newRow("the id is null") << QVariant() << json;
    QTest::newRow("the id is empty") << QVariant(u""_s) << json;
    QTest::newRow("the id is no UUID") << QVariant(u"bad"_s) << json;
    QTest::newRow("the id is the null UUID") << QVariant(nullId) << json;
    QTest::newRow("the driver is null") << id << QVariant();
    QTest::newRow("the driver is empty") << id << QVariant(u""_s);
    QTest::newRow("the driver is no JSON") << id << QVariant(u"driver"_s);
    QTest::newRow("the driver is cut") << id << QVariant(json.toString().chopped(1));
    QTest::newRow("the driver is an empty object") << id << QVariant(u"{}"_s);
    QTest::newRow("the driver is of no known kind")
        << id << QVariant(u"{\"id\":\"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}\"}"_s);
    QTest::newRow("the driver is of another kind")
        << QVariant(elaboration.dataId().toString())
        << QVariant(QString::fromUtf8(QJsonDocument(elaboration.toJsonObject()).toJson()));
    QTest::newRow("the id is another driver's") << QVariant(idText(printer(u"other"_s))) << json;
    QTest::newRow("the id is the device id") << QVariant(driver.deviceId().toString()) << json;
}

void tst_load::load_dropsOnlyTheBadRecord()
{
    QFETCH(QVariant, id);
    QFETCH(QVariant, driver);
    const QByteArray bytes =
        fileWith({recordFor(u"1"_s, printer(u"A"_s)), recordFor(u"2"_s, id, driver),
                  recordFor(u"3"_s, printer(u"B"_s))});
    QVERIFY(!bytes.isEmpty());
    QCOMPARE(loadedNames(bytes), QStringList({u"A"_s, u"B"_s}));
}

void tst_load::load_dropsARecordWithoutAnId()
{
    VDBRecord record;
    record.insert(u"name"_s, u"1"_s);
    record.insert(u"driver"_s, jsonText(printer(u"bad"_s)));
    QCOMPARE(loadedNames(fileWith({record, recordFor(u"2"_s, printer(u"A"_s))})),
             QStringList({u"A"_s}));
}

void tst_load::load_dropsARecordWithoutADriver()
{
    VDBRecord record;
    record.insert(u"name"_s, u"1"_s);
    record.insert(u"id"_s, idText(printer(u"bad"_s)));
    QCOMPARE(loadedNames(fileWith({record, recordFor(u"2"_s, printer(u"A"_s))})),
             QStringList({u"A"_s}));
}

void tst_load::load_dropsARecordWithABadSignature()
{
    QByteArray bytes =
        fileWith({recordFor(u"1"_s, printer(u"first"_s)), recordFor(u"2"_s, printer(u"second"_s)),
                  recordFor(u"3"_s, printer(u"third"_s))});
    // Still JSON, still the id's driver: nothing but the signature tells.
    const qsizetype at = bytes.indexOf("second");
    QVERIFY(at > 0);
    bytes[at] = 'S';
    QCOMPARE(loadedNames(bytes), QStringList({u"first"_s, u"third"_s}));
}

void tst_load::load_checksTheSignatureUnderTheKey()
{
    const QByteArray plain = fileWith({recordFor(u"1"_s, printer(u"A"_s))});
    QByteArray keyed = fileWith({recordFor(u"1"_s, printer(u"B"_s))}, u"key"_s);
    QCOMPARE(loadedNames(keyed, u"key"_s), QStringList({u"B"_s}));
    // A record that was signed without the key has no place in a file that has one.
    keyed += plain.mid(plain.indexOf("\n+") + 1);
    QCOMPARE(loadedNames(keyed, u"key"_s), QStringList({u"B"_s}));
}

void tst_load::load_takesTheLaterOfTwoRecordsWithOneId()
{
    const VPrinterDriver driver = printer(u"early"_s);
    const QByteArray bytes =
        fileWith({recordFor(u"1"_s, driver), recordFor(u"2"_s, printer(u"A"_s)),
                  recordFor(u"3"_s, renamed(driver, u"late"_s))});
    QCOMPARE(loadedNames(bytes), QStringList({u"A"_s, u"late"_s}));
}

void tst_load::load_takesADriverHoweverItIsStored()
{
    const VPrinterDriver driver = printer(u"Axe"_s);
    const QByteArray start = "name=1\tid=" + idText(driver).toUtf8();
    const QByteArray json = jsonText(driver).toUtf8();
    const auto namesFor = [&](const QByteArray &name) {
        return loadedNames(
            fileWithPayload(start + "\tdriver=" + QByteArray(json).replace("Axe", name)));
    };
    QCOMPARE(namesFor("Axe"), QStringList{u"Axe"_s});
    // Needless escapes are read nevertheless, and those of the line are not those of the JSON.
    QCOMPARE(namesFor("A\\x78e"), QStringList{u"Axe"_s});
    QCOMPARE(namesFor("A\\\\\"e"), QStringList{u"A\"e"_s});
    // What is no UTF-8 is replaced as in any text.
    QCOMPARE(namesFor("A\xff"), QStringList{u"A\ufffd"_s});
    QCOMPARE(
        loadedNames(fileWithPayload("name=1\tdriver=" + json + "\tid=" + idText(driver).toUtf8())),
        QStringList{u"Axe"_s});
    QCOMPARE(loadedNames(fileWithPayload(start + "\tdriver={}\tdriver=" + json)),
             QStringList{u"Axe"_s});
    QCOMPARE(loadedNames(fileWithPayload(start + "\tdriver=" + json + "\tdriver={}")),
             QStringList());
}

void tst_load::load_takesAnInvalidDriver()
{
    QByteArray bytes = fileWith({recordFor(u"1"_s, invalidPrinter(u"A"_s))});
    QBuffer buffer(&bytes);
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QCOMPARE(database.count(), 1);
    QVERIFY(!database.values().first().isValid());
}

void tst_load::load_takesAnIdWithoutBraces()
{
    const VPrinterDriver driver = printer(u"A"_s);
    const QString bare = driver.dataId().toString(QUuid::WithoutBraces);
    QCOMPARE(loadedNames(fileWith({recordFor(u"1"_s, bare, jsonText(driver))})),
             QStringList({u"A"_s}));
}

void tst_load::load_leavesTheFileAsItIs()
{
    QByteArray bytes =
        fileWith({recordFor(u"1"_s, printer(u"A"_s)), recordFor(u"2"_s, QVariant(), QVariant())});
    const QByteArray before = bytes;
    QBuffer buffer(&bytes);
    {
        VPrintersDb database(&buffer, QString());
        database.init(false);
    }
    QCOMPARE(bytes, before);
}

// Cut the file after every byte: it always loads, and a longer prefix never holds fewer records.
void tst_load::load_survivesTruncationAtEveryByte()
{
    QBuffer whole;
    VPrintersDb writer(&whole, u"key"_s);
    writer.init(false);
    for (const VPrinterDriver &driver : printers({u"A"_s, u"B"_s, u"C"_s})) {
        writer.insert(driver);
        writer.commit();
    }
    qsizetype seen = 0;
    for (qsizetype size = 0; size <= whole.data().size(); ++size) {
        QByteArray bytes = whole.data().first(size);
        QBuffer file(&bytes);
        VPrintersDb database(&file, u"key"_s);
        database.init(false);
        const std::string where = "at byte " + std::to_string(size);
        QVERIFY2(!database.isNull(), where.c_str());
        QVERIFY2(database.count() >= seen, where.c_str());
        seen = database.count();
    }
    QCOMPARE(seen, 3);
}

QTEST_GUILESS_MAIN(tst_load)
#include "tst_load.moc"
