// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "catalogue/Catalogue.h"
#include "catalogue/Icons.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonDocument>
#include <QtCore/QSet>
#include <QtGui/QPixmap>
#include <QtTest/QTest>

using namespace Bench;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

namespace {

QByteArray jsonOf(const VPrinterDriver &driver)
{
    return QJsonDocument(driver.toJsonObject()).toJson(QJsonDocument::Compact);
}

} // namespace

// What the benchmarks compare is worth as much as the catalogue that they keep.
class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void catalogue_isTheSameForTheSameSeed();
    void catalogue_isAnotherForAnotherSeed();
    void catalogue_beginsLikeAShorterOne();
    void catalogue_hasNoTwoEqualIds();
    void driver_isValidAndWhole();
    void driver_hasFiveKilobytes();
    void driver_readsBackAsItWasWritten_data();
    void driver_readsBackAsItWasWritten();
    void variant_hasItsIcon();
    void pngIcon_isAFixedPointOfDecodingAndEncoding();
    void nameOf_isReadBack();
};

void tst_Catalogue::catalogue_isTheSameForTheSameSeed()
{
    QCOMPARE(catalogue(20, Variant::Png, 7), catalogue(20, Variant::Png, 7));
}

void tst_Catalogue::catalogue_isAnotherForAnotherSeed()
{
    QVERIFY(catalogue(1, Variant::Plain, 7) != catalogue(1, Variant::Plain, 8));
}

void tst_Catalogue::catalogue_beginsLikeAShorterOne()
{
    QCOMPARE(catalogue(30, Variant::Plain).first(10), catalogue(10, Variant::Plain));
}

void tst_Catalogue::catalogue_hasNoTwoEqualIds()
{
    QSet<QUuid> ids;
    for (const VPrinterDriver &driver : catalogue(500, Variant::Plain))
        ids.insert(driver.dataId());
    QCOMPARE(ids.size(), 500);
}

void tst_Catalogue::driver_isValidAndWhole()
{
    for (const VPrinterDriver &driver : catalogue(50, Variant::Plain)) {
        QVERIFY(driver.isValid());
        QCOMPARE(driver.count(VPrintUnitDriver().id(), false), 2);
        QCOMPARE(driver.count(VElaborationDriver().id(), false), 6);
        for (auto *child : driver.values(QUuid()))
            QVERIFY(child->isValid());
    }
}

void tst_Catalogue::driver_hasFiveKilobytes()
{
    qsizetype bytes = 0;
    for (const VPrinterDriver &driver : catalogue(200, Variant::Plain)) {
        const qsizetype size = jsonOf(driver).size();
        QVERIFY2(size > 4'500 && size < 5'500, qPrintable(QString::number(size)));
        bytes += size;
    }
    const qsizetype mean = bytes / 200;
    QVERIFY2(mean > 4'800 && mean < 5'200, qPrintable(QString::number(mean)));
}

void tst_Catalogue::driver_readsBackAsItWasWritten_data()
{
    QTest::addColumn<Variant>("variant");
    QTest::newRow("without an icon") << Variant::Plain;
    QTest::newRow("with images") << Variant::Png;
    QTest::newRow("with a document") << Variant::Svg;
}

void tst_Catalogue::driver_readsBackAsItWasWritten()
{
    QFETCH(Variant, variant);
    for (const VPrinterDriver &driver : catalogue(10, variant)) {
        const QByteArray json = jsonOf(driver);
        VPrinterDriver back;
        QVERIFY(back.setJsonObject(QJsonDocument::fromJson(json).object()));
        QCOMPARE(back, driver);
        QCOMPARE(jsonOf(back), json);
        QCOMPARE(back.dataId(), driver.dataId());
    }
}

void tst_Catalogue::variant_hasItsIcon()
{
    const auto iconSizes = [](Variant variant) {
        return catalogue(1, variant).first().icon().availableSizes().size();
    };
    QCOMPARE(iconSizes(Variant::Plain), 0);
    QCOMPARE(iconSizes(Variant::Png), 4);
    QCOMPARE(iconSizes(Variant::Svg), 11);
}

void tst_Catalogue::pngIcon_isAFixedPointOfDecodingAndEncoding()
{
    for (int number = 0; number < kIcons; ++number) {
        for (const QByteArray &image : pngIcon(number)) {
            QPixmap pixmap;
            QVERIFY(pixmap.loadFromData(image, "png"));
            QBuffer again;
            QVERIFY(again.open(QIODevice::WriteOnly));
            QVERIFY(pixmap.save(&again, "png"));
            QCOMPARE(again.data(), image);
        }
    }
}

void tst_Catalogue::nameOf_isReadBack()
{
    for (const Variant variant : {Variant::Plain, Variant::Png, Variant::Svg})
        QCOMPARE(variantFrom(nameOf(variant)), variant);
    QCOMPARE(variantFrom(u"gif"_s), std::nullopt);
}

QTEST_MAIN(tst_Catalogue)

#include "tst_Catalogue.moc"
