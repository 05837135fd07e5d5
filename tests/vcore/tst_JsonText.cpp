// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VJsonText.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_JsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainText_readsLikeADocument_data();
    void plainText_readsLikeADocument();
    void whatIsNotPlain_isRefused_data();
    void whatIsNotPlain_isRefused();
    void everyByteAnywhereInAString_isReadLikeADocumentOrRefused();
    void numbers_readLikeADocument_data();
    void numbers_readLikeADocument();
    void valuesOfAnotherType_giveTheFallback();
    void manyKeysInNoOrder_areRefused();
    void everyPrefixIsRefused();
    void parsingAgain_forgetsTheFirstText();
};

void tst_JsonText::plainText_readsLikeADocument_data()
{
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const char *name, const QByteArray &json) { QTest::newRow(name) << json; };
    row("an empty object", "{}");
    row("members of every type", R"({"a":1,"b":"x","c":true,"d":false,"e":null,"f":{},"g":[]})");
    row("members in no order", R"({"z":1,"a":2,"m":{"y":[],"b":{}}})");
    row("blanks everywhere", " \t\r\n{ \"a\" : [ 1 , 2 ] , \"b\" : { } } \n");
    row("nested arrays", R"({"a":[[1,[2,[]]],[[3]]]})");
    row("letters of many scripts", R"({"näme":"日本語 Плотер 😀 ümlaut"})");
    row("strings of all lengths",
        R"({"":"","1":"1","22":"22","7777777":"7777777",)"
        R"("88888888":"88888888","999999999":"99999999é"})");
    row("the delete character", "{\"a\":\"\x7f\"}");
    row("a no-character", "{\"a\":\"\xef\xbf\xbf\"}");
}

void tst_JsonText::plainText_readsLikeADocument()
{
    QFETCH(QByteArray, json);
    VJsonText text;
    QVERIFY(text.parse(json));
    const QJsonDocument document = QJsonDocument::fromJson(json);
    QVERIFY(document.isObject());
    QCOMPARE(text.object().toJsonObject(), document.object());
    const QJsonObject object = document.object();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QByteArray key = it.key().toUtf8();
        const VJsonTextValue value = text.object().value(QLatin1StringView(key));
        QCOMPARE(value.toJsonValue(), it.value());
        QCOMPARE(value.toString(), it.value().toString());
        QCOMPARE(value.toBool(), it.value().toBool());
        QCOMPARE(value.toArray().toJsonArray(), it.value().toArray());
        QJsonArray elements;
        for (const VJsonTextValue &element : value.toArray())
            elements.append(element.toJsonValue());
        QCOMPARE(elements, it.value().toArray());
    }
}

void tst_JsonText::whatIsNotPlain_isRefused_data()
{
    QTest::addColumn<QByteArray>("json");
    const auto row = [](const char *name, const QByteArray &json) { QTest::newRow(name) << json; };
    row("nothing", "");
    row("a bare value", "1");
    row("an array", "[]");
    row("a byte order mark", "\xef\xbb\xbf{}");
    row("a byte order mark in a string", "{\"a\":\"\xef\xbb\xbf\"}");
    row("a byte order mark in a key", "{\"\xef\xbb\xbf\":1}");
    row("an escape", R"({"a":"\n"})");
    row("an escape in a key", R"({"\u0061":1})");
    row("a control character", "{\"a\":\"\n\"}");
    row("a NUL in a string", QByteArray("{\"a\":\"\0\"}", 9));
    row("a NUL after the text", QByteArray("{}\0", 3));
    row("trailing text", "{} {}");
    row("a trailing comma", R"({"a":1,})");
    row("a comma and nothing before", R"({,"a":1})");
    row("no comma", R"({"a":1 "b":2})");
    row("no colon", R"({"a" 1})");
    row("a key without quotes", R"({a:1})");
    row("a key twice", R"({"a":1,"a":2})");
    row("a key twice, not side by side", R"({"a":1,"b":2,"a":3})");
    row("a word that is none", R"({"a":truE})");
    row("invalid UTF-8", "{\"a\":\"\xff\"}");
    row("a cut sequence", "{\"a\":\"\xc3\"}");
    row("a sequence of three that ends early", "{\"a\":\"\xe2\x82\"}");
    row("a sequence of four that ends early", "{\"a\":\"\xf0\x9f\x98\"}");
    for (const char *const cut :
         {"\xc3", "\xe0", "\xe2\x82", "\xed", "\xf0", "\xf0\x9f\x98", "\xf4"})
        QTest::addRow("an end inside a sequence, 0x%02x", uchar(*cut))
            << QByteArray("{\"a\":\"") + cut;
    row("an overlong sequence", "{\"a\":\"\xc0\xaf\"}");
    row("an overlong sequence of three", "{\"a\":\"\xe0\x80\xaf\"}");
    row("an overlong sequence of four", "{\"a\":\"\xf0\x80\x80\xaf\"}");
    row("a surrogate in UTF-8", "{\"a\":\"\xed\xa0\x80\"}");
    row("beyond Unicode", "{\"a\":\"\xf4\x90\x80\x80\"}");
    row("a plus sign", R"({"a":+1})");
    row("a leading zero", R"({"a":01})");
    row("a number without a whole part", R"({"a":.5})");
    row("a number that ends in its point", R"({"a":1.})");
    row("a lone minus", R"({"a":-})");
    row("an exponent", R"({"a":1e3})");
    row("sixteen whole digits", R"({"a":1234567890123456})");
    row("eighteen digits", R"({"a":1.23456789012345678})");
    row("depth", QByteArray(R"({"a":)") + QByteArray(40, '[') + QByteArray(40, ']') + '}');
}

void tst_JsonText::whatIsNotPlain_isRefused()
{
    QFETCH(QByteArray, json);
    VJsonText text;
    QVERIFY(!text.parse(json));
    QVERIFY(text.object().toJsonObject().isEmpty());
}

/// Strings are skipped in blocks, so what stops at a byte must do so wherever in a block it stands.
void tst_JsonText::everyByteAnywhereInAString_isReadLikeADocumentOrRefused()
{
    const QByteArray start = R"({"a":")";
    for (int length = 1; length <= 40; ++length) {
        for (int place = 0; place < length; ++place) {
            for (int byte = 0; byte < 256; ++byte) {
                QByteArray content(length, 'x');
                content[place] = char(byte);
                const QByteArray json = start + content + R"("})";
                VJsonText text;
                const bool isPlain = byte >= 0x20 && byte < 0x80 && byte != '"' && byte != '\\';
                if (text.parse(json) != isPlain)
                    QFAIL(qPrintable(u"byte %1 at %2 of %3"_s.arg(byte).arg(place).arg(length)));
                if (isPlain && text.object().value("a"_L1).toString().toLatin1() != content)
                    QFAIL(qPrintable(u"byte %1 at %2 of %3"_s.arg(byte).arg(place).arg(length)));
            }
        }
    }
    for (int place = 0; place <= 40; ++place) {
        const QByteArray json = start + QByteArray(place, 'x') + "\xc3\xa9" + R"("})";
        VJsonText text;
        QVERIFY(text.parse(json));
        QCOMPARE(text.object().toJsonObject(), QJsonDocument::fromJson(json).object());
    }
}

void tst_JsonText::numbers_readLikeADocument_data()
{
    QTest::addColumn<QByteArray>("digits");
    for (const char *digits : {"0",
                               "-0",
                               "0.0",
                               "-0.0",
                               "1",
                               "-1",
                               "1.0",
                               "0.5",
                               "4.50",
                               "2147483647",
                               "2147483648",
                               "-2147483648",
                               "-2147483649",
                               "3000000000",
                               "123456789012345",
                               "0.1",
                               "0.30000000000000",
                               "1.00000000000001",
                               "-123456.789012345",
                               "99999999999999.9",
                               "0.3333333333333333",
                               "0.16666666666666666",
                               "0.14285714285714285",
                               "1.4142135623730951",
                               "123456789012345.67",
                               "-0.0000000000000001"})
        QTest::newRow(digits) << QByteArray(digits);
}

void tst_JsonText::numbers_readLikeADocument()
{
    QFETCH(QByteArray, digits);
    const QByteArray json = "{\"n\":" + digits + '}';
    VJsonText text;
    QVERIFY(text.parse(json));
    const VJsonTextValue number = text.object().value("n"_L1);
    const QJsonValue expected = QJsonDocument::fromJson(json).object().value("n"_L1);
    QCOMPARE(number.toInt(-7), expected.toInt(-7));
    QCOMPARE(std::signbit(number.toDouble()), std::signbit(expected.toDouble()));
    QVERIFY(number.toDouble() == expected.toDouble());
    QCOMPARE(number.toString(), expected.toString());
}

void tst_JsonText::valuesOfAnotherType_giveTheFallback()
{
    VJsonText text;
    QVERIFY(text.parse(R"({"number":1,"text":"1","yes":true,"none":null})"));
    const VJsonTextObject object = text.object();
    QCOMPARE(object.value("text"_L1).toInt(5), 5);
    QCOMPARE(object.value("yes"_L1).toDouble(0.5), 0.5);
    QCOMPARE(object.value("number"_L1).toBool(true), true);
    QCOMPARE(object.value("number"_L1).toString(), QString());
    QVERIFY(object.value("none"_L1).toArray().isEmpty());
    QVERIFY(!object.value("none"_L1).isUndefined());
    QVERIFY(object.value("missing"_L1).isUndefined());
    QVERIFY(object.value("missing"_L1).toObject().value("deeper"_L1).isUndefined());
    QVERIFY(object.value("missing"_L1).toArray().toJsonArray().isEmpty());
    QVERIFY(object.value("missing"_L1).toJsonValue().isUndefined());
}

// Whether one of them stands there twice would take too long to find out.
void tst_JsonText::manyKeysInNoOrder_areRefused()
{
    const auto descending = [](int count) {
        QByteArrayList members;
        for (int i = 0; i < count; ++i)
            members.append('"' + QByteArray::number(999 - i) + "\":0");
        return '{' + members.join(',') + '}';
    };
    VJsonText text;
    QVERIFY(text.parse(descending(64)));
    QVERIFY(!text.parse(descending(65)));
}

void tst_JsonText::everyPrefixIsRefused()
{
    const QByteArray json = R"({"a":[1,-2.5,"text",{"b":true,"c":null}],"d":{}})";
    for (qsizetype size = 0; size < json.size(); ++size) {
        // Exactly sized, for the address sanitizer.
        const QByteArray prefix(json.constData(), size);
        VJsonText text;
        QVERIFY2(!text.parse(prefix), prefix.constData());
    }
}

void tst_JsonText::parsingAgain_forgetsTheFirstText()
{
    VJsonText text;
    QVERIFY(text.parse(R"({"a":1})"));
    QVERIFY(text.parse(R"({"b":2})"));
    QVERIFY(text.object().value("a"_L1).isUndefined());
    QCOMPARE(text.object().value("b"_L1).toInt(), 2);
    QVERIFY(!text.parse("{"));
    QVERIFY(text.object().value("b"_L1).isUndefined());
}

QTEST_APPLESS_MAIN(tst_JsonText)
#include "tst_JsonText.moc"
