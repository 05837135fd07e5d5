// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Seed.h"

#include <vcore/VConvert.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QUuid>
#include <QtTest/QTest>

#include <bit>
#include <cmath>
#include <limits>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
constexpr qint64 kSmallest = std::numeric_limits<qint64>::min();

const QLocale kC = QLocale::c();
const QLocale kGerman(QLocale::German, QLocale::Germany);

} // namespace

class tst_Convert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_writesIntegersAsTheLocaleDoes();
    void toString_writesDoublesInTheFormat_data();
    void toString_writesDoublesInTheFormat();
    void toString_writesTheShortestTextForAnyOtherFormat_data();
    void toString_writesTheShortestTextForAnyOtherFormat();
    void toString_writesDoublesThatReadBackTheSame();
    void toString_writesVariants_data();
    void toString_writesVariants();
    void toInt64_readsWhatTheLocaleWrites_data();
    void toInt64_readsWhatTheLocaleWrites();
    void toInt64_readsOtherBasesInPlainDigits_data();
    void toInt64_readsOtherBasesInPlainDigits();
};

void tst_Convert::toString_writesIntegersAsTheLocaleDoes()
{
    QCOMPARE(VConvert::toString(0, kC), u"0"_s);
    QCOMPARE(VConvert::toString(1234567, kC), u"1234567"_s);
    QCOMPARE(VConvert::toString(1234567, kGerman), u"1.234.567"_s);
    QCOMPARE(VConvert::toString(std::numeric_limits<int>::min(), kC), u"-2147483648"_s);
    QCOMPARE(VConvert::toString(kLargest, kC), u"9223372036854775807"_s);
    QCOMPARE(VConvert::toString(kSmallest, kC), u"-9223372036854775808"_s);
    QCOMPARE(VConvert::toString(-5, QLocale(QLocale::Swedish)), u"\u22125"_s);
}

void tst_Convert::toString_writesDoublesInTheFormat_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("two decimals") << 3.14159 << u"f2"_s << kC << u"3.14"_s;
    QTest::newRow("no decimals") << 2.4 << u"f0"_s << kC << u"2"_s;
    QTest::newRow("more decimals than there are") << 0.5 << u"f4"_s << kC << u"0.5000"_s;
    QTest::newRow("two digits of precision") << 0.5 << u"f12"_s << kC << u"0.500000000000"_s;
    QTest::newRow("significant digits") << 3.14159 << u"g3"_s << kC << u"3.14"_s;
    QTest::newRow("significant digits of a large number")
        << 1234567.0 << u"g6"_s << kC << u"1.23457e+06"_s;
    QTest::newRow("an exponent") << 1234.5 << u"e2"_s << kC << u"1.23e+03"_s;
    QTest::newRow("an exponent in capitals") << 1234.5 << u"E2"_s << kC << u"1.23E+03"_s;
    QTest::newRow("significant digits in capitals") << 1e9 << u"G3"_s << kC << u"1E+09"_s;
    QTest::newRow("decimals in capitals") << 0.5 << u"F2"_s << kC << u"0.50"_s;
    QTest::newRow("another locale") << 1234.5 << u"f2"_s << kGerman << u"1.234,50"_s;
    QTest::newRow("a negative number") << -0.26 << u"f1"_s << kC << u"-0.3"_s;
}

void tst_Convert::toString_writesDoublesInTheFormat()
{
    QFETCH(const double, value);
    QFETCH(const QString, format);
    QFETCH(const QLocale, locale);
    QTEST(VConvert::toString(value, format, locale), "text");
}

void tst_Convert::toString_writesTheShortestTextForAnyOtherFormat_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("a null format") << QString();
    QTest::newRow("an empty format") << u""_s;
    QTest::newRow("a letter alone") << u"f"_s;
    QTest::newRow("a precision alone") << u"2"_s;
    QTest::newRow("an unknown letter") << u"x2"_s;
    QTest::newRow("the precision first") << u"2f"_s;
    QTest::newRow("a negative precision") << u"f-1"_s;
    QTest::newRow("a precision of three digits") << u"f100"_s;
    QTest::newRow("a blank") << u"f 2"_s;
    QTest::newRow("a blank behind") << u"f2 "_s;
    QTest::newRow("digits of another script") << u"f\u0662"_s;
    QTest::newRow("a printf format") << u"%f"_s;
}

void tst_Convert::toString_writesTheShortestTextForAnyOtherFormat()
{
    QFETCH(const QString, format);
    QCOMPARE(VConvert::toString(0.1, format, kC), u"0.1"_s);
    QCOMPARE(VConvert::toString(2.0, format, kC), u"2"_s);
    QCOMPARE(VConvert::toString(0.5, format, kGerman), u"0,5"_s);
}

void tst_Convert::toString_writesDoublesThatReadBackTheSame()
{
    QRandomGenerator random(Support::seed());
    for (int i = 0; i < 5000; ++i) {
        const double value = std::bit_cast<double>(random.generate64());
        if (!std::isfinite(value))
            continue;
        const QString text = VConvert::toString(value, QString(), kC);
        bool ok = false;
        QCOMPARE(std::bit_cast<quint64>(kC.toDouble(text, &ok)), std::bit_cast<quint64>(value));
        QVERIFY(ok);
    }
}

void tst_Convert::toString_writesVariants_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    const QUuid id(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s);
    QTest::newRow("nothing") << QVariant() << kC << QString();
    QTest::newRow("a text") << QVariant(u"tiles"_s) << kGerman << u"tiles"_s;
    QTest::newRow("an int") << QVariant(1234) << kGerman << u"1.234"_s;
    QTest::newRow("an unsigned int") << QVariant(4000000000U) << kC << u"4000000000"_s;
    QTest::newRow("a short") << QVariant::fromValue(short(-1234)) << kGerman << u"-1.234"_s;
    QTest::newRow("an unsigned short")
        << QVariant::fromValue(ushort(65535)) << kGerman << u"65.535"_s;
    QTest::newRow("a long") << QVariant::fromValue(1234L) << kGerman << u"1.234"_s;
    QTest::newRow("an unsigned long") << QVariant::fromValue(1234UL) << kGerman << u"1.234"_s;
    QTest::newRow("the smallest integer") << QVariant(kSmallest) << kC << u"-9223372036854775808"_s;
    QTest::newRow("the largest unsigned")
        << QVariant(std::numeric_limits<quint64>::max()) << kC << u"18446744073709551615"_s;
    QTest::newRow("a double") << QVariant(0.1) << kGerman << u"0,1"_s;
    QTest::newRow("a boolean") << QVariant(true) << kGerman << u"true"_s;
    QTest::newRow("an id") << QVariant(id) << kGerman << id.toString();
    QTest::newRow("a list, which has no text") << QVariant(QVariantList{1, 2}) << kC << QString();
}

void tst_Convert::toString_writesVariants()
{
    QFETCH(const QVariant, value);
    QFETCH(const QLocale, locale);
    QTEST(VConvert::toString(value, locale), "text");
}

void tst_Convert::toInt64_readsWhatTheLocaleWrites_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<qint64>("value");
    QTest::newRow("digits") << u"42"_s << kC << qint64(42);
    QTest::newRow("a negative number") << u"-42"_s << kC << qint64(-42);
    QTest::newRow("the largest") << u"9223372036854775807"_s << kC << kLargest;
    QTest::newRow("the smallest") << u"-9223372036854775808"_s << kC << kSmallest;
    QTest::newRow("one too many") << u"9223372036854775808"_s << kC << qint64(0);
    QTest::newRow("another locale's groups") << u"1.234.567"_s << kGerman << qint64(1234567);
    QTest::newRow("a null text") << QString() << kC << qint64(0);
    QTest::newRow("an empty text") << u""_s << kC << qint64(0);
    QTest::newRow("letters") << u"many"_s << kC << qint64(0);
    QTest::newRow("digits and letters") << u"12 bytes"_s << kC << qint64(0);
    QTest::newRow("a fraction") << u"1.5"_s << kC << qint64(0);
    QTest::newRow("an exponent") << u"1e3"_s << kC << qint64(0);
}

void tst_Convert::toInt64_readsWhatTheLocaleWrites()
{
    QFETCH(const QString, text);
    QFETCH(const QLocale, locale);
    QTEST(VConvert::toInt64(text, locale), "value");
    QTEST(VConvert::toInt64(text, locale, 10), "value");
}

void tst_Convert::toInt64_readsOtherBasesInPlainDigits_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("base");
    QTest::addColumn<qint64>("value");
    QTest::newRow("binary") << u"1010"_s << 2 << qint64(10);
    QTest::newRow("hexadecimal") << u"ff"_s << 16 << qint64(255);
    QTest::newRow("the largest base") << u"z"_s << 36 << qint64(35);
    QTest::newRow("a digit beyond the base") << u"12"_s << 2 << qint64(0);
    QTest::newRow("base 0") << u"12"_s << 0 << qint64(0);
    QTest::newRow("base 1") << u"11"_s << 1 << qint64(0);
    QTest::newRow("base 37") << u"12"_s << 37 << qint64(0);
    QTest::newRow("a negative base") << u"12"_s << -10 << qint64(0);
}

void tst_Convert::toInt64_readsOtherBasesInPlainDigits()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    QFETCH(const QString, text);
    QFETCH(const int, base);
    QTEST(VConvert::toInt64(text, kC, base), "value");
}

QTEST_GUILESS_MAIN(tst_Convert)
#include "tst_Convert.moc"
