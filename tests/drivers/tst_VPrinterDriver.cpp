// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Drivers.h"

#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <functional>
#include <memory>
#include <type_traits>

using namespace Support;
using Norvane::VVersion;

static_assert(std::is_copy_constructible_v<VPrinterDriver>);
static_assert(std::is_copy_assignable_v<VPrinterDriver>);
static_assert(std::is_nothrow_destructible_v<VPrinterDriver>);
static_assert(!std::is_convertible_v<QUuid, VPrinterDriver>);
static_assert(std::is_base_of_v<VDeviceConfig, VPrinterDriver>);

using Change = std::function<void(VPrinterDriver &)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QUuid kSpace(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);

} // namespace

class tst_VPrinterDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void new_hasTheDefaults();
    void setters_storeWithoutCheck();
    void validity_needsADeviceIdAndAChild();
    void emptiness_isTheBases();
    void dataId_isThatOfModeClassAndFaces_data();
    void dataId_isThatOfModeClassAndFaces();
    void dataId_ignoresEveryOtherField_data();
    void dataId_ignoresEveryOtherField();
    void equality_seesEveryField_data();
    void equality_seesEveryField();
    void equalsTo_needsTheSameClass();
    void copies_areEqualAndIndependent();
    void copies_ofWhatEqualsNothingAreUnequal();
    void clone_isEqualAndIndependent();
    void fromJson_rebuildsTheDriver();
};

void tst_VPrinterDriver::new_hasTheDefaults()
{
    const VPrinterDriver driver;
    QCOMPARE(driver.id(), QUuid(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s));
    QVERIFY(driver.deviceId().isNull());
    QVERIFY(driver.isNull());
    QVERIFY(driver.version() == VVersion(1, 2, 1));
    QVERIFY(driver.name().isEmpty() && driver.description().isEmpty());
    QVERIFY(!driver.dateTime().isValid());
    QCOMPARE(driver.printerClass(), PrinterClass::Unknown);
    QCOMPARE(driver.facesMode(), PrinterFacesMode::None);
    QCOMPARE(driver.fileCompression(), PrinterFileCompression::None);
    QCOMPARE(driver.fileProtection(), PrinterFileProtection::None);
    QCOMPARE(driver.maximumFaces(), 0);
    QCOMPARE(driver.maximumImageBytes(), qint64(0));
    QVERIFY(!driver.onlineElaboration());
    QVERIFY(!driver.onlineLinearizations());
    QVERIFY(!driver.experimental());
    QVERIFY(driver.icon().isNull());
    QCOMPARE(VPrinterDriver(kSpace).deviceId(), kSpace);
}

void tst_VPrinterDriver::setters_storeWithoutCheck()
{
    VPrinterDriver driver;
    driver.setPrinterClass(PrinterClass(99));
    driver.setFacesMode(PrinterFacesMode(-1));
    driver.setFileCompression(PrinterFileCompression(0x7fff));
    driver.setFileProtection(PrinterFileProtection(-1));
    driver.setMaximumFaces(-5);
    driver.setMaximumImageBytes(std::numeric_limits<qint64>::min());
    QCOMPARE(int(driver.printerClass()), 99);
    QCOMPARE(int(driver.facesMode()), -1);
    QCOMPARE(int(driver.fileCompression()), 0x7fff);
    QCOMPARE(int(driver.fileProtection()), -1);
    QCOMPARE(driver.maximumFaces(), -5);
    QCOMPARE(driver.maximumImageBytes(), std::numeric_limits<qint64>::min());
}

void tst_VPrinterDriver::validity_needsADeviceIdAndAChild()
{
    VPrinterDriver driver(kSpace);
    QVERIFY(!driver.isValid());
    VPrintUnitDriver unit; // Any child will do, even one that is not valid itself.
    driver.insert(&unit, false);
    QVERIFY(driver.isValid());
    driver.setDeviceId(QUuid());
    QVERIFY(!driver.isValid());
    driver.setDeviceId(kSpace);
    QVERIFY(driver.remove(QUuid(), false));
    QVERIFY(!driver.isValid());
}

void tst_VPrinterDriver::emptiness_isTheBases()
{
    VPrinterDriver driver(kSpace);
    driver.setPrinterClass(PrinterClass::Plotter);
    driver.setMaximumFaces(3);
    QVERIFY(driver.isEmpty());
    driver.setDescription(u"x"_s);
    QVERIFY(!driver.isEmpty());
}

// The expected ids were computed by another implementation of version 5 UUIDs, from the texts.
void tst_VPrinterDriver::dataId_isThatOfModeClassAndFaces_data()
{
    QTest::addColumn<QUuid>("deviceId");
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("printerClass");
    QTest::addColumn<int>("faces");
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QUuid>("id");
    const auto row = [](const char *name, const QUuid &space, int mode, int printerClass, int faces,
                        const QString &locale, const QString &id) {
        QTest::newRow(name) << space << mode << printerClass << faces << locale << QUuid(id);
    };
    row("Basic;Inkjet;4", kSpace, 1, 0, 4, u"C"_s, u"{2f69a08a-8c0b-5742-a110-32822642bd6a}"_s);
    row("the same for another device", QUuid(), 1, 0, 4, u"C"_s,
        u"{938e68d2-7fcb-5632-b93f-88c3c16a390f}"_s);
    row("None;Unknown;0: a new driver", QUuid(), 0, 5, 0, u"C"_s,
        u"{240cd949-2402-5ad0-8097-aeec00e3c455}"_s);
    row("Advanced;Dryjet;-1", kSpace, 2, 3, -1, u"C"_s,
        u"{cddf1244-ac9f-5a83-a7b6-d7dbd25dc537}"_s);
    row("None;Plotter;2147483647", kSpace, 0, 1, 2147483647, u"C"_s,
        u"{ee6a80a0-246f-5e60-bf83-cfc45652c85a}"_s);
    row("faces are written without groups in any locale", kSpace, 1, 0, 12345, u"en_US"_s,
        u"{d080139a-7347-5772-a8c6-e5124e0143aa}"_s);
    row("12;Inkjet;0: a mode without a name is its number", kSpace, 12, 0, 0, u"en_US"_s,
        u"{db69d6a5-03c2-5604-a859-e98baeb5ff22}"_s);
    row("12,345;Inkjet;0: as the default locale writes it", kSpace, 12345, 0, 0, u"en_US"_s,
        u"{e8bd7bb1-a97b-50a2-abba-ba4d81f1ecae}"_s);
    row("12.345;Inkjet;0: and another one", kSpace, 12345, 0, 0, u"de_DE"_s,
        u"{187d1695-4c7a-563b-a354-771ffafc3255}"_s);
}

void tst_VPrinterDriver::dataId_isThatOfModeClassAndFaces()
{
    QFETCH(const QUuid, deviceId);
    QFETCH(const int, mode);
    QFETCH(const int, printerClass);
    QFETCH(const int, faces);
    QFETCH(const QString, locale);
    QLocale::setDefault(QLocale(locale));
    VPrinterDriver driver(deviceId);
    driver.setFacesMode(PrinterFacesMode(mode));
    driver.setPrinterClass(PrinterClass(printerClass));
    driver.setMaximumFaces(faces);
    QTEST(driver.dataId(), "id");
}

void tst_VPrinterDriver::dataId_ignoresEveryOtherField_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("compression", [](auto &d) { d.setFileCompression(PrinterFileCompression::Lz4); });
    row("protection", [](auto &d) { d.setFileProtection(PrinterFileProtection::Obfuscation); });
    row("image limit", [](auto &d) { d.setMaximumImageBytes(1); });
    row("online elaboration", [](auto &d) { d.setOnlineElaboration(true); });
    row("online linearisations", [](auto &d) { d.setOnlineLinearizations(true); });
    row("experimental", [](auto &d) { d.setExperimental(true); });
    row("name", [](auto &d) { d.setName(u"Other"_s); });
    row("description", [](auto &d) { d.setDescription(u"Other"_s); });
    row("version", [](auto &d) { d.setVersion(VVersion(9, 9, 9)); });
    row("date", [](auto &d) { d.setDateTime(QDateTime::fromMSecsSinceEpoch(1)); });
    row("children", [](auto &d) { d.remove(QUuid(), false); });
}

void tst_VPrinterDriver::dataId_ignoresEveryOtherField()
{
    QFETCH(const Change, change);
    const VPrinterDriver driver = validPrinter(kSpace);
    VPrinterDriver changed = driver;
    change(changed);
    QCOMPARE(changed.dataId(), driver.dataId());
    QVERIFY(changed != driver);
    QVERIFY(driver != changed);
}

void tst_VPrinterDriver::equality_seesEveryField_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("class", [](auto &d) { d.setPrinterClass(PrinterClass::Engraver); });
    row("faces mode", [](auto &d) { d.setFacesMode(PrinterFacesMode::Advanced); });
    row("faces", [](auto &d) { d.setMaximumFaces(5); });
    row("device id", [](auto &d) { d.setDeviceId(QUuid()); });
    row("a child's field", [](auto &d) {
        for (auto *child : d.values(QUuid()))
            child->setName(u"Other"_s);
    });
}

void tst_VPrinterDriver::equality_seesEveryField()
{
    QFETCH(const Change, change);
    const VPrinterDriver driver = validPrinter(kSpace);
    VPrinterDriver changed = driver;
    QVERIFY(changed == driver);
    QVERIFY(!(changed != driver));
    change(changed);
    QVERIFY(changed != driver);
    QVERIFY(driver != changed);
}

void tst_VPrinterDriver::equalsTo_needsTheSameClass()
{
    const VPrinterDriver driver(kSpace);
    VPrintUnitDriver unit(kSpace);
    unit.setVersion(driver.version());
    QVERIFY(!driver.equalsTo(nullptr));
    QVERIFY(!driver.equalsTo(&unit));
    const VPrinterDriver copy = driver;
    QVERIFY(driver.equalsTo(&copy));
    const VPrinterDriver other;
    QVERIFY(!driver.equalsTo(&other));
}

void tst_VPrinterDriver::copies_areEqualAndIndependent()
{
    const VPrinterDriver driver = validPrinter(kSpace);
    VPrinterDriver copy = driver;
    copy.setMaximumFaces(9);
    copy.setName(u"Copy"_s);
    VPrinterDriver assigned;
    assigned = copy;
    QVERIFY(assigned == copy);
    QCOMPARE(driver.maximumFaces(), 4);
    QCOMPARE(driver.name(), u"Printer"_s);
    const VPrinterDriver &alias = assigned;
    assigned = alias;
    QVERIFY(assigned == copy);
}

void tst_VPrinterDriver::copies_ofWhatEqualsNothingAreUnequal()
{
    VElaborationDriver method = elaboration();
    method.setMagnification({std::numeric_limits<double>::quiet_NaN(), 1.0});
    VPrinterDriver driver(kSpace);
    driver.insert(&method, false);
    const VPrinterDriver copy = driver;
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): copies are what is tested.
    const VPrinterDriver second = copy;
    QVERIFY(driver != copy); // No number is not equal to itself, however copies are made.
    QVERIFY(copy != second);
    QVERIFY(copy == copy);
}

void tst_VPrinterDriver::clone_isEqualAndIndependent()
{
    const VPrinterDriver driver = validPrinter(kSpace);
    const std::unique_ptr<Norvane::Interfaces::ICloneable> clone(driver.clone());
    auto &copy = dynamic_cast<VPrinterDriver &>(*clone);
    QVERIFY(copy == driver);
    copy.setExperimental(true);
    copy.values(QUuid()).first()->setName(u"Other"_s);
    QVERIFY(driver == driver);
    QVERIFY(!driver.experimental());
    QVERIFY(driver != copy);
}

void tst_VPrinterDriver::fromJson_rebuildsTheDriver()
{
    const VPrinterDriver driver = validPrinter(kSpace);
    const QByteArray json = QJsonDocument(driver.toJsonObject()).toJson();
    const std::unique_ptr<Norvane::Hardware::Interfaces::IVDeviceConfig> read(
        VDeviceConfig::fromJson(json));
    QVERIFY(read != nullptr);
    QVERIFY(read->equalsTo(&driver));
    QCOMPARE(read->dataId(), driver.dataId());
    QVERIFY(read->isValid());
    for (const QUuid &kind :
         {VPrinterDriver().id(), VPrintUnitDriver().id(), VElaborationDriver().id()})
        QVERIFY(VDeviceConfig::isRegistered(kind));
}

QTEST_GUILESS_MAIN(tst_VPrinterDriver)
#include "tst_VPrinterDriver.moc"
