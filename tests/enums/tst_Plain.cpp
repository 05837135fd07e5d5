// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/Enumerations.h"

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Tables;
using namespace Qt::StringLiterals;

namespace {

const QLocale kC = QLocale::c();

template<typename E>
const VEnumBase<E> &runtimeOf(const char *shortName)
{
    return typed<E>(*VEnumRegistry::find(QString::fromLatin1(shortName)));
}

} // namespace

class tst_Plain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_writesAnUnnamedNumberAsTheLocaleDoes_data();
    void toString_writesAnUnnamedNumberAsTheLocaleDoes();
    void toString_writesCombinedNumbersAsNumbers();
    void toString_neverWritesAnAlias_data();
    void toString_neverWritesAnAlias();
    void toString_keepsTheNamesOfEqualDisplayTextsApart();
    void fromString_trimsButKeepsInnerBlanks();
    void fromString_respectsTheCaseThatIsAskedFor();
    void fromString_neverReadsDigits();
    void fromString_givesTheCallersFallback();
    void unknown_isWhereEachTableHasIt();
    void bool_isBuiltOnBool();
    void textOf_writesUnnamedNumbersInTheDefaultLocale();
    void valueOf_readsAnythingUnknownAsZero();
};

void tst_Plain::toString_writesAnUnnamedNumberAsTheLocaleDoes_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("a small number") << 9 << kC << u"9"_s;
    QTest::newRow("a large number") << 12345 << kC << u"12345"_s;
    QTest::newRow("English groups") << 12345 << QLocale(QLocale::English) << u"12,345"_s;
    QTest::newRow("German groups") << 12345 << QLocale(QLocale::German) << u"12.345"_s;
    QTest::newRow("French groups") << 12345 << QLocale(QLocale::French) << u"12\u202F345"_s;
    QTest::newRow("Spanish groups from five digits")
        << 1234 << QLocale(QLocale::Spanish) << u"1234"_s;
    QTest::newRow("Arabic digits")
        << 12 << QLocale(QLocale::Arabic, QLocale::Egypt) << u"\u0661\u0662"_s;
    QTest::newRow("a negative number") << -1 << kC << u"-1"_s;
    QTest::newRow("a Swedish minus") << -1 << QLocale(QLocale::Swedish) << u"\u22121"_s;
    QTest::newRow("the smallest number")
        << std::numeric_limits<int>::min() << kC << u"-2147483648"_s;
}

void tst_Plain::toString_writesAnUnnamedNumberAsTheLocaleDoes()
{
    QFETCH(const int, number);
    QFETCH(const QLocale, locale);
    QTEST(runtimeOf<PrinterClass>("PrinterClass").toString(number, locale), "text");
}

// Only flags are written as a list: 3 is a printer class of its own.
void tst_Plain::toString_writesCombinedNumbersAsNumbers()
{
    QCOMPARE(runtimeOf<PrinterClass>("PrinterClass").toString(3, kC), u"Dryjet"_s);
    QCOMPARE(runtimeOf<PrinterFacesMode>("PrinterFacesMode").toString(3, kC), u"3"_s);
    QCOMPARE(runtimeOf<LevelManagement>("LevelManagement").toString(0x440804 | 0x041044, kC),
             QString::number(0x440804 | 0x041044));
}

void tst_Plain::toString_neverWritesAnAlias_data()
{
    QTest::addColumn<QString>("shortName");
    QTest::addColumn<QString>("alias");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("written");
    QTest::newRow("OSX") << u"OperatingSystemType"_s << u"OSX"_s << 1 << u"macOS"_s;
    QTest::newRow("DarkLowest") << u"PaletteOrder"_s << u"DarkLowest"_s << 0 << u"Default"_s;
    QTest::newRow("Multichannel_Last")
        << u"ColorSpace"_s << u"Multichannel_Last"_s << 30 << u"Multichannel_16"_s;
    QTest::newRow("Rotate270FlipNone")
        << u"RotateFlipType"_s << u"Rotate270FlipNone"_s << 7 << u"Rotate90FlipXY"_s;
    QTest::newRow("Cyan of the web") << u"WebColor"_s << u"Cyan"_s << int(0xFF00FFFF) << u"Aqua"_s;
}

void tst_Plain::toString_neverWritesAnAlias()
{
    QFETCH(const QString, shortName);
    QFETCH(const QString, alias);
    QFETCH(const int, number);
    const VEnumNames &names = VEnumRegistry::find(shortName)->names();
    bool ok = false;
    QCOMPARE(names.fromString(alias, 99, Qt::CaseSensitive, &ok), number);
    QVERIFY(ok);
    QTEST(names.toString(number, kC), "written");
}

// Five of these modes are all shown as "Grayscale".
void tst_Plain::toString_keepsTheNamesOfEqualDisplayTextsApart()
{
    const auto &levels = runtimeOf<LevelManagement>("LevelManagement");
    QSet<QString> names;
    for (const LevelManagement mode :
         {LevelManagement::Legacy, LevelManagement::OctaGrayscale, LevelManagement::DodeGrayscale,
          LevelManagement::FiftGrayscale, LevelManagement::HexaGrayscale}) {
        const QString name = levels.textOf(mode);
        QCOMPARE(levels.valueOf(name), mode);
        names.insert(name);
    }
    QCOMPARE(names.size(), 5);
}

void tst_Plain::fromString_trimsButKeepsInnerBlanks()
{
    const auto &classes = runtimeOf<PrinterClass>("PrinterClass");
    bool ok = false;
    QCOMPARE(classes.fromString(u"  Inkjet  "_s, 5, Qt::CaseSensitive, &ok), 0);
    QVERIFY(ok);
    QCOMPARE(classes.fromString(u"Ink jet"_s, 5, Qt::CaseSensitive, &ok), 5);
    QVERIFY(!ok);
}

void tst_Plain::fromString_respectsTheCaseThatIsAskedFor()
{
    const auto &classes = runtimeOf<PrinterClass>("PrinterClass");
    bool ok = true;
    QCOMPARE(classes.fromString(u"inkjet"_s, 5, Qt::CaseSensitive, &ok), 5);
    QVERIFY(!ok);
    QCOMPARE(classes.fromString(u"inkjet"_s, 5, Qt::CaseInsensitive, &ok), 0);
    QVERIFY(ok);
}

void tst_Plain::fromString_neverReadsDigits()
{
    const auto &classes = runtimeOf<PrinterClass>("PrinterClass");
    bool ok = true;
    QCOMPARE(classes.fromString(classes.toString(9, kC), 5, Qt::CaseInsensitive, &ok), 5);
    QVERIFY(!ok);
    ok = true;
    QCOMPARE(classes.fromString(u"1"_s, 5, Qt::CaseInsensitive, &ok), 5);
    QVERIFY(!ok);
}

void tst_Plain::fromString_givesTheCallersFallback()
{
    const auto &channels = runtimeOf<Channel>("Channel");
    for (const int fallback : {0, 80, -1, 12345}) {
        QCOMPARE(channels.fromString(u"Ultraviolet"_s, fallback, Qt::CaseSensitive, nullptr),
                 fallback);
        QCOMPARE(channels.fromString(QString(), fallback, Qt::CaseSensitive, nullptr), fallback);
        QCOMPARE(channels.fromString(u"Cyan, Magenta"_s, fallback, Qt::CaseSensitive, nullptr),
                 fallback);
    }
}

void tst_Plain::unknown_isWhereEachTableHasIt()
{
    QCOMPARE(int(runtimeOf<Channel>("Channel").valueOf(u"Unknown"_s)), 80);
    QCOMPARE(int(runtimeOf<ChannelV100Sort>("ChannelV100Sort").valueOf(u"Unknown"_s)), 113);
    QCOMPARE(int(runtimeOf<Compression::CompressionAlgorithm>("CompressionAlgorithm")
                     .valueOf(u"Unknown"_s)),
             32000);
    QCOMPARE(int(runtimeOf<PrinterClass>("PrinterClass").valueOf(u"Unknown"_s)), 5);
}

void tst_Plain::bool_isBuiltOnBool()
{
    static_assert(std::is_same_v<std::underlying_type_t<Bool>, bool>);
    static_assert(std::is_same_v<std::underlying_type_t<PrinterClass>, int>);
    const auto &booleans = runtimeOf<Bool>("Bool");
    QCOMPARE(booleans.toString(true, kC), u"True"_s);
    QCOMPARE(booleans.toString(false, kC), u"False"_s);
    bool ok = false;
    QCOMPARE(booleans.fromString(u"True"_s, false, Qt::CaseSensitive, &ok), true);
    QVERIFY(ok);
    QCOMPARE(booleans.fromString(u"yes"_s, true, Qt::CaseSensitive, &ok), true);
    QVERIFY(!ok);
}

void tst_Plain::textOf_writesUnnamedNumbersInTheDefaultLocale()
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    QCOMPARE(runtimeOf<PrinterClass>("PrinterClass").textOf(PrinterClass(12345)), u"12.345"_s);
    QLocale::setDefault(before);
}

void tst_Plain::valueOf_readsAnythingUnknownAsZero()
{
    const auto &classes = runtimeOf<PrinterClass>("PrinterClass");
    QCOMPARE(classes.valueOf(u"Dryjet"_s), PrinterClass::Dryjet);
    QCOMPARE(classes.valueOf(u"dryjet"_s), PrinterClass::Inkjet);
    QCOMPARE(classes.valueOf(QString()), PrinterClass::Inkjet);
}

QTEST_GUILESS_MAIN(tst_Plain)
#include "tst_Plain.moc"
