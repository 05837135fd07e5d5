// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/IEquatable.h>
#include <vcore/IFormattable.h>

#include <QtTest/QTest>

using namespace Norvane::Interfaces;
using namespace Qt::StringLiterals;

namespace {

/// Writes down what it was asked for.
class Formattable : public IFormattable
{
public:
    using IFormattable::toString;
    QString toString(const QString &format, const QLocale &locale) const override
    {
        return u"[%1|%2]"_s.arg(format, locale.name());
    }
};

class Number : public IEquatable
{
public:
    bool equalsTo(const IEquatable *other) const override { return sameTypeAs(other); }
};

class SpecialNumber : public Number
{ };

} // namespace

static_assert(std::has_virtual_destructor_v<IEquatable>);
static_assert(std::has_virtual_destructor_v<IFormattable>);

class tst_Interfaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_shortFormsEndInTheFirst();
    void sameTypeAs_comparesTheDynamicType();
};

void tst_Interfaces::toString_shortFormsEndInTheFirst()
{
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    const Formattable object;
    QCOMPARE(object.toString(), u"[|it_IT]"_s);
    QCOMPARE(object.toString(u"f2"_s), u"[f2|it_IT]"_s);
    QCOMPARE(object.toString(QLocale(QLocale::German, QLocale::Germany)), u"[|de_DE]"_s);
    QCOMPARE(object.toString(u"f2"_s, QLocale::c()), u"[f2|C]"_s);
}

void tst_Interfaces::sameTypeAs_comparesTheDynamicType()
{
    const Number number;
    const Number another;
    const SpecialNumber special;
    const IEquatable &asInterface = special;
    QVERIFY(number.sameTypeAs(&another));
    QVERIFY(number.sameTypeAs(&number));
    QVERIFY(!number.sameTypeAs(&asInterface));
    QVERIFY(!asInterface.sameTypeAs(&number));
    QVERIFY(!number.sameTypeAs(nullptr));
}

QTEST_GUILESS_MAIN(tst_Interfaces)
#include "tst_Interfaces.moc"
