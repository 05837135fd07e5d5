// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The strict reader of JSON: what it takes, where it says that something is wrong.

#include "JsonScanner.h"
#include "LineIndex.h"
#include "support/RecordJson.h"
#include "support/Seed.h"

#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;

class tst_json_scanner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strictJson_isTaken_data();
    void strictJson_isTaken();
    void anythingElse_isRefusedWhereItGoesWrong_data();
    void anythingElse_isRefusedWhereItGoesWrong();
    void nesting_endsWhereQtEnds();
    void keysThatStandTwice_areNamed();
    void wantedValues_areLocated();
    void whatPasses_passesQtToo();
    void positions_countLinesAndCharacters();
};

void tst_json_scanner::strictJson_isTaken_data()
{
    QTest::addColumn<QByteArray>("text");
    const auto addRow = [](const char *name, const QByteArray &text) {
        QTest::newRow(name) << text;
    };
    addRow("an empty object", "{}");
    addRow("an empty array", " [ \t\r\n] ");
    addRow("every literal", "[true,false,null]");
    addRow("numbers", "[0,-0,10,1.5,-2.25e+10,1E-7,0.0e0]");
    addRow("the largest number", "[1.7976931348623157e308]");
    addRow("the smallest number", "[5e-324]");
    addRow("every escape", R"(["\"\\\/\b\f\n\r\t\u00e9\uD83c\uDFEd"])");
    addRow("UTF-8", "[\"\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x8F\xAD\"]");
    addRow("DEL in a text", "[\"\x7f\"]");
    addRow("a single value", "5");
    addRow("nested", R"({"a":{"b":[{"c":[[]]}]},"":0})");
}

void tst_json_scanner::strictJson_isTaken()
{
    QFETCH(QByteArray, text);
    JsonScanner scanner(text);
    const auto error = scanner.scan();
    QVERIFY2(!error, error ? qPrintable(error->reason) : "");
    QVERIFY(scanner.duplicates().isEmpty());
    QJsonParseError qtError;
    QJsonDocument::fromJson('[' + text + ']', &qtError);
    QCOMPARE(qtError.error, QJsonParseError::NoError);
}

void tst_json_scanner::anythingElse_isRefusedWhereItGoesWrong_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("offset");
    const auto addRow = [](const char *name, const QByteArray &text, int offset) {
        QTest::newRow(name) << text << offset;
    };
    addRow("nothing", "", 0);
    addRow("blanks", " \n ", 3);
    addRow("a bare word", "inkjet", 0);
    addRow("a literal cut short", "[tru]", 1);
    addRow("two values", "{} {}", 3);
    addRow("an open object", "{", 1);
    addRow("an open array", "[1", 2);
    addRow("a comma at the end", "[1,]", 3);
    addRow("a comma at the end of an object", "{\"a\":1,}", 7);
    addRow("no comma", "[1 2]", 3);
    addRow("no colon", "{\"a\" 1}", 5);
    addRow("no value", "{\"a\":}", 5);
    addRow("a key without quotes", "{a:1}", 1);
    addRow("single quotes", "['a']", 1);
    addRow("a comment", "[1 /* one */]", 3);
    addRow("the wrong bracket", "[1}", 2);
    addRow("a text without an end", "[\"abc", 5);
    addRow("a line end in a text", "[\"a\nb\"]", 3);
    addRow("NUL in a text", QByteArray("[\"a\0b\"]", 7), 3);
    addRow("NUL behind the end", QByteArray("[]\0", 3), 2);
    addRow("an unknown escape", "[\"\\x41\"]", 3);
    addRow("an escape cut short", "[\"\\u00\"]", 4);
    addRow("half a pair", "[\"\\ud83c\"]", 8);
    addRow("the second half first", "[\"\\udfed\"]", 8);
    addRow("two first halves", "[\"\\ud83c\\ud83c\"]", 14);
    addRow("a leading zero", "[01]", 3);
    addRow("a leading point", "[.5]", 1);
    addRow("a point at the end", "[1.]", 3);
    addRow("a plus", "[+1]", 1);
    addRow("a bare minus", "[-]", 2);
    addRow("no exponent", "[1e]", 3);
    addRow("infinity by size", "[1e999]", 6);
    addRow("zero by size", "[1e-999]", 7);
    addRow("NaN", "[NaN]", 1);
    addRow("Latin-1", "[\"caf\xE9\"]", 5);
    addRow("UTF-8 cut short", "[\"\xE4\xB8", 2);
    addRow("an overlong form", "[\"\xC0\xAF\"]", 2);
    addRow("a surrogate in UTF-8", "[\"\xED\xA0\x80\"]", 2);
    addRow("beyond Unicode", "[\"\xF5\x80\x80\x80\"]", 2);
    addRow("a byte order mark in front of a text", "[\"\xEF\xBB\xBFLine 1\"]", 2);
    addRow("a byte order mark as an escape", "[\"\\uFEFFLine 1\"]", 2);
    addRow("a byte order mark in front of a key", "{\"\xEF\xBB\xBFname\":1}", 2);
    addRow("a stray byte", "[\"a\x80\"]", 3);
}

void tst_json_scanner::anythingElse_isRefusedWhereItGoesWrong()
{
    QFETCH(QByteArray, text);
    QFETCH(int, offset);
    JsonScanner scanner(text);
    const auto error = scanner.scan();
    QVERIFY(error);
    QCOMPARE(int(error->offset), offset);
}

void tst_json_scanner::nesting_endsWhereQtEnds()
{
    for (int depth : {1, 1023, 1024, 1025, 100'000}) {
        const QByteArray text = QByteArray(depth, '[') + QByteArray(depth, ']');
        QJsonParseError error;
        QJsonDocument::fromJson(text, &error);
        QCOMPARE(!JsonScanner(text).scan(), error.error == QJsonParseError::NoError);
        QVERIFY(JsonScanner(QByteArray(depth, '[')).scan());
        QByteArray objects;
        for (int i = 0; i < depth; ++i)
            objects += "{\"a\":";
        QVERIFY(JsonScanner(objects).scan());
    }
}

void tst_json_scanner::keysThatStandTwice_areNamed()
{
    const QByteArray text = R"({"a":1,"b":{"c":1,"\u0063":2},"x/y~":[{"d":1},{"d":1,"d":2}]})";
    JsonScanner scanner(text);
    QVERIFY(!scanner.scan());
    QCOMPARE(scanner.duplicates().size(), 2);
    QCOMPARE(scanner.duplicates().at(0).pointer, u"/b/c"_s);
    QCOMPARE(scanner.duplicates().at(0).offset, text.indexOf("\"\\u0063\""));
    QCOMPARE(scanner.duplicates().at(1).pointer, u"/x~1y~0/1/d"_s);
    QCOMPARE(scanner.duplicates().at(1).offset, text.lastIndexOf("\"d\""));
}

void tst_json_scanner::wantedValues_areLocated()
{
    const QByteArray text = R"( {"a": [1, {"b": true}], "a/b": null} )";
    JsonScanner scanner(text);
    scanner.locate({u""_s, u"/a/1/b"_s, u"/a~1b"_s, u"/nowhere"_s});
    QVERIFY(!scanner.scan());
    QCOMPARE(scanner.offsets().size(), 3);
    QCOMPARE(scanner.offsets().value(u""_s), 1);
    QCOMPARE(scanner.offsets().value(u"/a/1/b"_s), text.indexOf("true"));
    QCOMPARE(scanner.offsets().value(u"/a~1b"_s), text.indexOf("null"));
}

// Qt's parser is the one that builds the values, so it must never fail behind this one.
void tst_json_scanner::whatPasses_passesQtToo()
{
    QRandomGenerator random(Support::seed());
    const QByteArray sample = QJsonDocument(Support::printerJson(u"é\U0001F3ED\\\""_s)).toJson()
        + "[1e5,-0.5,\"\\u00e9\"]";
    int passed = 0;
    for (int round = 0; round < 20'000; ++round) {
        const int begin = random.bounded(int(sample.size()));
        QByteArray text =
            "[" + sample.sliced(begin, random.bounded(int(sample.size()) - begin)) + "]";
        for (int changes = random.bounded(4); changes > 0 && !text.isEmpty(); --changes) {
            const int at = random.bounded(int(text.size()));
            const char bytes[] = "{}[]\",:\\ueE+-.019tfn \n\x80\xC3\xA9";
            switch (random.bounded(3)) {
            case 0:
                text[at] = bytes[random.bounded(int(sizeof(bytes)) - 1)];
                break;
            case 1:
                text.insert(at, bytes[random.bounded(int(sizeof(bytes)) - 1)]);
                break;
            default:
                text.remove(at, 1);
            }
        }
        if (JsonScanner(text).scan())
            continue;
        ++passed;
        QJsonParseError error;
        QJsonDocument::fromJson("[" + text + "]", &error);
        QVERIFY2(error.error == QJsonParseError::NoError, text.constData());
    }
    QVERIFY(passed > 0);
}

void tst_json_scanner::positions_countLinesAndCharacters()
{
    const QByteArray text = "{\n  \"é\": 中,\n\n}";
    const LineIndex index(text);
    const auto check = [&](qsizetype offset, qint64 line, qint64 column) {
        const TextPosition position = index.position(offset);
        return position.line == line && position.column == column;
    };
    QVERIFY(check(0, 1, 1));
    QVERIFY(check(1, 1, 2));
    QVERIFY(check(2, 2, 1));
    QVERIFY(check(text.indexOf("中"), 2, 8));
    QVERIFY(check(text.indexOf(','), 2, 9));
    QVERIFY(check(text.indexOf('}'), 4, 1));
    QVERIFY(check(text.size(), 4, 2));
    QVERIFY(check(text.size() + 100, 4, 2));
    QVERIFY(check(-1, 1, 1));
    QCOMPARE(LineIndex(QByteArrayView()).position(0).line, 1);
}

QTEST_GUILESS_MAIN(tst_json_scanner)
#include "tst_json_scanner.moc"
