// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Text for people: nothing in it steers a terminal, columns are aligned, slips are understood.

#include "Nearest.h"
#include "Text.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;

class tst_text : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void printable_escapesWhatSteersATerminal_data();
    void printable_escapesWhatSteersATerminal();
    void displayWidth_countsColumns_data();
    void displayWidth_countsColumns();
    void wrapped_breaksAtBlanks();
    void aTable_isAligned();
    void editDistance_countsSlips_data();
    void editDistance_countsSlips();
    void nearestName_isWhatWasMeant_data();
    void nearestName_isWhatWasMeant();
};

void tst_text::printable_escapesWhatSteersATerminal_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << u"Línea 1 中 \U0001F3ED"_s << u"Línea 1 中 \U0001F3ED"_s;
    QTest::newRow("an escape sequence") << u"\u001b[2J"_s << u"\\u001b[2J"_s;
    QTest::newRow("line ends") << u"a\r\nb\tc"_s << u"a\\u000d\\u000ab\\u0009c"_s;
    QTest::newRow("NUL") << QString(1, QChar(u'\0')) << u"\\u0000"_s;
    QTest::newRow("DEL and C1") << u"\u007f\u009b1m"_s << u"\\u007f\\u009b1m"_s;
    QTest::newRow("an override") << u"a\u202eb\u2066c"_s << u"a\\u202eb\\u2066c"_s;
    QTest::newRow("separators") << u"\u2028\u2029"_s << u"\\u2028\\u2029"_s;
    QTest::newRow("a joiner stays")
        << u"\u0915\u094d\u200d\u0937"_s << u"\u0915\u094d\u200d\u0937"_s;
    QTest::newRow("half a pair") << QString(QChar(0xD83C)) + u'x' << u"\\ud83cx"_s;
    QTest::newRow("the other half") << u'x' + QString(QChar(0xDFED)) << u"x\\udfed"_s;
    QTest::newRow("empty") << QString() << QString();
}

void tst_text::printable_escapesWhatSteersATerminal()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(printable(text), expected);
}

void tst_text::displayWidth_countsColumns_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("width");
    QTest::newRow("empty") << QString() << 0;
    QTest::newRow("Latin") << u"Línea"_s << 5;
    QTest::newRow("a combining accent") << u"Li\u0301nea"_s << 5;
    QTest::newRow("Chinese") << u"喷墨机"_s << 6;
    QTest::newRow("kana") << u"プロッター"_s << 10;
    QTest::newRow("halfwidth kana") << u"ｱｲ"_s << 2;
    QTest::newRow("fullwidth Latin") << u"ＡＢ"_s << 4;
    QTest::newRow("Hangul") << u"고속"_s << 4;
    QTest::newRow("Arabic") << u"طابعة"_s << 5;
    QTest::newRow("an emoji") << u"\U0001F3ED"_s << 2;
    QTest::newRow("beyond the first plane") << u"\U00020000"_s << 2;
    QTest::newRow("a joiner") << u"a\u200db"_s << 2;
}

void tst_text::displayWidth_countsColumns()
{
    QFETCH(QString, text);
    QFETCH(int, width);
    QCOMPARE(displayWidth(text), width);
}

void tst_text::wrapped_breaksAtBlanks()
{
    QCOMPARE(wrapped(u"one two three"_s, 7), QStringList({u"one two"_s, u"three"_s}));
    QCOMPARE(wrapped(u"one  two"_s, 80), QStringList({u"one two"_s}));
    QCOMPARE(wrapped(u"incomprehensible"_s, 4), QStringList({u"incomprehensible"_s}));
    QCOMPARE(wrapped(QString(), 4), QStringList());
}

void tst_text::aTable_isAligned()
{
    TextTable table;
    table.addColumn(u"NAME"_s);
    table.addColumn(u"COUNT"_s, TextTable::Align::Right);
    table.addColumn(u"ID"_s);
    table.addRow({u"喷墨机"_s, u"4"_s, u"x"_s});
    table.addRow({u"a\u001b"_s, u"1000000"_s, QString()});
    QCOMPARE(table.toString(),
             u"NAME       COUNT  ID\n"
             "喷墨机         4  x\n"
             "a\\u001b  1000000\n"_s);
}

void tst_text::editDistance_countsSlips_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<int>("distance");
    QTest::newRow("nothing") << QString() << QString() << 0;
    QTest::newRow("from nothing") << QString() << u"abc"_s << 3;
    QTest::newRow("one changed") << u"inkjet"_s << u"inkjed"_s << 1;
    QTest::newRow("one added") << u"list"_s << u"lists"_s << 1;
    QTest::newRow("one dropped") << u"list"_s << u"lst"_s << 1;
    QTest::newRow("two swapped") << u"improt"_s << u"import"_s << 1;
    QTest::newRow("all other") << u"abc"_s << u"xyz"_s << 3;
    QTest::newRow("classic") << u"kitten"_s << u"sitting"_s << 3;
}

void tst_text::editDistance_countsSlips()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QFETCH(int, distance);
    QCOMPARE(editDistance(a, b), distance);
    QCOMPARE(editDistance(b, a), distance);
}

void tst_text::nearestName_isWhatWasMeant_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");
    QTest::newRow("itself") << u"Inkjet"_s << u"Inkjet"_s;
    QTest::newRow("another case") << u"INKJET"_s << u"Inkjet"_s;
    QTest::newRow("a slip") << u"Dyrjet"_s << u"Dryjet"_s;
    QTest::newRow("the nearer of two") << u"Drijet"_s << u"Dryjet"_s;
    QTest::newRow("its beginning") << u"plot"_s << u"Plotter"_s;
    QTest::newRow("too little of it") << u"pl"_s << QString();
    QTest::newRow("too far") << u"Teapot"_s << QString();
    QTest::newRow("empty") << QString() << QString();
    QTest::newRow("very long") << QString(100'000, u'I') << QString();
}

void tst_text::nearestName_isWhatWasMeant()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(nearestName(text, {u"Inkjet"_s, u"Dryjet"_s, u"Plotter"_s, QString(90'000, u'x')}),
             expected);
}

QTEST_GUILESS_MAIN(tst_text)
#include "tst_text.moc"
