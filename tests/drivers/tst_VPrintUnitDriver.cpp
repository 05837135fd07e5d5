// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Drivers.h"

#include <QtTest/QTest>

#include <memory>
#include <type_traits>

using namespace Support;
using Norvane::VVersion;

static_assert(std::is_copy_constructible_v<VPrintUnitDriver>);
static_assert(std::is_copy_assignable_v<VPrintUnitDriver>);
static_assert(std::is_nothrow_destructible_v<VPrintUnitDriver>);
static_assert(!std::is_convertible_v<QUuid, VPrintUnitDriver>);

namespace {

const QUuid kSpace(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);

VPrintUnitDriver unitWith(const QList<Channel> &channels, VVersion version = VVersion(1, 1, 0))
{
    VPrintUnitDriver unit(kSpace);
    unit.setVersion(version);
    unit.setChannels(channels);
    return unit;
}

} // namespace

class tst_VPrintUnitDriver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QLocale::setDefault(QLocale::c()); }

    void new_hasTheDefaults();
    void json_holdsTheFields();
    void json_takesFallbacks_data();
    void json_takesFallbacks();
    void dataId_isThatOfTheChannelNames_data();
    void dataId_isThatOfTheChannelNames();
    void dataId_needsNobodyToHearThatItIsThere();
    void dataId_ignoresOrderAndFlags();
    void dataId_ofALoadedRecordFollowsItsVersion();
    void equality_needsTheSameOrderAndFlags();
    void equality_needsTheSameBase();
    void equalsTo_needsTheSameClass();
    void emptiness_isWithoutChannels();
    void validity_isTheBases();
    void clone_isEqualAndIndependent();
    void assignment_takesEverything();
};

void tst_VPrintUnitDriver::new_hasTheDefaults()
{
    const VPrintUnitDriver unit;
    QCOMPARE(unit.id(), QUuid(u"{8f5c90c1-c516-487b-bd10-603583444346}"_s));
    QVERIFY(unit.deviceId().isNull());
    QVERIFY(unit.version() == VVersion(1, 1, 0));
    QVERIFY(unit.channels().isEmpty());
    QVERIFY(!unit.customHorizontalResolution());
    QVERIFY(!unit.customVerticalResolution());
    QVERIFY(unit.name().isEmpty() && unit.description().isEmpty());
    QVERIFY(unit.isEmpty());
    QCOMPARE(VPrintUnitDriver(kSpace).deviceId(), kSpace);
}

void tst_VPrintUnitDriver::json_holdsTheFields()
{
    VPrintUnitDriver unit = unitWith({Channel::Cyan, Channel::a, Channel::Cyan});
    unit.setCustomHorizontalResolution(true);
    const QJsonObject expected{{"channels"_L1, QJsonArray{u"Cyan"_s, u"a"_s, u"Cyan"_s}},
                               {"customHorizontalResolution"_L1, true},
                               {"customVerticalResolution"_L1, false}};
    QCOMPARE(innerOf(unit), expected);
    VPrintUnitDriver read(kSpace);
    QVERIFY(setInner(read, expected));
    QVERIFY(read == unit);
}

void tst_VPrintUnitDriver::json_takesFallbacks_data()
{
    QTest::addColumn<QJsonObject>("inner");
    QTest::addColumn<QList<Channel>>("channels");
    QTest::addColumn<bool>("horizontal");
    QTest::addColumn<bool>("vertical");
    const QList<Channel> none;
    const auto channels = [](const QJsonValue &value) {
        return QJsonObject{{"channels"_L1, value}};
    };
    QTest::newRow("nothing there") << QJsonObject() << none << false << false;
    QTest::newRow("channels are a text") << channels(u"Cyan"_s) << none << false << false;
    QTest::newRow("channels are an object") << channels(QJsonObject()) << none << false << false;
    QTest::newRow("a name, its lower case, and a number")
        << channels(QJsonArray{u"Cyan"_s, u"cyan"_s, 5})
        << QList{Channel::Cyan, Channel::None, Channel::None} << false << false;
    QTest::newRow("every element counts, whatever it is")
        << channels(QJsonArray{{}, true, QJsonArray(), QJsonObject(), u"Sinker2"_s, u"1"_s})
        << QList<Channel>(6, Channel::None) << false << false;
    QTest::newRow("outer blanks are no part of a name")
        << channels(QJsonArray{u" Cyan\n"_s}) << QList{Channel::Cyan} << false << false;
    QTest::newRow("flags of other types are false")
        << QJsonObject{{"customHorizontalResolution"_L1, 1},
                       {"customVerticalResolution"_L1, u"true"_s}}
        << none << false << false;
    QTest::newRow("each flag has its key")
        << QJsonObject{{"customHorizontalResolution"_L1, true}} << none << true << false;
    QTest::newRow("each flag has its key, the other")
        << QJsonObject{{"customVerticalResolution"_L1, true}} << none << false << true;
}

void tst_VPrintUnitDriver::json_takesFallbacks()
{
    QFETCH(const QJsonObject, inner);
    VPrintUnitDriver unit = unitWith({Channel::Gold}); // What was there before is gone.
    unit.setCustomHorizontalResolution(true);
    unit.setCustomVerticalResolution(true);
    QVERIFY(setInner(unit, inner));
    QTEST(unit.channels(), "channels");
    QTEST(unit.customHorizontalResolution(), "horizontal");
    QTEST(unit.customVerticalResolution(), "vertical");
}

// The expected ids were computed by another implementation of version 5 UUIDs, from the texts.
void tst_VPrintUnitDriver::dataId_isThatOfTheChannelNames_data()
{
    QTest::addColumn<QList<Channel>>("channels");
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("id");
    const auto row = [](const char *name, const QList<Channel> &channels, const QString &version,
                        const QString &id) { QTest::newRow(name) << channels << version << id; };
    const QList<Channel> inks{Channel::Yellow, Channel::Cyan, Channel::Black};
    const QList<Channel> effects{Channel::Glaze, Channel::Lightness, Channel::C1, Channel::Alpha};
    const QList<Channel> unnamed{Channel(99999), Channel::Cyan};
    row("no channel: the empty text", {}, u"1.1.0"_s, u"{2cf59625-0cef-5927-ae90-d5fe325f190a}"_s);
    row("no channel in format 1.0", {}, u"1.0.0"_s, u"{2cf59625-0cef-5927-ae90-d5fe325f190a}"_s);
    row("Black;Cyan;Yellow", inks, u"1.1.0"_s, u"{a67e9234-1d0f-5590-a126-2e969d5fb43b}"_s);
    row("the same in a later format", inks, u"2.0.0"_s,
        u"{a67e9234-1d0f-5590-a126-2e969d5fb43b}"_s);
    row("Cyan;Yellow;Black in format 1.0", inks, u"1.0.0"_s,
        u"{8bcc1ad4-28e6-515c-9282-37f3319ab85a}"_s);
    row("the last of format 1.0", inks, u"1.0.255"_s, u"{8bcc1ad4-28e6-515c-9282-37f3319ab85a}"_s);
    row("a record without a version is of the old format", inks, u"0.0.0"_s,
        u"{8bcc1ad4-28e6-515c-9282-37f3319ab85a}"_s);
    row("Cyan", {Channel::Cyan}, u"1.1.0"_s, u"{a95d8666-485b-5105-8d91-0371abe2aa6c}"_s);
    row("Cyan;Cyan: duplicates count", {Channel::Cyan, Channel::Cyan}, u"1.1.0"_s,
        u"{04112947-97fb-54a6-9e8a-6e618fd3d1b5}"_s);
    row("Cyan;Cyan in format 1.0", {Channel::Cyan, Channel::Cyan}, u"1.0.0"_s,
        u"{04112947-97fb-54a6-9e8a-6e618fd3d1b5}"_s);
    row("White;a: capitals come first", {Channel::a, Channel::White}, u"1.1.0"_s,
        u"{af9a61b3-045d-522e-be71-53664b929e01}"_s);
    row("Alpha;C1;Glaze;Lightness", effects, u"1.1.0"_s,
        u"{0777d274-fada-5925-b3fc-fea15dbd75d0}"_s);
    row("Alpha;C1;Lightness;Glaze in format 1.0", effects, u"1.0.0"_s,
        u"{7e35aeee-6b24-5268-b886-335c50564efc}"_s);
    row("99,999;Cyan: a number without a name, as the default locale writes it", unnamed,
        u"1.1.0"_s, u"{ae938654-bf72-5b50-b8c7-dcf5c0f8175b}"_s);
    row("None;Cyan: format 1.0 knows only names", unnamed, u"1.0.0"_s,
        u"{3cf28c8e-fec8-5fc1-be14-57e08cea3899}"_s);
}

void tst_VPrintUnitDriver::dataId_isThatOfTheChannelNames()
{
    QFETCH(const QList<Channel>, channels);
    QFETCH(const QString, version);
    QFETCH(const QString, id);
    QLocale::setDefault(QLocale(u"en_US"_s));
    QCOMPARE(unitWith(channels, VVersion::fromString(version)).dataId(), QUuid(id));
}

// A host's own class may ask for the id alone.
void tst_VPrintUnitDriver::dataId_needsNobodyToHearThatItIsThere()
{
    class Asking : public VPrintUnitDriver
    {
    public:
        using VPrintUnitDriver::innerDataId;
        using VPrintUnitDriver::VPrintUnitDriver;
    };
    const Asking unit(kSpace);
    QCOMPARE(unit.innerDataId(nullptr), unit.dataId());
}

void tst_VPrintUnitDriver::dataId_ignoresOrderAndFlags()
{
    const VPrintUnitDriver unit = unitWith({Channel::Cyan, Channel::Magenta});
    const VPrintUnitDriver reordered = unitWith({Channel::Magenta, Channel::Cyan});
    VPrintUnitDriver flagged = unit;
    flagged.setCustomVerticalResolution(true);
    QCOMPARE(unit.dataId(), QUuid(u"{acf169e7-9fe4-56b0-b98c-f2da3cf804c4}"_s));
    QCOMPARE(reordered.dataId(), unit.dataId());
    QCOMPARE(flagged.dataId(), unit.dataId());
    QVERIFY(reordered != unit);
    QVERIFY(flagged != unit);
}

void tst_VPrintUnitDriver::dataId_ofALoadedRecordFollowsItsVersion()
{
    const VPrintUnitDriver old =
        unitWith({Channel::Yellow, Channel::Cyan, Channel::Black}, VVersion(1, 0, 3));
    VPrintUnitDriver read;
    QVERIFY(read.setJsonObject(old.toJsonObject()));
    QVERIFY(read.version() == VVersion(1, 0, 3));
    QCOMPARE(read.dataId(), QUuid(u"{8bcc1ad4-28e6-515c-9282-37f3319ab85a}"_s));
}

void tst_VPrintUnitDriver::equality_needsTheSameOrderAndFlags()
{
    const VPrintUnitDriver unit = unitWith({Channel::Cyan, Channel::Magenta});
    QVERIFY(unit == VPrintUnitDriver(unit));
    QVERIFY(!(unit != VPrintUnitDriver(unit)));
    QVERIFY(unit != unitWith({Channel::Magenta, Channel::Cyan}));
    QVERIFY(unit != unitWith({Channel::Cyan}));
    VPrintUnitDriver horizontal = unit;
    horizontal.setCustomHorizontalResolution(true);
    VPrintUnitDriver vertical = unit;
    vertical.setCustomVerticalResolution(true);
    QVERIFY(unit != horizontal);
    QVERIFY(unit != vertical);
    QVERIFY(horizontal != vertical);
}

void tst_VPrintUnitDriver::equality_needsTheSameBase()
{
    const VPrintUnitDriver unit = unitWith({Channel::Cyan});
    VPrintUnitDriver named = unit;
    named.setName(u"Bar 1"_s);
    QVERIFY(unit != named);
    QVERIFY(unit != unitWith({Channel::Cyan}, VVersion(1, 0, 0)));
}

void tst_VPrintUnitDriver::equalsTo_needsTheSameClass()
{
    const VPrintUnitDriver unit(kSpace);
    VPrinterDriver printer(kSpace);
    printer.setVersion(unit.version());
    VElaborationDriver method(kSpace);
    method.setVersion(unit.version());
    QVERIFY(!unit.equalsTo(nullptr));
    QVERIFY(!unit.equalsTo(&printer));
    QVERIFY(!unit.equalsTo(&method));
    const VPrintUnitDriver copy = unit;
    QVERIFY(unit.equalsTo(&copy));
}

void tst_VPrintUnitDriver::emptiness_isWithoutChannels()
{
    VPrintUnitDriver unit(kSpace);
    unit.setCustomHorizontalResolution(true);
    unit.setCustomVerticalResolution(true);
    QVERIFY(unit.isEmpty()); // Flags alone say nothing.
    unit.setChannels({Channel::None});
    QVERIFY(!unit.isEmpty());
    unit.setChannels({});
    unit.setName(u"Bar 1"_s);
    QVERIFY(!unit.isEmpty()); // Nor is a record empty whose base is not.
}

void tst_VPrintUnitDriver::validity_isTheBases()
{
    QVERIFY(!VPrintUnitDriver().isValid());
    QVERIFY(VPrintUnitDriver(kSpace).isValid());
}

void tst_VPrintUnitDriver::clone_isEqualAndIndependent()
{
    const VPrintUnitDriver unit = unitWith({Channel::Cyan});
    const std::unique_ptr<Norvane::Interfaces::ICloneable> clone(unit.clone());
    auto &copy = dynamic_cast<VPrintUnitDriver &>(*clone);
    QVERIFY(copy == unit);
    copy.setChannels({});
    QCOMPARE(unit.channels(), QList{Channel::Cyan});
}

void tst_VPrintUnitDriver::assignment_takesEverything()
{
    VPrintUnitDriver unit = unitWith({Channel::Cyan, Channel::Black});
    unit.setCustomVerticalResolution(true);
    unit.setName(u"Bar 1"_s);
    VPrintUnitDriver other;
    other = unit;
    QVERIFY(other == unit);
    const VPrintUnitDriver &itself = other;
    other = itself;
    QVERIFY(other == itself);
    other.setChannels({});
    QCOMPARE(unit.channels().size(), 2);
}

QTEST_GUILESS_MAIN(tst_VPrintUnitDriver)
#include "tst_VPrintUnitDriver.moc"
