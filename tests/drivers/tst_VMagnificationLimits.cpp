// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VMagnificationLimits.h>

#include <QtTest/QTest>

#include <limits>
#include <memory>
#include <type_traits>

using namespace Qt::StringLiterals;
using Norvane::Kilnjet::VMagnificationLimits;

static_assert(std::is_copy_constructible_v<VMagnificationLimits>);
static_assert(std::is_copy_assignable_v<VMagnificationLimits>);
static_assert(std::is_base_of_v<std::pair<double, double>, VMagnificationLimits>);
static_assert(std::is_base_of_v<Norvane::Interfaces::IFormattable, VMagnificationLimits>);

class tst_VMagnificationLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void new_isZero();
    void copy_keepsBothValues();
    void toString_formatsEachValueByItsLine_data();
    void toString_formatsEachValueByItsLine();
    void toString_shortFormsForward();
};

void tst_VMagnificationLimits::new_isZero()
{
    const VMagnificationLimits limits;
    QCOMPARE(limits.first, 0.0);
    QCOMPARE(limits.second, 0.0);
}

void tst_VMagnificationLimits::copy_keepsBothValues()
{
    const VMagnificationLimits limits(3.0, 1.0); // The wrong way round: nobody minds.
    const VMagnificationLimits copy(limits);
    VMagnificationLimits assigned;
    assigned = limits;
    const std::unique_ptr<Norvane::Interfaces::ICloneable> clone(limits.clone());
    for (const auto *one : {&copy, &std::as_const(assigned),
                            static_cast<const VMagnificationLimits *>(clone.get())}) {
        QCOMPARE(one->first, 3.0);
        QCOMPARE(one->second, 1.0);
    }
}

void tst_VMagnificationLimits::toString_formatsEachValueByItsLine_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("no format: the shortest texts") << 0.5 << 2.0 << u""_s << u"C"_s << u"0.5; 2"_s;
    QTest::newRow("two lines, a format each")
        << 0.5 << 2.0 << u"f2\nf3"_s << u"C"_s << u"0.50; 2.000"_s;
    QTest::newRow("no line feed: the maximum takes the empty format")
        << 0.5 << 2.0 << u"f2"_s << u"C"_s << u"0.50; 2"_s;
    QTest::newRow("a line feed first: the minimum takes the empty format")
        << 0.5 << 2.0 << u"\nf2"_s << u"C"_s << u"0.5; 2.00"_s;
    QTest::newRow("a line feed last") << 0.5 << 2.0 << u"f2\n"_s << u"C"_s << u"0.50; 2"_s;
    QTest::newRow("a third line is ignored")
        << 0.5 << 2.0 << u"f1\nf1\nf9"_s << u"C"_s << u"0.5; 2.0"_s;
    QTest::newRow("an unknown format is no format")
        << 0.5 << 2.0 << u"%1\n%2"_s << u"C"_s << u"0.5; 2"_s;
    QTest::newRow("the locale's decimal comma")
        << 0.5 << 2.25 << u""_s << u"it_IT"_s << u"0,5; 2,25"_s;
    QTest::newRow("no number and infinity")
        << std::numeric_limits<double>::quiet_NaN() << std::numeric_limits<double>::infinity()
        << u""_s << u"C"_s << u"nan; inf"_s;
}

void tst_VMagnificationLimits::toString_formatsEachValueByItsLine()
{
    QFETCH(const double, minimum);
    QFETCH(const double, maximum);
    QFETCH(const QString, format);
    QFETCH(const QString, locale);
    QTEST(VMagnificationLimits(minimum, maximum).toString(format, QLocale(locale)), "text");
}

void tst_VMagnificationLimits::toString_shortFormsForward()
{
    const VMagnificationLimits limits(0.5, 2.25);
    QLocale::setDefault(QLocale(u"it_IT"_s));
    QCOMPARE(limits.toString(), u"0,5; 2,25"_s);
    QCOMPARE(limits.toString(u"f1\nf1"_s), u"0,5; 2,3"_s);
    QLocale::setDefault(QLocale::c());
    QCOMPARE(limits.toString(), u"0.5; 2.25"_s);
    QCOMPARE(limits.toString(QLocale(u"it_IT"_s)), u"0,5; 2,25"_s);
}

QTEST_GUILESS_MAIN(tst_VMagnificationLimits)
#include "tst_VMagnificationLimits.moc"
