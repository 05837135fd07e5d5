// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// import: all of the records of all inputs are stored, or none is.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolFolder;
using Support::ToolRun;

class tst_import : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyFormOfInput_isTaken_data();
    void everyFormOfInput_isTaken();
    void theStandardInput_isTakenBesideFiles();
    void records_areAddedReplacedOrLeftAlone();
    void dryRun_storesNothing();
    void aFinding_namesFileLineRecordAndPlace_data();
    void aFinding_namesFileLineRecordAndPlace();
    void oneBadRecord_keepsAllOthersOut();
    void oneMissingFile_keepsAllOthersOut();
    void aRepeatedContentId_isRefused();
    void warnings_doNotKeepARecordOut();
    void hostileInput_isRefused_data();
    void hostileInput_isRefused();
    void nothingToImport_makesAnEmptyDatabase();
    void theSampleCatalogue_isTakenWhole();

private:
    static QStringList namesIn(const ToolFolder &folder);
};

namespace {

QByteArray compact(const QJsonObject &record)
{
    return QJsonDocument(record).toJson(QJsonDocument::Compact);
}

} // namespace

QStringList tst_import::namesIn(const ToolFolder &folder)
{
    QStringList names;
    for (const QJsonValue &machine : folder.run({u"list"_s, u"--json"_s}).array())
        names.append(machine["name"_L1].toString());
    return names;
}

void tst_import::everyFormOfInput_isTaken_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("names");
    const QByteArray a = compact(printerJson(u"A"_s));
    const QByteArray b = compact(printerJson(u"B"_s));
    const QByteArray pretty = QJsonDocument(printerJson(u"A"_s)).toJson();
    QTest::newRow("one object") << a << QStringList{u"A"_s};
    QTest::newRow("one object on many lines") << pretty << QStringList{u"A"_s};
    QTest::newRow("one object and blank lines") << "\n" + a + "\n\n" << QStringList{u"A"_s};
    QTest::newRow("an array") << "[" + a + ",\n" + b + "]" << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("an empty array") << QByteArray("[]") << QStringList();
    QTest::newRow("one record a line") << a + "\n" + b + "\n" << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("lines without a last end") << a + "\n" + b << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("lines with blank ones") << "\n" + a + "\n \n" + b << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("lines that end as on Windows") << a + "\r\n" + b + "\r\n"
                                                  << QStringList{u"A"_s, u"B"_s};
    QTest::newRow("a byte order mark") << "\xEF\xBB\xBF" + a << QStringList{u"A"_s};
    QTest::newRow("a byte order mark and lines")
        << "\xEF\xBB\xBF" + a + "\n" + b << QStringList{u"A"_s, u"B"_s};
}

void tst_import::everyFormOfInput_isTaken()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, names);
    const ToolFolder folder;
    const ToolRun run = folder.run({u"import"_s, folder.write(u"in.json"_s, text)});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(namesIn(folder), names);
}

void tst_import::theStandardInput_isTakenBesideFiles()
{
    const ToolFolder folder;
    const QString file = folder.write(u"a.json"_s, printerJson(u"A"_s));
    const ToolRun run = folder.run({u"import"_s, file, u"-"_s}, compact(printerJson(u"B"_s)));
    VERIFY_CODE(run, 0);
    QCOMPARE(namesIn(folder), QStringList({u"A"_s, u"B"_s}));
    const ToolRun bad = folder.run({u"import"_s, u"-"_s}, "{");
    VERIFY_CODE(bad, 1);
    QVERIFY2(bad.messages().startsWith(u"kilnjet: standard input:1: column 2: "_s),
             bad.err.constData());
}

void tst_import::records_areAddedReplacedOrLeftAlone()
{
    const ToolFolder folder;
    const auto import = [&](const QJsonArray &records) {
        return folder.run({u"--json"_s, u"import"_s, folder.write(u"in.json"_s, records)});
    };
    VERIFY_CODE(import({printerJson(u"A"_s), printerJson(u"B"_s)}), 0);
    const QJsonObject changed = Support::with(printerJson(u"B"_s), u"/config/experimental"_s, true);
    const ToolRun run = import({printerJson(u"A"_s), changed, printerJson(u"C"_s)});
    VERIFY_CODE(run, 0);
    const auto entry = [](const QString &name) {
        return QJsonArray{
            QJsonObject{{u"id"_s, Support::idOfPrinterJson(name)}, {u"name"_s, name}}};
    };
    QCOMPARE(run.object(),
             QJsonObject({{u"added"_s, entry(u"C"_s)},
                          {u"replaced"_s, entry(u"B"_s)},
                          {u"unchanged"_s, entry(u"A"_s)},
                          {u"dryRun"_s, false}}));
    QCOMPARE(folder.run({u"show"_s, u"B"_s, u"--json"_s}).object()["driver"_L1].toObject(),
             changed);

    const ToolRun text = folder.run({u"import"_s, u"in.json"_s});
    QVERIFY2(text.text().endsWith(u"Printers.tdb: 0 added, 0 replaced, 3 unchanged\n"_s),
             text.out.constData());
}

void tst_import::dryRun_storesNothing()
{
    const ToolFolder folder;
    const QString file = folder.write(u"a.json"_s, printerJson(u"A"_s));
    const ToolRun absent = folder.run({u"import"_s, u"--dry-run"_s, u"--json"_s, file});
    VERIFY_CODE(absent, 0);
    QCOMPARE(absent.object()["added"_L1].toArray().size(), 1);
    QVERIFY(absent.object()["dryRun"_L1].toBool());
    QVERIFY(!QFile::exists(folder.path(u"Printers.tdb"_s)));

    VERIFY_CODE(folder.run({u"import"_s, file}), 0);
    const QByteArray before = folder.read(u"Printers.tdb"_s);
    const QString other = folder.write(u"b.json"_s, printerJson(u"B"_s));
    const ToolRun present = folder.run({u"import"_s, u"--dry-run"_s, file, other});
    VERIFY_CODE(present, 0);
    QVERIFY2(present.text().contains(u"1 added, 0 replaced, 1 unchanged (nothing was stored)"_s),
             present.out.constData());
    QCOMPARE(folder.read(u"Printers.tdb"_s), before);
}

void tst_import::aFinding_namesFileLineRecordAndPlace_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const QByteArray good = compact(printerJson(u"A"_s));
    const QJsonObject broken =
        Support::with(printerJson(u"B"_s), u"/config/printerClass"_s, u"inkjet"_s);
    const QString reason = u"/config/printerClass: 'inkjet' is no value of PrinterClass; "
                           "did you mean 'Inkjet'?\n"_s;
    QTest::newRow("one object") << compact(broken) << u"kilnjet: in.json:1: "_s + reason;
    const QByteArray pretty = QJsonDocument(broken).toJson();
    const qsizetype line = pretty.first(pretty.indexOf("printerClass")).count('\n') + 1;
    QTest::newRow("an object on many lines")
        << pretty << u"kilnjet: in.json:%1: "_s.arg(line) + reason;
    QTest::newRow("an array") << "[\n" + good + ",\n" + compact(broken) + "]"
                              << u"kilnjet: in.json:3: record 2: "_s + reason;
    QTest::newRow("one record a line") << good + "\n\n" + compact(broken) + "\n"
                                       << u"kilnjet: in.json:3: record 2: "_s + reason;
    QTest::newRow("a broken line") << good
            + "\n{\"id\":,}\n" << u"kilnjet: in.json:2: record 2: column 7: a value is missing\n"_s;
    QTest::newRow("a line that is an array")
        << good + "\n[]\n"
        << u"kilnjet: in.json:2: record 2: an array stands where a record belongs\n"_s;
    QTest::newRow("a broken document")
        << QByteArray("[\n  {\"é\" 1}\n]") << u"kilnjet: in.json:2: column 8: a ':' is missing\n"_s;
    QTest::newRow("a key that stands twice")
        << "[\n" + good + ",\n{\"a\":{\"b\":1,\n\"b\":2}}]"
        << u"kilnjet: in.json:4: record 2: /a/b: column 1: this key stands twice in its object\n"_s;
    QTest::newRow("a missing key is looked for where it belongs")
        << QJsonDocument(Support::without(broken, u"/children/0/config/channels"_s)).toJson()
        << u": /children/0/config/channels: this key is missing\n"_s;
    QTest::newRow("a single number") << QByteArray("5") << u"kilnjet: in.json:1: column"_s;
    QTest::newRow("an array of numbers")
        << QByteArray("[5]")
        << u"kilnjet: in.json:1: record 1: 5 stands where a record belongs\n"_s;
}

void tst_import::aFinding_namesFileLineRecordAndPlace()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    const ToolFolder folder;
    const QString file = folder.write(u"in.json"_s, text);
    const ToolRun run = folder.run({u"import"_s, file});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.out, QByteArray());
    QVERIFY2(run.messages().contains(message), run.err.constData());
    QVERIFY2(run.messages().contains(u"kilnjet: nothing was imported: "_s), run.err.constData());
    QVERIFY(!QFile::exists(folder.path(u"Printers.tdb"_s)));

    const ToolRun json = folder.run({u"import"_s, u"--json"_s, file});
    VERIFY_CODE(json, 1);
    QCOMPARE(json.out, QByteArray());
    QVERIFY2(!json.error()["findings"_L1].toArray().isEmpty(), json.err.constData());
    QCOMPARE(json.error()["findings"_L1][0]["file"_L1].toString(), u"in.json"_s);
}

void tst_import::oneBadRecord_keepsAllOthersOut()
{
    const ToolFolder folder;
    VERIFY_CODE(folder.run({u"import"_s, folder.write(u"a.json"_s, printerJson(u"A"_s))}), 0);
    const QByteArray before = folder.read(u"Printers.tdb"_s);
    const QString good = folder.write(u"b.json"_s, printerJson(u"B"_s));
    const QString bad =
        folder.write(u"c.json"_s, Support::without(printerJson(u"A"_s), u"/children"_s));
    const ToolRun run = folder.run({u"import"_s, good, bad});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.messages().startsWith(u"kilnjet: c.json:1: /children: "_s), run.err.constData());
    QCOMPARE(folder.read(u"Printers.tdb"_s), before);
}

void tst_import::oneMissingFile_keepsAllOthersOut()
{
    const ToolFolder folder;
    const QString good = folder.write(u"a.json"_s, printerJson(u"A"_s));
    for (const QString &name : {u"missing.json"_s, u"."_s}) {
        const ToolRun run = folder.run({u"import"_s, good, name});
        VERIFY_CODE(run, 3);
        QVERIFY2(run.messages().startsWith(u"kilnjet: %1: cannot read the file: "_s.arg(name)),
                 run.err.constData());
        QVERIFY(!QFile::exists(folder.path(u"Printers.tdb"_s)));
    }
}

void tst_import::aRepeatedContentId_isRefused()
{
    const ToolFolder folder;
    const QString first = folder.write(u"a.json"_s, printerJson(u"A"_s));
    const QString second = folder.write(
        u"b.json"_s,
        QJsonArray{printerJson(u"B"_s), Support::with(printerJson(u"A"_s), u"/name"_s, u"Z"_s)});
    const ToolRun run = folder.run({u"import"_s, first, second});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.messages().contains(
                 u"record 2: this record has the content id of a.json and would replace it"_s),
             run.err.constData());
    VERIFY_CODE(folder.run({u"import"_s, first, first}), 1);
    QVERIFY(!QFile::exists(folder.path(u"Printers.tdb"_s)));
}

void tst_import::warnings_doNotKeepARecordOut()
{
    const ToolFolder folder;
    const QJsonObject record = Support::with(printerJson(u"A"_s), u"/owner"_s, u"me"_s);
    const QString file = folder.write(u"a.json"_s, record);
    const ToolRun run = folder.run({u"import"_s, file});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u": /owner: warning: no record has this key"_s),
             run.err.constData());
    const ToolRun json = folder.run({u"import"_s, u"--json"_s, file});
    VERIFY_CODE(json, 0);
    const QJsonObject warning = QJsonDocument::fromJson(json.err).object();
    QCOMPARE(warning["warning"_L1]["pointer"_L1].toString(), u"/owner"_s);
}

void tst_import::hostileInput_isRefused_data()
{
    QTest::addColumn<QByteArray>("text");
    const QByteArray good = compact(printerJson(u"A"_s));
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("NULs") << QByteArray(5000, '\0');
    QTest::newRow("arrays 100 000 deep") << QByteArray(100'000, '[') + QByteArray(100'000, ']');
    QTest::newRow("open arrays 100 000 deep") << QByteArray(100'000, '[');
    QTest::newRow("objects 100 000 deep") << QByteArray("{\"children\":[").repeated(100'000);
    QTest::newRow("cut short") << good.first(good.size() - 1);
    QTest::newRow("cut in the middle") << good.first(good.size() / 2);
    QTest::newRow("text behind the end") << good + "}";
    QTest::newRow("invalid UTF-8") << QByteArray(good).replace("made for", "made \xFF or");
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE{\0}\0", 6);
    QTest::newRow("a number beyond all bounds")
        << QByteArray(good).replace("\"maximumFaces\":4", "\"maximumFaces\":1e999");
    QTest::newRow("a million digits") << QByteArray(good).replace(
        "\"maximumFaces\":4", "\"maximumFaces\":" + QByteArray(1'000'000, '9'));
    QTest::newRow("a huge text where a name belongs")
        << QByteArray(good).replace("\"Inkjet\"", '"' + QByteArray(5'000'000, 'x') + '"');
    QTest::newRow("a database") << QByteArray("vdbtext\t1\tkey=id\n");
}

void tst_import::hostileInput_isRefused()
{
    QFETCH(QByteArray, text);
    const ToolFolder folder;
    const ToolRun run = folder.run({u"import"_s, folder.write(u"in.json"_s, text)});
    VERIFY_CODE(run, 1);
    QVERIFY(run.err.size() < 2000);
    VERIFY_CODE(folder.run({u"import"_s, u"-"_s}, text), 1);
    QVERIFY(!QFile::exists(folder.path(u"Printers.tdb"_s)));
}

void tst_import::nothingToImport_makesAnEmptyDatabase()
{
    const ToolFolder folder;
    VERIFY_CODE(folder.run({u"import"_s, u"-"_s}, "[]"), 0);
    QCOMPARE(folder.run({u"list"_s, u"--json"_s}).out, QByteArray("[\n]\n"));
    VERIFY_CODE(folder.run({u"verify"_s}), 0);
}

void tst_import::theSampleCatalogue_isTakenWhole()
{
    const ToolFolder folder;
    const QDir samples(QStringLiteral(CATALOGUE));
    QStringList arguments{u"import"_s};
    for (const QString &name : samples.entryList({u"*.json"_s}))
        arguments.append(samples.filePath(name));
    const ToolRun run = folder.run(arguments);
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(namesIn(folder).size(), arguments.size() - 1);
    const ToolRun again = folder.run(arguments);
    QVERIFY2(again.text().contains(u" 0 added, 0 replaced, "_s), again.out.constData());
}

QTEST_GUILESS_MAIN(tst_import)
#include "tst_import.moc"
