// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/Enumerations.h"

#include <QtTest/QTest>

using namespace Norvane;
using namespace Tables;
using namespace Qt::StringLiterals;

namespace {

const QList<Enumeration> kAll = allEnumerations();

QString nameOf(const Row &row)
{
    return QString::fromLatin1(row.name);
}

/// The first row of the number, which is the written one.
const Row &writtenRow(const Enumeration &enumeration, qint64 number)
{
    return *std::find_if(enumeration.rows.begin(), enumeration.rows.end(),
                         [=](const Row &row) { return row.number == number; });
}

} // namespace

// Every row of every table, through the objects that a host finds in the directory.
class tst_Tables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directory_holdsTheseEnumerationsAndNoOther();
    void row_goesThereAndBack_data();
    void row_goesThereAndBack();
    void table_holdsTheseNumbersAndNamesAndNoOther_data();
    void table_holdsTheseNumbersAndNamesAndNoOther();
    void table_hasOneNumberForEachNameWhateverTheCase_data();
    void table_hasOneNumberForEachNameWhateverTheCase();
    void table_runsWithoutGaps_data();
    void table_runsWithoutGaps();
    void levelManagement_holdsTheLevelsInBits16To21_data();
    void levelManagement_holdsTheLevelsInBits16To21();
    void channelV100Sort_holdsEveryChannelAndTheNumberedEffects();
    void iccSignatures_areTheirFourLetters_data();
    void iccSignatures_areTheirFourLetters();

private:
    void addEnumerations();
};

void tst_Tables::addEnumerations()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kAll.size(); ++i)
        QTest::newRow(qPrintable(kAll[i].shortName())) << i;
}

void tst_Tables::directory_holdsTheseEnumerationsAndNoOther()
{
    QStringList expected;
    for (const Enumeration &enumeration : kAll)
        expected.append(enumeration.shortName());
    expected.sort();
    QCOMPARE(expected.size(), 39);
    QCOMPARE(VEnumRegistry::names(), expected);
}

void tst_Tables::row_goesThereAndBack_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("row");
    for (int i = 0; i < kAll.size(); ++i) {
        for (int r = 0; r < int(kAll[i].rows.size()); ++r) {
            const Row &row = kAll[i].rows[size_t(r)];
            QTest::addRow("%s %lld is %s", qPrintable(kAll[i].shortName()), row.number, row.name)
                << i << r;
        }
    }
}

void tst_Tables::row_goesThereAndBack()
{
    QFETCH(const int, index);
    QFETCH(const int, row);
    const Enumeration &enumeration = kAll[index];
    const auto [number, name] = enumeration.rows[size_t(row)];
    const IVEnum &runtime = *enumeration.runtime();
    const QString text = QString::fromLatin1(name);
    const qint64 fallback = number == 0 ? 1 : 0;

    QCOMPARE(enumeration.toText(runtime, number, QLocale::c()),
             nameOf(writtenRow(enumeration, number)));
    for (const QString &read : {text, u" \t%1\n"_s.arg(text)}) {
        bool ok = false;
        QCOMPARE(enumeration.toNumber(runtime, read, fallback, Qt::CaseSensitive, &ok), number);
        QVERIFY(ok);
    }
    for (const QString &read : {text.toLower(), text.toUpper()}) {
        bool ok = false;
        QCOMPARE(enumeration.toNumber(runtime, read, fallback, Qt::CaseInsensitive, &ok), number);
        QVERIFY(ok);
    }
}

void tst_Tables::table_holdsTheseNumbersAndNamesAndNoOther_data()
{
    addEnumerations();
}

void tst_Tables::table_holdsTheseNumbersAndNamesAndNoOther()
{
    QFETCH(const int, index);
    const Enumeration &enumeration = kAll[index];
    QList<qint64> numbers;
    QHash<qint64, QStringList> names;
    for (const Row &row : enumeration.rows) {
        if (!numbers.contains(row.number))
            numbers.append(row.number);
        names[row.number].append(nameOf(row));
    }
    const IVEnum &runtime = *enumeration.runtime();
    QCOMPARE(runtime.name(), enumeration.shortName());
    QCOMPARE(runtime.isFlags(), enumeration.isFlags);
    QCOMPARE(runtime.names().numbers(), numbers);
    for (const qint64 number : numbers)
        QCOMPARE(runtime.names().names(number), names.value(number));
}

// A name that differs from another one in case only could not be read without regard to case.
void tst_Tables::table_hasOneNumberForEachNameWhateverTheCase_data()
{
    addEnumerations();
}

void tst_Tables::table_hasOneNumberForEachNameWhateverTheCase()
{
    QFETCH(const int, index);
    QHash<QString, qint64> numbers;
    for (const Row &row : kAll[index].rows) {
        const QString folded = nameOf(row).toCaseFolded();
        QVERIFY2(!numbers.contains(folded), row.name);
        numbers.insert(folded, row.number);
    }
}

void tst_Tables::table_runsWithoutGaps_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("last");
    QTest::newRow("elaboration types from 0 to 83") << u"ElaborationType"_s << 83;
    QTest::newRow("channels from 0 to 80") << u"Channel"_s << 80;
    QTest::newRow("channels of version 1.00 from 0 to 113") << u"ChannelV100Sort"_s << 113;
    QTest::newRow("printer classes from 0 to 5") << u"PrinterClass"_s << 5;
    QTest::newRow("operating systems from 0 to 17") << u"OperatingSystemType"_s << 17;
    QTest::newRow("Qt's colours from 0 to 19") << u"QtColor"_s << 19;
    QTest::newRow("colour spaces from 0 to 30") << u"ColorSpace"_s << 30;
}

void tst_Tables::table_runsWithoutGaps()
{
    QFETCH(const QString, name);
    QFETCH(const int, last);
    const QList<qint64> numbers = VEnumRegistry::find(name)->names().numbers();
    QCOMPARE(numbers.size(), last + 1);
    for (int i = 0; i <= last; ++i)
        QCOMPARE(numbers[i], i);
}

void tst_Tables::levelManagement_holdsTheLevelsInBits16To21_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("levels");
    for (const auto &[name, levels] :
         std::initializer_list<std::pair<const char *, int>>{{"None", 0},
                                                             {"Binary", 2},
                                                             {"BinaryCustom", 2},
                                                             {"Trilevel", 3},
                                                             {"TetraL3Masking", 3},
                                                             {"Legacy", 4},
                                                             {"Fixed", 4},
                                                             {"Dynamic", 4},
                                                             {"OctaGrayscale", 8},
                                                             {"DodeGrayscale", 12},
                                                             {"FiftGrayscale", 15},
                                                             {"HexaGrayscale", 16}})
        QTest::newRow(name) << QString::fromLatin1(name) << levels;
}

void tst_Tables::levelManagement_holdsTheLevelsInBits16To21()
{
    QFETCH(const QString, name);
    const auto code =
        VEnumRegistry::find(u"LevelManagement"_s)->names().find(name, Qt::CaseSensitive);
    QVERIFY(code.has_value());
    QTEST(int((*code >> 16) & 0x3F), "levels");
}

void tst_Tables::channelV100Sort_holdsEveryChannelAndTheNumberedEffects()
{
    QStringList channels;
    for (const Row &row : kChannel)
        channels.append(nameOf(row));
    QStringList rest;
    for (const Row &row : kChannelV100Sort) {
        if (channels.removeAll(nameOf(row)) == 0)
            rest.append(nameOf(row));
    }
    QCOMPARE(channels, QStringList());
    QStringList numbered;
    for (const char *effect : {"Sinker", "Glaze", "Frit", "Bond", "Matt", "Glossy", "Luster",
                               "Hydroactive", "Interphase", "Glue", "Vision"}) {
        for (int variant = 2; variant <= 4; ++variant)
            numbered.append(QString::fromLatin1(effect) + QString::number(variant));
    }
    QCOMPARE(rest, numbered);
}

void tst_Tables::iccSignatures_areTheirFourLetters_data()
{
    QTest::addColumn<QString>("enumeration");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("letters");
    const auto add = [](const char *enumeration, const char *name, const char *letters) {
        QTest::addRow("%s %s", enumeration, name)
            << QString::fromLatin1(enumeration) << QString::fromLatin1(name) << QByteArray(letters);
    };
    add("ClassSignature", "Input", "scnr");
    add("ClassSignature", "Display", "mntr");
    add("ClassSignature", "Output", "prtr");
    add("ClassSignature", "Link", "link");
    add("ClassSignature", "Abstract", "abst");
    add("ClassSignature", "ColorSpace", "spac");
    add("ClassSignature", "NamedColor", "nmcl");
    add("ColorSpaceSignature", "XYZ", "XYZ ");
    add("ColorSpaceSignature", "Lab", "Lab ");
    add("ColorSpaceSignature", "YCbCr", "YCbr");
    add("ColorSpaceSignature", "Cmyk", "CMYK");
    add("ColorSpaceSignature", "MChF", "MCHF");
    add("ColorSpaceSignature", "Named", "nmcl");
    add("ColorSpaceSignature", "_1Color", "1CLR");
    add("ColorSpaceSignature", "_9Color", "9CLR");
    add("ColorSpaceSignature", "_10Color", "ACLR");
    add("ColorSpaceSignature", "_15Color", "FCLR");
    add("ColorSpaceSignature", "LuvK", "LuvK");
}

void tst_Tables::iccSignatures_areTheirFourLetters()
{
    QFETCH(const QString, enumeration);
    QFETCH(const QString, name);
    const auto number = VEnumRegistry::find(enumeration)->names().find(name, Qt::CaseSensitive);
    QVERIFY(number.has_value());
    QByteArray letters;
    for (int shift = 24; shift >= 0; shift -= 8)
        letters.append(char((*number >> shift) & 0xFF));
    QTEST(letters, "letters");
}

QTEST_GUILESS_MAIN(tst_Tables)
#include "tst_Tables.moc"
