// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/Enumerations.h"

#include <vcore/VConvert.h>
#include <vcore/VVariantConvert.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Tables;
using namespace Qt::StringLiterals;

namespace {

const QList<Enumeration> kAll = allEnumerations();

} // namespace

// What a host sees of a value that travels in a variant.
class tst_Variants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toString_writesEveryNumberByName_data();
    void toString_writesEveryNumberByName();
    void toString_writesCombinationsAndUnnamedNumbers();
    void toString_followsTheLocaleForUnnamedNumbers();
    void converter_ignoresTheFormat();
    void variant_keepsItsNumber();
};

void tst_Variants::toString_writesEveryNumberByName_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kAll.size(); ++i) {
        if (kAll[i].isMetaType)
            QTest::newRow(qPrintable(kAll[i].shortName())) << i;
    }
}

void tst_Variants::toString_writesEveryNumberByName()
{
    QFETCH(const int, index);
    const Enumeration &enumeration = kAll[index];
    QSet<qint64> seen;
    for (const Row &row : enumeration.rows) {
        if (seen.contains(row.number))
            continue; // An alias: read, never written.
        seen.insert(row.number);
        const QVariant value = enumeration.toVariant(row.number);
        QCOMPARE(value.metaType(), enumeration.type);
        QCOMPARE(VConvert::toString(value, QLocale::c()), QString::fromLatin1(row.name));
        QCOMPARE(VConvert::toString(value, QLocale(QLocale::Arabic)),
                 QString::fromLatin1(row.name));
    }
}

void tst_Variants::toString_writesCombinationsAndUnnamedNumbers()
{
    const auto text = [](auto value) {
        return VConvert::toString(QVariant::fromValue(value), QLocale::c());
    };
    QCOMPARE(text(PrinterFileCompression::Rle | PrinterFileCompression::Lzw), u"Rle, Lzw"_s);
    QCOMPARE(text(MetadataFlags(32)), u"32"_s);
    QCOMPARE(text(PrinterClass(9)), u"9"_s);
}

void tst_Variants::toString_followsTheLocaleForUnnamedNumbers()
{
    const QVariant value = QVariant::fromValue(Channel(12345));
    QCOMPARE(VConvert::toString(value, QLocale::c()), u"12345"_s);
    QCOMPARE(VConvert::toString(value, QLocale(QLocale::German)), u"12.345"_s);
}

void tst_Variants::converter_ignoresTheFormat()
{
    const QVariant value = QVariant::fromValue(PrinterClass::Engraver);
    const auto converter = VVariantConvert::converter(value.metaType().id());
    QVERIFY(converter != nullptr);
    for (const QString &format : {QString(), u"f2"_s, u"%d"_s})
        QCOMPARE(converter(value, format, QLocale::c()), u"Engraver"_s);
}

void tst_Variants::variant_keepsItsNumber()
{
    const QVariant value = QVariant::fromValue(ElaborationType::Grayscale_16);
    QCOMPARE(value.value<ElaborationType>(), ElaborationType::Grayscale_16);
    QCOMPARE(value.toInt(), 83);
}

QTEST_GUILESS_MAIN(tst_Variants)
#include "tst_Variants.moc"
