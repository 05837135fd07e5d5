// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Seed.h"

#include <vimaging/VResolution.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <limits>

using namespace Norvane::Imaging;
using namespace Qt::StringLiterals;

static_assert(std::is_copy_constructible_v<VResolution> && std::is_copy_assignable_v<VResolution>);
static_assert(std::is_default_constructible_v<VResolution>);

namespace {

QJsonObject objectOf(const QByteArray &json)
{
    return QJsonDocument::fromJson(json).object();
}

} // namespace

class tst_VResolution : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resolution_isZeroPixelsAMetreByDefault();
    void constructor_takesDotsPerInchUnlessToldOtherwise();
    void setters_changeOneValueEach();
    void equality_comparesWithoutConversion();
    void json_isWrittenWithTheUnitByName();
    void json_readsBackTheSame_data();
    void json_readsBackTheSame();
    void json_readsRandomValuesBackTheSame();
    void json_fallsBackForWhatIsMissingOrIllTyped_data();
    void json_fallsBackForWhatIsMissingOrIllTyped();
    void json_cannotHoldWhatIsNoNumber();
    void toString_writesNumbersAsTheLocaleDoes();
    void unit_withoutANameIsLostInJson();
};

void tst_VResolution::resolution_isZeroPixelsAMetreByDefault()
{
    const VResolution resolution;
    QCOMPARE(resolution.x(), 0.0);
    QCOMPARE(resolution.y(), 0.0);
    QCOMPARE(resolution.unit(), ResolutionUnit::PPM);
}

void tst_VResolution::constructor_takesDotsPerInchUnlessToldOtherwise()
{
    QCOMPARE(VResolution(400, 360).unit(), ResolutionUnit::DPI);
    QCOMPARE(VResolution(16, 16, ResolutionUnit::PPMM).unit(), ResolutionUnit::PPMM);
}

void tst_VResolution::setters_changeOneValueEach()
{
    VResolution resolution(1, 2, ResolutionUnit::PPM);
    resolution.setX(3);
    QVERIFY(resolution == VResolution(3, 2, ResolutionUnit::PPM));
    resolution.setY(4);
    QVERIFY(resolution == VResolution(3, 4, ResolutionUnit::PPM));
    resolution.setUnit(ResolutionUnit::DPI);
    QVERIFY(resolution == VResolution(3, 4, ResolutionUnit::DPI));
}

void tst_VResolution::equality_comparesWithoutConversion()
{
    const VResolution resolution(400, 360);
    QVERIFY(resolution == VResolution(400, 360));
    QVERIFY(resolution != VResolution(360, 400));
    QVERIFY(resolution != VResolution(400, 361));
    QVERIFY(resolution != VResolution(400, 360, ResolutionUnit::PPM));
    QVERIFY(VResolution(1000, 1000, ResolutionUnit::PPM)
            != VResolution(1, 1, ResolutionUnit::PPMM));
}

void tst_VResolution::json_isWrittenWithTheUnitByName()
{
    const QJsonObject object = VResolution(400, 360.5).toJsonObject();
    QCOMPARE(QJsonDocument(object).toJson(QJsonDocument::Compact),
             R"({"unit":"DPI","x":400,"y":360.5})");
}

void tst_VResolution::json_readsBackTheSame_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("unit");
    const auto unit = [](ResolutionUnit value) { return int(value); };
    QTest::newRow("dots per inch") << 400.0 << 360.0 << unit(ResolutionUnit::DPI);
    QTest::newRow("pixels per metre") << 15748.03 << 14173.2 << unit(ResolutionUnit::PPM);
    QTest::newRow("pixels per millimetre") << 15.75 << 14.17 << unit(ResolutionUnit::PPMM);
    QTest::newRow("nothing") << 0.0 << 0.0 << unit(ResolutionUnit::PPM);
    QTest::newRow("negative values") << -1.0 << -0.5 << unit(ResolutionUnit::DPI);
    QTest::newRow("extremes") << std::numeric_limits<double>::max()
                              << std::numeric_limits<double>::denorm_min()
                              << unit(ResolutionUnit::DPI);
}

void tst_VResolution::json_readsBackTheSame()
{
    QFETCH(const double, x);
    QFETCH(const double, y);
    QFETCH(const int, unit);
    const VResolution resolution(x, y, ResolutionUnit(unit));
    const QByteArray json = QJsonDocument(resolution.toJsonObject()).toJson();
    QVERIFY(VResolution::fromJsonObject(objectOf(json)) == resolution);
}

void tst_VResolution::json_readsRandomValuesBackTheSame()
{
    QRandomGenerator random(Support::seed());
    for (int i = 0; i < 1000; ++i) {
        const VResolution resolution(random.generateDouble() * 1e5, random.generateDouble(),
                                     ResolutionUnit(random.bounded(3)));
        const QByteArray json = QJsonDocument(resolution.toJsonObject()).toJson();
        QVERIFY(VResolution::fromJsonObject(objectOf(json)) == resolution);
    }
}

void tst_VResolution::json_fallsBackForWhatIsMissingOrIllTyped_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("y");
    QTest::addColumn<int>("unit");
    const int ppm = int(ResolutionUnit::PPM);
    const int dpi = int(ResolutionUnit::DPI);
    const auto row = [](const char *name, const char *json, double x, double y, int unit) {
        QTest::newRow(name) << QByteArray(json) << x << y << unit;
    };
    row("an empty object", "{}", 0, 0, ppm);
    row("no x", R"({"y": 2, "unit": "DPI"})", 0, 2, dpi);
    row("no y", R"({"x": 1, "unit": "DPI"})", 1, 0, dpi);
    row("no unit", R"({"x": 1, "y": 2})", 1, 2, ppm);
    row("a text for x", R"({"x": "1", "y": 2, "unit": "DPI"})", 0, 2, dpi);
    row("null for y", R"({"x": 1, "y": null, "unit": "DPI"})", 1, 0, dpi);
    row("a list for x", R"({"x": [1], "y": 2, "unit": "DPI"})", 0, 2, dpi);
    row("an unknown unit", R"({"x": 1, "y": 2, "unit": "LPI"})", 1, 2, ppm);
    row("a unit in the wrong case", R"({"x": 1, "y": 2, "unit": "dpi"})", 1, 2, ppm);
    row("a unit by number", R"({"x": 1, "y": 2, "unit": 2})", 1, 2, ppm);
    row("a unit as digits", R"({"x": 1, "y": 2, "unit": "2"})", 1, 2, ppm);
    row("a unit with blanks", R"({"x": 1, "y": 2, "unit": " DPI "})", 1, 2, dpi);
    row("keys that are not ours", R"({"x": 1, "y": 2, "unit": "DPI", "z": 3})", 1, 2, dpi);
}

void tst_VResolution::json_fallsBackForWhatIsMissingOrIllTyped()
{
    QFETCH(const QByteArray, json);
    const VResolution read = VResolution::fromJsonObject(objectOf(json));
    QTEST(read.x(), "x");
    QTEST(read.y(), "y");
    QTEST(int(read.unit()), "unit");
}

void tst_VResolution::json_cannotHoldWhatIsNoNumber()
{
    const VResolution resolution(qQNaN(), qInf());
    const QByteArray json = QJsonDocument(resolution.toJsonObject()).toJson();
    QVERIFY(VResolution::fromJsonObject(objectOf(json)) == VResolution(0, 0));
}

void tst_VResolution::toString_writesNumbersAsTheLocaleDoes()
{
    const VResolution resolution(400, 1360.5);
    QCOMPARE(resolution.toString(QLocale::c()), u"400 x 1360.5 DPI"_s);
    QCOMPARE(resolution.toString(QLocale(QLocale::German)), u"400 x 1.360,5 DPI"_s);
}

void tst_VResolution::unit_withoutANameIsLostInJson()
{
    const VResolution resolution(1, 2, ResolutionUnit(7));
    QCOMPARE(resolution.toString(QLocale::c()), u"1 x 2 7"_s);
    QVERIFY(VResolution::fromJsonObject(resolution.toJsonObject())
            == VResolution(1, 2, ResolutionUnit::PPM));
}

QTEST_GUILESS_MAIN(tst_VResolution)
#include "tst_VResolution.moc"
