// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VVersion.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

static_assert(std::is_trivially_copyable_v<VVersion>);
static_assert(sizeof(VVersion) == sizeof(quint32));
static_assert(VVersion(2, 0, 12).packed() == 0x0002000C);
static_assert(VVersion(0x0002000C) == VVersion(2, 0, 12));

class tst_Version : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_areTheThreeLowerBytes();
    void numbers_keepEightBitsEach();
    void order_comparesPartByPart_data();
    void order_comparesPartByPart();
    void text_readsBackTheSame_data();
    void text_readsBackTheSame();
    void fromString_refusesWhatIsNotWritten_data();
    void fromString_refusesWhatIsNotWritten();
    void fromString_needsNoSuccessFlag();
};

void tst_Version::numbers_areTheThreeLowerBytes()
{
    const VVersion version(0x010203);
    QCOMPARE(version.majorNumber(), 1);
    QCOMPARE(version.minorNumber(), 2);
    QCOMPARE(version.patchNumber(), 3);
    QCOMPARE(VVersion(0xFF010203U), version);
    QCOMPARE(VVersion().packed(), 0U);
}

void tst_Version::numbers_keepEightBitsEach()
{
    QCOMPARE(VVersion(257, 258, 259), VVersion(1, 2, 3));
    QCOMPARE(VVersion(-1, 0, 0), VVersion(255, 0, 0));
}

void tst_Version::order_comparesPartByPart_data()
{
    QTest::addColumn<VVersion>("smaller");
    QTest::addColumn<VVersion>("larger");
    QTest::newRow("the patch decides last") << VVersion(1, 2, 3) << VVersion(1, 2, 4);
    QTest::newRow("the minor outweighs the patch") << VVersion(1, 2, 255) << VVersion(1, 3, 0);
    QTest::newRow("the major outweighs both") << VVersion(1, 255, 255) << VVersion(2, 0, 0);
    QTest::newRow("large majors are not negative") << VVersion(127, 0, 0) << VVersion(128, 0, 0);
}

void tst_Version::order_comparesPartByPart()
{
    QFETCH(const VVersion, smaller);
    QFETCH(const VVersion, larger);
    QVERIFY(smaller < larger);
    QVERIFY(larger > smaller);
    QVERIFY(smaller != larger);
    QVERIFY(!(larger <= smaller));
}

void tst_Version::text_readsBackTheSame_data()
{
    QTest::addColumn<VVersion>("version");
    QTest::addColumn<QString>("text");
    QTest::newRow("zero") << VVersion() << u"0.0.0"_s;
    QTest::newRow("a driver's version") << VVersion(1, 2, 1) << u"1.2.1"_s;
    QTest::newRow("two digits") << VVersion(2, 0, 12) << u"2.0.12"_s;
    QTest::newRow("the largest") << VVersion(255, 255, 255) << u"255.255.255"_s;
}

void tst_Version::text_readsBackTheSame()
{
    QFETCH(const VVersion, version);
    QFETCH(const QString, text);
    QCOMPARE(version.toString(), text);
    bool ok = false;
    QCOMPARE(VVersion::fromString(text, &ok), version);
    QVERIFY(ok);
}

void tst_Version::fromString_refusesWhatIsNotWritten_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a null text") << QString();
    QTest::newRow("an empty text") << u""_s;
    QTest::newRow("two numbers") << u"1.2"_s;
    QTest::newRow("four numbers") << u"1.2.3.4"_s;
    QTest::newRow("a missing number") << u"1..3"_s;
    QTest::newRow("a number beyond a byte") << u"1.2.256"_s;
    QTest::newRow("a number beyond any integer") << u"1.2.99999999999999999999"_s;
    QTest::newRow("a sign") << u"1.-2.3"_s;
    QTest::newRow("a leading zero") << u"1.02.3"_s;
    QTest::newRow("blanks") << u" 1.2.3"_s;
    QTest::newRow("letters") << u"1.2.b"_s;
    QTest::newRow("digits of another script") << u"1.2.\u0663"_s;
    QTest::newRow("commas") << u"1,2,3"_s;
}

void tst_Version::fromString_refusesWhatIsNotWritten()
{
    QFETCH(const QString, text);
    bool ok = true;
    QCOMPARE(VVersion::fromString(text, &ok), VVersion());
    QVERIFY(!ok);
}

void tst_Version::fromString_needsNoSuccessFlag()
{
    QCOMPARE(VVersion::fromString(u"1.2.3"_s), VVersion(1, 2, 3));
    QCOMPARE(VVersion::fromString(u"no version"_s), VVersion());
}

QTEST_GUILESS_MAIN(tst_Version)
#include "tst_Version.moc"
