// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VJsonWriter.h>

#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <limits>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

/// What QJsonDocument makes of the same value.
QByteArray documentOf(const QJsonValue &value)
{
    return QJsonDocument(QJsonObject{{"v"_L1, value}}).toJson(QJsonDocument::Compact);
}

template<typename Value>
QByteArray textOf(const Value &value)
{
    VJsonTextWriter writer;
    writer.object([&](auto &object) { object.insert("v"_L1, value); });
    return writer.text();
}

/// The same content through any writer.
template<typename Writer>
void fill(Writer &object)
{
    object.array("array"_L1, [](auto &array) {
        array.append(1);
        array.append(u"two"_s);
        array.object([](auto &element) { element.insert("three"_L1, true); });
        array.object([](auto &) {});
    });
    object.array("empty"_L1, [](auto &) {});
    object.insertPlain("id"_L1, "{1}");
    object.object("object"_L1, [](auto &inner) { inner.insert("double"_L1, 0.5); });
}

} // namespace

class tst_JsonWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void strings_areEscapedLikeADocument();
    void surrogates_areWrittenLikeADocument();
    void numbers_areWrittenLikeADocument_data();
    void numbers_areWrittenLikeADocument();
    void textAndTree_sayTheSame();
    void readyMadeValues_areTakenOver();
};

void tst_JsonWriter::strings_areEscapedLikeADocument()
{
    for (char16_t c = 0; c < 0x3000; ++c) {
        const QString text = u"a"_s + QChar(c) + u"\"z"_s;
        QCOMPARE(textOf(text), documentOf(text));
    }
    QCOMPARE(textOf(QString()), documentOf(QString()));
}

void tst_JsonWriter::surrogates_areWrittenLikeADocument()
{
    const QString pair = u"😀"_s;
    for (const QString &text :
         {pair, pair.first(1), pair.last(1), pair.first(1) + u"x"_s, pair.last(1) + pair.first(1),
          pair.first(1) + pair, u"日本"_s + pair + u"\n"_s})
        QCOMPARE(textOf(text), documentOf(text));
}

void tst_JsonWriter::numbers_areWrittenLikeADocument_data()
{
    QTest::addColumn<double>("number");
    using Limits = std::numeric_limits<double>;
    for (const double number : {0.0,
                                -0.0,
                                1.0,
                                -1.0,
                                0.5,
                                0.1,
                                1.0 / 3.0,
                                1e9,
                                -1e9,
                                123456789.0,
                                1e15,
                                9007199254740991.0,
                                9007199254740992.0,
                                9007199254740994.0,
                                -9007199254740992.0,
                                -9007199254740994.0,
                                36028797018963968.0,
                                9.2e18,
                                9.3e18,
                                1e21,
                                1e-7,
                                -2.5e-300,
                                Limits::max(),
                                Limits::min(),
                                Limits::denorm_min(),
                                Limits::quiet_NaN(),
                                Limits::infinity(),
                                -Limits::infinity()})
        QTest::addRow("%.17g", number) << number;
}

void tst_JsonWriter::numbers_areWrittenLikeADocument()
{
    QFETCH(double, number);
    QCOMPARE(textOf(number), documentOf(number));
    const int whole = number > -1e9 && number < 1e9 ? int(number) : 7;
    QCOMPARE(textOf(whole), documentOf(whole));
}

void tst_JsonWriter::textAndTree_sayTheSame()
{
    VJsonTextWriter text;
    text.object([](auto &object) { fill(object); });
    VJsonTreeWriter tree;
    fill(tree);
    QCOMPARE(text.text(), QJsonDocument(tree.members()).toJson(QJsonDocument::Compact));
    QCOMPARE(tree.members().value("array"_L1).toArray().size(), 4);
}

void tst_JsonWriter::readyMadeValues_areTakenOver()
{
    const QJsonObject object{{"b"_L1, QJsonArray{1, u"x"_s}}, {"a"_L1, u"é"_s}};
    QCOMPARE(textOf(object), documentOf(object));
    QCOMPARE(textOf(QJsonArray{object, 2}), documentOf(QJsonArray{object, 2}));
    QCOMPARE(textOf(QJsonArray{}), documentOf(QJsonArray{}));
}

QTEST_APPLESS_MAIN(tst_JsonWriter)
#include "tst_JsonWriter.moc"
