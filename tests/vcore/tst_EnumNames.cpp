// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumNames.h>

#include <QtTest/QTest>

#include <limits>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

VEnumNames namesOf(std::initializer_list<std::pair<qint64, const char *>> rows)
{
    VEnumNames names;
    for (const auto &[number, name] : rows)
        names.add(number, QString::fromUtf8(name));
    return names;
}

const QLocale kC = QLocale::c();

} // namespace

class tst_EnumNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void add_keepsNumbersInTheOrderOfTheirFirstAdd();
    void add_keepsARepeatedNameOnce();
    void add_tellsNamesApartByCase();
    void toString_writesTheFirstNameOfANumber();
    void toString_writesANumberWithoutANameAsTheLocaleDoes();
    void fromString_readsEveryNameOfANumber();
    void fromString_trimsTheText_data();
    void fromString_trimsTheText();
    void fromString_neverReadsDigits();
    void fromString_prefersTheSmallestNumber();
    void fromString_comparesAsTheCallerAsks();
    void fromString_foldsCaseBeyondAscii();
    void fromString_needsNoSuccessFlag();
};

void tst_EnumNames::add_keepsNumbersInTheOrderOfTheirFirstAdd()
{
    const VEnumNames names = namesOf({{5, "five"}, {-1, "minus"}, {0, "zero"}, {5, "cinque"}});
    QCOMPARE(names.numbers(), (QList<qint64>{5, -1, 0}));
    QCOMPARE(names.names(5), (QStringList{u"five"_s, u"cinque"_s}));
    QCOMPARE(names.names(7), QStringList());
}

void tst_EnumNames::add_keepsARepeatedNameOnce()
{
    const VEnumNames names = namesOf({{1, "one"}, {1, "one"}, {1, "uno"}, {1, "one"}});
    QCOMPARE(names.numbers(), QList<qint64>{1});
    QCOMPARE(names.names(1), (QStringList{u"one"_s, u"uno"_s}));
}

void tst_EnumNames::add_tellsNamesApartByCase()
{
    const VEnumNames names = namesOf({{1, "One"}, {1, "one"}});
    QCOMPARE(names.names(1), (QStringList{u"One"_s, u"one"_s}));
}

void tst_EnumNames::toString_writesTheFirstNameOfANumber()
{
    const VEnumNames names = namesOf({{1, "macOS"}, {1, "OSX"}});
    QCOMPARE(names.toString(1, kC), u"macOS"_s);
}

void tst_EnumNames::toString_writesANumberWithoutANameAsTheLocaleDoes()
{
    const VEnumNames names = namesOf({{1, "one"}});
    QCOMPARE(names.toString(12345, kC), u"12345"_s);
    QCOMPARE(names.toString(12345, QLocale(QLocale::German)), u"12.345"_s);
    QCOMPARE(names.toString(-1, QLocale(QLocale::Swedish)), u"\u22121"_s);
    QCOMPARE(names.toString(std::numeric_limits<int>::min(), kC), u"-2147483648"_s);
}

void tst_EnumNames::fromString_readsEveryNameOfANumber()
{
    const VEnumNames names = namesOf({{1, "macOS"}, {1, "OSX"}, {2, "iOS"}});
    for (const auto &[text, number] : {std::pair(u"macOS"_s, 1), {u"OSX"_s, 1}, {u"iOS"_s, 2}}) {
        bool ok = false;
        QCOMPARE(names.fromString(text, -9, Qt::CaseSensitive, &ok), number);
        QVERIFY(ok);
    }
}

void tst_EnumNames::fromString_trimsTheText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("known");
    QTest::newRow("blanks around") << u"  Inkjet "_s << true;
    QTest::newRow("tabs and line ends around") << u"\t\r\nInkjet\n"_s << true;
    QTest::newRow("a no-break space around") << u"\u00A0Inkjet"_s << true;
    QTest::newRow("a blank inside") << u"Ink jet"_s << false;
    QTest::newRow("nothing") << u""_s << false;
    QTest::newRow("a null text") << QString() << false;
    QTest::newRow("only blanks") << u"   "_s << false;
    QTest::newRow("a part of a name") << u"Ink"_s << false;
    QTest::newRow("more than a name") << u"Inkjets"_s << false;
}

void tst_EnumNames::fromString_trimsTheText()
{
    QFETCH(const QString, text);
    QFETCH(const bool, known);
    const VEnumNames names = namesOf({{7, "Inkjet"}});
    bool ok = !known;
    QCOMPARE(names.fromString(text, -9, Qt::CaseSensitive, &ok), known ? 7 : -9);
    QCOMPARE(ok, known);
}

void tst_EnumNames::fromString_neverReadsDigits()
{
    const VEnumNames names = namesOf({{0, "zero"}, {1, "one"}});
    bool ok = true;
    QCOMPARE(names.fromString(u"1"_s, 0, Qt::CaseInsensitive, &ok), 0);
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(names.flagsFromString(u"1"_s, 0, Qt::CaseInsensitive, &ok), 0);
    QVERIFY(!ok);
}

void tst_EnumNames::fromString_prefersTheSmallestNumber()
{
    const VEnumNames names = namesOf({{5, "same"}, {3, "same"}, {4, "same"}, {2, "SAME"}});
    QCOMPARE(names.fromString(u"same"_s, 0, Qt::CaseSensitive, nullptr), 3);
    QCOMPARE(names.fromString(u"same"_s, 0, Qt::CaseInsensitive, nullptr), 2);
}

void tst_EnumNames::fromString_comparesAsTheCallerAsks()
{
    const VEnumNames names = namesOf({{1, "Inkjet"}});
    bool ok = true;
    QCOMPARE(names.fromString(u"inkjet"_s, -9, Qt::CaseSensitive, &ok), -9);
    QVERIFY(!ok);
    QCOMPARE(names.fromString(u"inkjet"_s, -9, Qt::CaseInsensitive, &ok), 1);
    QVERIFY(ok);
}

void tst_EnumNames::fromString_foldsCaseBeyondAscii()
{
    const VEnumNames names = namesOf({{1, "Größe"}});
    QCOMPARE(names.fromString(u"GRÖßE"_s, 0, Qt::CaseInsensitive, nullptr), 1);
    QCOMPARE(names.fromString(u"GRÖßE"_s, 0, Qt::CaseSensitive, nullptr), 0);
}

void tst_EnumNames::fromString_needsNoSuccessFlag()
{
    const VEnumNames names = namesOf({{1, "one"}});
    QCOMPARE(names.fromString(u"one"_s, 0, Qt::CaseSensitive, nullptr), 1);
    QCOMPARE(names.fromString(u"two"_s, 4, Qt::CaseSensitive, nullptr), 4);
    QCOMPARE(names.flagsFromString(u"one"_s, 0, Qt::CaseSensitive, nullptr), 1);
    QCOMPARE(names.flagsFromString(u"two"_s, 4, Qt::CaseSensitive, nullptr), 4);
}

QTEST_GUILESS_MAIN(tst_EnumNames)
#include "tst_EnumNames.moc"
