// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumNames.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

/// Bits 1, 2 and 4, the union of the first two, and, out of order, a bit 16.
VEnumNames sample()
{
    VEnumNames names;
    names.add(0, u"None"_s);
    names.add(16, u"Far"_s);
    names.add(1, u"Red"_s);
    names.add(2, u"Green"_s);
    names.add(3, u"Yellow"_s);
    names.add(4, u"Blue"_s);
    names.add(4, u"Azure"_s);
    return names;
}

const QLocale kC = QLocale::c();

} // namespace

class tst_EnumNamesOfFlags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void flagsToString_writesWhatTheNamesCover_data();
    void flagsToString_writesWhatTheNamesCover();
    void flagsToString_writesAnUncoveredNumberAsTheLocaleDoes();
    void flagsToString_withoutNamesWritesNumbers();
    void flagsFromString_unitesTheNames_data();
    void flagsFromString_unitesTheNames();
    void flagsFromString_readsWhatFlagsToStringWrote();
};

void tst_EnumNamesOfFlags::flagsToString_writesWhatTheNamesCover_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero with a name") << 0 << u"None"_s;
    QTest::newRow("a single flag") << 2 << u"Green"_s;
    QTest::newRow("a flag with two names") << 4 << u"Blue"_s;
    QTest::newRow("a combination with its own name") << 3 << u"Yellow"_s;
    QTest::newRow("a combination without one") << 5 << u"Red, Blue"_s;
    QTest::newRow("the order in which flags were added") << 20 << u"Far, Blue"_s;
    QTest::newRow("a named combination stays beside its flags")
        << 7 << u"Red, Green, Yellow, Blue"_s;
    QTest::newRow("a bit without a name") << 8 << u"8"_s;
    QTest::newRow("a named and an unnamed bit") << 9 << u"9"_s;
    QTest::newRow("a negative number") << -1 << u"-1"_s;
}

void tst_EnumNamesOfFlags::flagsToString_writesWhatTheNamesCover()
{
    QFETCH(const int, number);
    QTEST(sample().flagsToString(number, kC), "text");
}

void tst_EnumNamesOfFlags::flagsToString_writesAnUncoveredNumberAsTheLocaleDoes()
{
    QCOMPARE(sample().flagsToString(4096, QLocale(QLocale::German)), u"4.096"_s);
    QCOMPARE(sample().flagsToString(-1, QLocale(QLocale::Swedish)), u"\u22121"_s);
}

void tst_EnumNamesOfFlags::flagsToString_withoutNamesWritesNumbers()
{
    const VEnumNames none;
    QCOMPARE(none.flagsToString(0, kC), u"0"_s);
    QCOMPARE(none.flagsToString(3, kC), u"3"_s);
}

void tst_EnumNamesOfFlags::flagsFromString_unitesTheNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fallback");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("known");
    QTest::newRow("one name") << u"Green"_s << 0 << 2 << true;
    QTest::newRow("two names") << u"Red, Blue"_s << 0 << 5 << true;
    QTest::newRow("no blank behind the comma") << u"Red,Blue"_s << 0 << 5 << true;
    QTest::newRow("blanks everywhere") << u"  Red ,\tBlue "_s << 0 << 5 << true;
    QTest::newRow("the same name twice") << u"Red, Red"_s << 0 << 1 << true;
    QTest::newRow("a combination and its flag") << u"Yellow, Red"_s << 0 << 3 << true;
    QTest::newRow("a second name") << u"Azure"_s << 0 << 4 << true;
    QTest::newRow("zero adds nothing") << u"None, Red"_s << 0 << 1 << true;
    QTest::newRow("an unknown part") << u"Red, Ultraviolet"_s << 0 << 1 << false;
    QTest::newRow("an unknown part adds the fallback")
        << u"Red, Ultraviolet"_s << 16 << 17 << false;
    QTest::newRow("only unknown parts") << u"Ultraviolet, Infrared"_s << 16 << 16 << false;
    QTest::newRow("an empty text is one unknown part") << u""_s << 4 << 4 << false;
    QTest::newRow("so is a null text") << QString() << 4 << 4 << false;
    QTest::newRow("an empty part at the end") << u"Red,"_s << 4 << 5 << false;
    QTest::newRow("an empty part in the middle") << u"Red,,Green"_s << 4 << 7 << false;
    QTest::newRow("digits") << u"3"_s << 0 << 0 << false;
    QTest::newRow("another separator") << u"Red; Blue"_s << 0 << 0 << false;
    QTest::newRow("the wrong case") << u"red, Blue"_s << 0 << 4 << false;
}

void tst_EnumNamesOfFlags::flagsFromString_unitesTheNames()
{
    QFETCH(const QString, text);
    QFETCH(const int, fallback);
    QFETCH(const bool, known);
    bool ok = !known;
    QTEST(int(sample().flagsFromString(text, fallback, Qt::CaseSensitive, &ok)), "number");
    QCOMPARE(ok, known);
}

void tst_EnumNamesOfFlags::flagsFromString_readsWhatFlagsToStringWrote()
{
    const VEnumNames names = sample();
    for (int number = 0; number < 32; ++number) {
        const QString text = names.flagsToString(number, kC);
        bool ok = false;
        const qint64 read = names.flagsFromString(text, -9, Qt::CaseInsensitive, &ok);
        const bool named = (number & 8) == 0;
        QCOMPARE(ok, named);
        QCOMPARE(read, named ? number : -9);
    }
}

QTEST_GUILESS_MAIN(tst_EnumNamesOfFlags)
#include "tst_EnumNamesOfFlags.moc"
