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

Enumeration enumerationNamed(const QString &shortName)
{
    for (const Enumeration &enumeration : allEnumerations()) {
        if (enumeration.shortName() == shortName)
            return enumeration;
    }
    return {};
}

QString textOf(const QString &shortName, qint64 number, const QLocale &locale = kC)
{
    const Enumeration enumeration = enumerationNamed(shortName);
    return enumeration.toText(*enumeration.runtime(), number, locale);
}

} // namespace

class tst_Flags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_writesCombinations_data();
    void toString_writesCombinations();
    void toString_ofUncoveredBitsFollowsTheLocale_data();
    void toString_ofUncoveredBitsFollowsTheLocale();
    void fromString_readsCombinations_data();
    void fromString_readsCombinations();
    void everyCombinationOfNamedBits_readsBackTheSame_data();
    void everyCombinationOfNamedBits_readsBackTheSame();
    void operators_workOnTheBits();
};

void tst_Flags::toString_writesCombinations_data()
{
    QTest::addColumn<QString>("enumeration");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("text");
    const QString compression = u"PrinterFileCompression"_s;
    const QString metadata = u"MetadataFlags"_s;
    QTest::newRow("two methods") << compression << 3 << u"Rle, Lzw"_s;
    QTest::newRow("a method online has its own name") << compression << 0x1001 << u"RleOnline"_s;
    QTest::newRow("named combinations stay beside their bits")
        << compression << 0x1003 << u"Rle, Lzw, OnlineOnly, RleOnline, LzwOnline"_s;
    QTest::newRow("every bit") << compression << 0x100F
                               << u"Rle, Lzw, Zip, Lz4, OnlineOnly, RleOnline, LzwOnline, "
                                  "ZipOnline, Lz4Online"_s;
    QTest::newRow("nothing") << compression << 0 << u"None"_s;
    QTest::newRow("no metadata flag") << metadata << 0 << u"None"_s;
    QTest::newRow("the union of all metadata flags") << metadata << 31 << u"Volatile"_s;
    QTest::newRow("all metadata flags but one")
        << metadata << 30
        << u"KillOnSave, KillOnSpaceTransform, KillOnChanges, KillOnPhysicalChange"_s;
    QTest::newRow("a metadata bit without a name") << metadata << 32 << u"32"_s;
    QTest::newRow("one more than all metadata flags") << metadata << 63 << u"63"_s;
    QTest::newRow("every bit there is") << metadata << -1 << u"-1"_s;
    QTest::newRow("a filter's All is every bit") << u"FilterOptions"_s << -1 << u"All"_s;
    QTest::newRow("a filter's options")
        << u"FilterOptions"_s << 10 << u"Progressive, NoopNotPermitted"_s;
    QTest::newRow("a protection online")
        << u"PrinterFileProtection"_s << 0x1001 << u"ObfuscationOnline"_s;
    QTest::newRow("transform flags in stored order")
        << u"ProcessFlags"_s << 0x04000041 << u"NoCache, ClutPostLinearization, CopyAlpha"_s;
}

void tst_Flags::toString_writesCombinations()
{
    QFETCH(const QString, enumeration);
    QFETCH(const int, number);
    QTEST(textOf(enumeration, number), "text");
}

void tst_Flags::toString_ofUncoveredBitsFollowsTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::newRow("C") << kC << u"65537"_s;
    QTest::newRow("English") << QLocale(QLocale::English) << u"65,537"_s;
    QTest::newRow("German") << QLocale(QLocale::German) << u"65.537"_s;
    QTest::newRow("Italian of Switzerland")
        << QLocale(QLocale::Italian, QLocale::Switzerland) << u"65\u2019537"_s;
}

void tst_Flags::toString_ofUncoveredBitsFollowsTheLocale()
{
    QFETCH(const QLocale, locale);
    QTEST(textOf(u"PrinterFileCompression"_s, 0x10001, locale), "text");
}

void tst_Flags::fromString_readsCombinations_data()
{
    QTest::addColumn<QString>("enumeration");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("fallback");
    QTest::addColumn<int>("number");
    QTest::addColumn<bool>("known");
    const QString compression = u"PrinterFileCompression"_s;
    const QString metadata = u"MetadataFlags"_s;
    QTest::newRow("two methods") << compression << u"Rle, Lzw"_s << 0 << 3 << true;
    QTest::newRow("a method and the online bit")
        << compression << u"OnlineOnly,Rle"_s << 0 << 0x1001 << true;
    QTest::newRow("a method that is online")
        << compression << u"RleOnline, Lzw"_s << 0 << 0x1003 << true;
    QTest::newRow("digits are not read") << compression << u"3"_s << 0 << 0 << false;
    QTest::newRow("an unknown part") << metadata << u"KillOnCopy, KillAll"_s << 0 << 1 << false;
    QTest::newRow("an unknown part adds the fallback")
        << metadata << u"KillOnCopy, KillAll"_s << 16 << 17 << false;
    QTest::newRow("an empty text gives the fallback") << metadata << u""_s << 16 << 16 << false;
    QTest::newRow("the union by its name") << metadata << u"Volatile"_s << 0 << 31 << true;
    QTest::newRow("a filter's All") << u"FilterOptions"_s << u"All"_s << 0 << -1 << true;
}

void tst_Flags::fromString_readsCombinations()
{
    QFETCH(const QString, enumeration);
    QFETCH(const QString, text);
    QFETCH(const int, fallback);
    QFETCH(const bool, known);
    const Enumeration found = enumerationNamed(enumeration);
    bool ok = !known;
    QTEST(int(found.toNumber(*found.runtime(), text, fallback, Qt::CaseSensitive, &ok)), "number");
    QCOMPARE(ok, known);
}

void tst_Flags::everyCombinationOfNamedBits_readsBackTheSame_data()
{
    QTest::addColumn<QString>("shortName");
    for (const Enumeration &enumeration : allEnumerations()) {
        if (enumeration.isFlags)
            QTest::newRow(qPrintable(enumeration.shortName())) << enumeration.shortName();
    }
}

void tst_Flags::everyCombinationOfNamedBits_readsBackTheSame()
{
    QFETCH(const QString, shortName);
    const Enumeration enumeration = enumerationNamed(shortName);
    const IVEnum &runtime = *enumeration.runtime();
    QList<qint64> bits;
    for (const Row &row : enumeration.rows) {
        if (row.number > 0 && (row.number & (row.number - 1)) == 0)
            bits.append(row.number);
    }
    QVERIFY(!bits.isEmpty());
    const int combinations = 1 << std::min<qsizetype>(bits.size(), 12);
    for (int combination = 0; combination < combinations; ++combination) {
        qint64 number = 0;
        for (int bit = 0; bit < bits.size(); ++bit)
            number |= (combination >> bit) & 1 ? bits[bit] : 0;
        const QString text = enumeration.toText(runtime, number, kC);
        bool ok = false;
        QCOMPARE(enumeration.toNumber(runtime, text, 0, Qt::CaseSensitive, &ok), number);
        QVERIFY(ok);
    }
}

void tst_Flags::operators_workOnTheBits()
{
    static_assert((PrinterFileCompression::Rle | PrinterFileCompression::OnlineOnly)
                  == PrinterFileCompression::RleOnline);
    static_assert((PrinterFileProtection::ObfuscationOnline & PrinterFileProtection::OnlineOnly)
                  == PrinterFileProtection::OnlineOnly);
    static_assert((MetadataFlags::Volatile & ~MetadataFlags::Volatile) == MetadataFlags::None);
    MetadataFlags flags = MetadataFlags::None;
    flags |= MetadataFlags::KillOnCopy;
    flags |= MetadataFlags::KillOnSave;
    QCOMPARE(int(flags), 3);
    flags &= MetadataFlags::KillOnSave;
    QCOMPARE(flags, MetadataFlags::KillOnSave);
}

QTEST_GUILESS_MAIN(tst_Flags)
#include "tst_Flags.moc"
