// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VConvert.h>
#include <vcore/VVariantConvert.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

struct Tile
{
    int side = 0;
};

QString sideOf(const QVariant &value, const QString &format, const QLocale &locale)
{
    return format + locale.toString(value.value<Tile>().side);
}

QString alwaysTile(const QVariant &, const QString &, const QLocale &)
{
    return u"tile"_s;
}

int tileId()
{
    return QMetaType::fromType<Tile>().id();
}

QString textOf(Tile tile)
{
    return VConvert::toString(QVariant::fromValue(tile), QLocale(QLocale::German));
}

} // namespace

class tst_VariantConvert : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void converter_isNullForAnUnknownType();
    void register_convertsWithAnEmptyFormatAndTheLocale();
    void register_replacesAnotherConverter();
    void register_repeatedLeavesOneWorkingConverter();
    void unregister_isNeededAsOftenAsRegister();
    void unregister_takesOnlyItsOwn();
    void converter_goesBeforeTheBuiltInText();
};

void tst_VariantConvert::cleanup()
{
    QVERIFY(VVariantConvert::converter(tileId()) == nullptr);
}

void tst_VariantConvert::converter_isNullForAnUnknownType()
{
    QVERIFY(VVariantConvert::converter(tileId()) == nullptr);
    QVERIFY(VVariantConvert::converter(0) == nullptr);
    QCOMPARE(textOf({1200}), QString());
}

void tst_VariantConvert::register_convertsWithAnEmptyFormatAndTheLocale()
{
    VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    QVERIFY(VVariantConvert::converter(tileId()) == &sideOf);
    QCOMPARE(textOf({1200}), u"1.200"_s);
    VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
    QCOMPARE(textOf({1200}), QString());
}

void tst_VariantConvert::register_replacesAnotherConverter()
{
    VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    VVariantConvert::sVariantToStringRegister(tileId(), &alwaysTile);
    QCOMPARE(textOf({1200}), u"tile"_s);
    VVariantConvert::sVariantToStringUnregister(tileId(), &alwaysTile);
}

void tst_VariantConvert::register_repeatedLeavesOneWorkingConverter()
{
    for (int i = 0; i < 6; ++i)
        VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    QVERIFY(VVariantConvert::converter(tileId()) == &sideOf);
    QCOMPARE(textOf({1200}), u"1.200"_s);
    for (int i = 0; i < 6; ++i)
        VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
}

void tst_VariantConvert::unregister_isNeededAsOftenAsRegister()
{
    VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
    QVERIFY(VVariantConvert::converter(tileId()) == &sideOf);
    VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
    QVERIFY(VVariantConvert::converter(tileId()) == nullptr);
    VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
}

void tst_VariantConvert::unregister_takesOnlyItsOwn()
{
    VVariantConvert::sVariantToStringRegister(tileId(), &sideOf);
    VVariantConvert::sVariantToStringUnregister(tileId(), &alwaysTile);
    VVariantConvert::sVariantToStringUnregister(0, &sideOf);
    QVERIFY(VVariantConvert::converter(tileId()) == &sideOf);
    VVariantConvert::sVariantToStringUnregister(tileId(), &sideOf);
}

void tst_VariantConvert::converter_goesBeforeTheBuiltInText()
{
    VVariantConvert::sVariantToStringRegister(QMetaType::Int, &alwaysTile);
    QCOMPARE(VConvert::toString(QVariant(5), QLocale::c()), u"tile"_s);
    QCOMPARE(VConvert::toString(QVariant(5LL), QLocale::c()), u"5"_s);
    VVariantConvert::sVariantToStringUnregister(QMetaType::Int, &alwaysTile);
    QCOMPARE(VConvert::toString(QVariant(5), QLocale::c()), u"5"_s);
}

QTEST_GUILESS_MAIN(tst_VariantConvert)
#include "tst_VariantConvert.moc"
