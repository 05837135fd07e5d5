// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VLocale.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_Locale : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void name_selectsTheLocale_data();
    void name_selectsTheLocale();
    void options_areSet();
    void copy_asAPlainLocaleKeepsTheOptions();
};

// The user's locale must show nowhere, so the tests run under one that writes numbers differently.
void tst_Locale::init()
{
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
}

void tst_Locale::cleanup()
{
    QLocale::setDefault(QLocale::system());
}

void tst_Locale::name_selectsTheLocale_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QLocale>("expected");
    const QLocale american(QLocale::English, QLocale::UnitedStates);
    QTest::newRow("a hyphen") << u"en-US"_s << american;
    QTest::newRow("an underscore") << u"en_US"_s << american;
    QTest::newRow("a language alone") << u"it"_s << QLocale(QLocale::Italian);
    QTest::newRow("the C locale by its name") << u"C"_s << QLocale::c();
    QTest::newRow("an empty name") << u""_s << QLocale::c();
    QTest::newRow("a null name") << QString() << QLocale::c();
    QTest::newRow("an unknown name") << u"xx-nowhere"_s << QLocale::c();
    QTest::newRow("no name at all") << u"42"_s << QLocale::c();
}

void tst_Locale::name_selectsTheLocale()
{
    QFETCH(const QString, name);
    QFETCH(const QLocale, expected);
    const VLocale locale(name);
    QCOMPARE(locale.language(), expected.language());
    QCOMPARE(locale.territory(), expected.territory());
    QCOMPARE(locale.toString(1.5), expected.toString(1.5));
}

void tst_Locale::options_areSet()
{
    QCOMPARE(VLocale(u"en-US"_s).toString(1234567), u"1,234,567"_s);
    QCOMPARE(VLocale(u"en-US"_s, QLocale::OmitGroupSeparator).toString(1234567), u"1234567"_s);
}

void tst_Locale::copy_asAPlainLocaleKeepsTheOptions()
{
    const QLocale locale = VLocale(u"en-US"_s, QLocale::OmitGroupSeparator);
    QCOMPARE(locale.toString(1234567), u"1234567"_s);
}

QTEST_GUILESS_MAIN(tst_Locale)
#include "tst_Locale.moc"
