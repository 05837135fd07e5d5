// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Drivers.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

using namespace Support;
using Norvane::VVersion;

static_assert(std::is_copy_constructible_v<VElaborationDriver>);
static_assert(std::is_copy_assignable_v<VElaborationDriver>);
static_assert(std::is_nothrow_destructible_v<VElaborationDriver>);
static_assert(!std::is_convertible_v<QUuid, VElaborationDriver>);

namespace {

const QUuid kSpace(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

/// A record in which no field has its default.
VElaborationDriver full()
{
    VElaborationDriver driver = elaboration(kSpace);
    driver.setAllowOnlineElaboration(true);
    driver.setPrefered(true);
    driver.setMagnification({0.25, 4.0});
    driver.setLevelManagementList({LevelManagement::Fixed, LevelManagement::HexaGrayscale});
    driver.setScrollRatioList({0.5, 1.0, 0.5});
    driver.setResolutionList({VResolution(400, 360), VResolution(16, 16, ResolutionUnit::PPMM)});
    return driver;
}

QJsonObject fullInner()
{
    return {{"elaborationType"_L1, u"TetralevelBlueMask"_s},
            {"levelManagementList"_L1, QJsonArray{u"Fixed"_s, u"HexaGrayscale"_s}},
            {"resolutionList"_L1,
             QJsonArray{QJsonObject{{"x"_L1, 400}, {"y"_L1, 360}, {"unit"_L1, u"DPI"_s}},
                        QJsonObject{{"x"_L1, 16}, {"y"_L1, 16}, {"unit"_L1, u"PPMM"_s}}}},
            {"scrollRatioList"_L1, QJsonArray{0.5, 1, 0.5}},
            {"magnificationMin"_L1, 0.25},
            {"magnificationMax"_L1, 4},
            {"allowOnlineElaboration"_L1, true},
            {"prefered"_L1, true}};
}

} // namespace

class tst_VElaborationDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void new_hasTheDefaults();
    void json_holdsTheFields();
    void json_takesFallbacks_data();
    void json_takesFallbacks();
    void json_ofNothingResetsEveryField();
    void json_keepsMagnificationsAsTheyAre();
    void validity_needsTypeModeAndResolution();
    void emptiness_isWithoutModesAndResolutions();
    void equality_seesEveryField_data();
    void equality_seesEveryField();
    void equality_comparesScrollRatiosBitForBit();
    void equality_comparesMagnificationsAsNumbers();
    void equalsTo_needsTheSameClass();
    void dataId_isTheDeviceId();
    void clone_isEqualAndIndependent();
    void assignment_toItselfChangesNothing();
};

void tst_VElaborationDriver::new_hasTheDefaults()
{
    const VElaborationDriver driver;
    QCOMPARE(driver.id(), QUuid(u"{488e105b-5aac-427d-92d3-1de3f94f8c7f}"_s));
    QVERIFY(driver.deviceId().isNull());
    QVERIFY(driver.version() == VVersion(1, 0, 0));
    QCOMPARE(driver.elaborationType(), ElaborationType::None);
    QVERIFY(driver.levelManagementList().isEmpty());
    QVERIFY(driver.resolutionList().isEmpty());
    QVERIFY(driver.scrollRatioList().isEmpty());
    QVERIFY(!driver.allowOnlineElaboration());
    QVERIFY(!driver.isPrefered());
    QCOMPARE(driver.magnification().first, 0.0);
    QCOMPARE(driver.magnification().second, 0.0);
    QVERIFY(!driver.isValid());
    QVERIFY(!VElaborationDriver(kSpace).isValid());
    QVERIFY(driver.isEmpty());
    VElaborationDriver named;
    named.setName(u"Fine"_s);
    QVERIFY(!named.isEmpty());
}

void tst_VElaborationDriver::json_holdsTheFields()
{
    QCOMPARE(innerOf(full()), fullInner());
    VElaborationDriver read(kSpace);
    QVERIFY(setInner(read, fullInner()));
    QVERIFY(read == full());
    QVERIFY(innerOf(VElaborationDriver()).value("scrollRatioList"_L1).isArray());
}

void tst_VElaborationDriver::json_takesFallbacks_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("read");
    QTest::addColumn<QJsonValue>("written");
    const auto row = [](const char *name, const char *key, const QJsonValue &read,
                        const QJsonValue &written) {
        QTest::newRow(name) << QString::fromLatin1(key) << read << written;
    };
    const QJsonValue none = u"None"_s;
    const QJsonObject noResolution{{"x"_L1, 0}, {"y"_L1, 0}, {"unit"_L1, u"PPM"_s}};
    row("type in the wrong case", "elaborationType", u"tetralevelbluemask"_s, none);
    row("type that is no name", "elaborationType", u"Something"_s, none);
    row("type as digits", "elaborationType", u"5"_s, none);
    row("type as a number", "elaborationType", 5, none);
    row("type is null", "elaborationType", QJsonValue::Null, none);
    row("type with outer blanks", "elaborationType", u" BilevelNearest "_s, u"BilevelNearest"_s);
    row("modes are no array", "levelManagementList", u"Fixed"_s, QJsonArray());
    row("a mode that is no name is kept as None", "levelManagementList",
        QJsonArray{u"Fixed"_s, u"fixed"_s, 266308, {}, u"Binary"_s},
        QJsonArray{u"Fixed"_s, none, none, none, u"Binary"_s});
    row("ratios are no array", "scrollRatioList", 1.5, QJsonArray());
    row("a ratio that is no number is 0", "scrollRatioList",
        QJsonArray{1.5, u"2"_s, {}, true, QJsonArray{3}}, QJsonArray{1.5, 0, 0, 0, 0});
    row("resolutions are no array", "resolutionList", noResolution, QJsonArray());
    row("a resolution that is no object is all 0", "resolutionList", QJsonArray{400, {}, u"x"_s},
        QJsonArray{noResolution, noResolution, noResolution});
    row("a resolution of wrong types", "resolutionList",
        QJsonArray{QJsonObject{{"x"_L1, u"1"_s}, {"unit"_L1, u"dpi"_s}}}, QJsonArray{noResolution});
    row("minimum is a text", "magnificationMin", u"0.5"_s, 0);
    row("maximum is a boolean", "magnificationMax", true, 0);
    row("flag is a number", "prefered", 1, false);
    row("flag is a text", "allowOnlineElaboration", u"true"_s, false);
}

void tst_VElaborationDriver::json_takesFallbacks()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, read);
    QFETCH(const QJsonValue, written);
    QJsonObject inner = fullInner();
    inner.insert(key, read);
    VElaborationDriver driver;
    QVERIFY(setInner(driver, inner));
    inner.insert(key, written); // Every other key is read as it stands.
    QCOMPARE(innerOf(driver), inner);
}

void tst_VElaborationDriver::json_ofNothingResetsEveryField()
{
    VElaborationDriver driver = full();
    QVERIFY(setInner(driver, {}));
    QVERIFY(driver == VElaborationDriver(kSpace));
}

void tst_VElaborationDriver::json_keepsMagnificationsAsTheyAre()
{
    VElaborationDriver driver(kSpace);
    driver.setMagnification({3.0, 1.0});
    QCOMPARE(driver.magnification().first, 3.0);
    QCOMPARE(innerOf(driver).value("magnificationMin"_L1), QJsonValue(3));
    QCOMPARE(innerOf(driver).value("magnificationMax"_L1), QJsonValue(1));
    VElaborationDriver read(kSpace);
    QVERIFY(setInner(read, innerOf(driver)));
    QVERIFY(read == driver);
}

void tst_VElaborationDriver::validity_needsTypeModeAndResolution()
{
    VElaborationDriver driver = elaboration(kSpace);
    QVERIFY(driver.scrollRatioList().isEmpty());
    QVERIFY(driver.isValid());
    VElaborationDriver without = driver;
    without.setElaborationType(ElaborationType::None);
    QVERIFY(!without.isValid());
    without = driver;
    without.setLevelManagementList({});
    QVERIFY(!without.isValid());
    without = driver;
    without.setResolutionList({});
    QVERIFY(!without.isValid());
    without = driver;
    without.setDeviceId(QUuid());
    QVERIFY(!without.isValid());
}

void tst_VElaborationDriver::emptiness_isWithoutModesAndResolutions()
{
    VElaborationDriver driver(kSpace);
    driver.setElaborationType(ElaborationType::BilevelStandard);
    driver.setScrollRatioList({1.0});
    driver.setPrefered(true);
    driver.setAllowOnlineElaboration(true);
    driver.setMagnification({1.0, 2.0});
    QVERIFY(driver.isEmpty()); // None of these counts.
    driver.setLevelManagementList({LevelManagement::None});
    QVERIFY(!driver.isEmpty());
    driver.setLevelManagementList({});
    driver.setResolutionList({VResolution()});
    QVERIFY(!driver.isEmpty());
}

void tst_VElaborationDriver::equality_seesEveryField_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("value");
    const auto row = [](const char *name, const char *key, const QJsonValue &value) {
        QTest::newRow(name) << QString::fromLatin1(key) << value;
    };
    row("type", "elaborationType", u"BilevelNearest"_s);
    row("modes in another order", "levelManagementList",
        QJsonArray{u"HexaGrayscale"_s, u"Fixed"_s});
    row("a mode fewer", "levelManagementList", QJsonArray{u"Fixed"_s});
    row("ratios in another order", "scrollRatioList", QJsonArray{0.5, 0.5, 1});
    row("a ratio fewer", "scrollRatioList", QJsonArray{0.5, 1});
    row("resolutions in another order", "resolutionList",
        QJsonArray{fullInner().value("resolutionList"_L1)[1],
                   fullInner().value("resolutionList"_L1)[0]});
    row("no resolution", "resolutionList", QJsonArray());
    row("minimum", "magnificationMin", 0.5);
    row("maximum", "magnificationMax", 5);
    row("online", "allowOnlineElaboration", false);
    row("prefered", "prefered", false);
}

void tst_VElaborationDriver::equality_seesEveryField()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, value);
    QJsonObject inner = fullInner();
    inner.insert(key, value);
    VElaborationDriver driver = full();
    QVERIFY(driver == full());
    QVERIFY(setInner(driver, inner));
    QVERIFY(driver != full());
    QVERIFY(full() != driver);
    VElaborationDriver renamed = full();
    renamed.setName(u"Other"_s);
    QVERIFY(renamed != full());
}

void tst_VElaborationDriver::equality_comparesScrollRatiosBitForBit()
{
    const auto withRatios = [](const QList<double> &ratios) {
        VElaborationDriver driver(kSpace);
        driver.setScrollRatioList(ratios);
        return driver;
    };
    QVERIFY(withRatios({0.0}) != withRatios({-0.0}));
    QVERIFY(withRatios({kNaN}) == withRatios({kNaN}));
    QVERIFY(withRatios({kNaN}) != withRatios({-kNaN}));
    QVERIFY(withRatios({}) != withRatios({0.0}));
}

void tst_VElaborationDriver::equality_comparesMagnificationsAsNumbers()
{
    const auto withLimits = [](double minimum, double maximum) {
        VElaborationDriver driver(kSpace);
        driver.setMagnification({minimum, maximum});
        return driver;
    };
    QVERIFY(withLimits(0.0, 1.0) == withLimits(-0.0, 1.0));
    QVERIFY(withLimits(1.0, -0.0) == withLimits(1.0, 0.0));
    const VElaborationDriver noMinimum = withLimits(kNaN, 1.0);
    QVERIFY(noMinimum != withLimits(kNaN, 1.0));
    QVERIFY(withLimits(1.0, kNaN) != withLimits(1.0, kNaN));
    QVERIFY(noMinimum == noMinimum); // The same object is equal whatever it holds.
}

void tst_VElaborationDriver::equalsTo_needsTheSameClass()
{
    const VElaborationDriver driver(kSpace);
    VPrintUnitDriver unit(kSpace);
    unit.setVersion(driver.version());
    QVERIFY(!driver.equalsTo(nullptr));
    QVERIFY(!driver.equalsTo(&unit));
    const VElaborationDriver copy = driver;
    QVERIFY(driver.equalsTo(&copy));
}

void tst_VElaborationDriver::dataId_isTheDeviceId()
{
    QCOMPARE(full().dataId(), kSpace);
    QVERIFY(VElaborationDriver().dataId().isNull());
}

void tst_VElaborationDriver::clone_isEqualAndIndependent()
{
    const std::unique_ptr<Norvane::Interfaces::ICloneable> clone(full().clone());
    auto *copy = dynamic_cast<VElaborationDriver *>(clone.get());
    QVERIFY(copy != nullptr);
    const VElaborationDriver original = *copy;
    QVERIFY(*copy == full());
    copy->setScrollRatioList({});
    copy->setName(u"Other"_s);
    QVERIFY(original == full());
}

void tst_VElaborationDriver::assignment_toItselfChangesNothing()
{
    VElaborationDriver driver = full();
    const VElaborationDriver &alias = driver;
    driver = alias;
    QVERIFY(driver == full());
}

QTEST_GUILESS_MAIN(tst_VElaborationDriver)
#include "tst_VElaborationDriver.moc"
