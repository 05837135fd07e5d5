// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Random records, written as JSON and read back: what JSON can hold comes back equal.

#include "support/Drivers.h"
#include "support/Icons.h"
#include "support/Seed.h"

#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <memory>

using namespace Support;
using Norvane::Hardware::Interfaces::IVDeviceConfig;

namespace {

QByteArray bytesOf(const IVDeviceConfig &config)
{
    return QJsonDocument(config.toJsonObject()).toJson(QJsonDocument::Compact);
}

std::unique_ptr<IVDeviceConfig> read(const QByteArray &json)
{
    return std::unique_ptr<IVDeviceConfig>(VDeviceConfig::fromJson(json));
}

double asJsonKeepsIt(double number)
{
    return std::isfinite(number) && number != 0.0 ? number : 0.0;
}

} // namespace

class tst_random_drivers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(u"it_IT"_s)); } // Must not show in any JSON.

    void records_comeBackEqual();
    void icons_comeBackEqual();
    void numbers_comeBackAsJsonKeepsThem();
    void lists_mayBeLong();
    void bytes_mayBeFlipped();
    void keys_mayHaveAnyType();
};

void tst_random_drivers::records_comeBackEqual()
{
    RandomDrivers random(seed());
    for (int run = 0; run < 500; ++run) {
        const VPrinterDriver printer = random.printer();
        const VPrintUnitDriver unit = random.printUnit();
        const VElaborationDriver method = random.elaboration();
        for (const VDeviceConfig *driver : {static_cast<const VDeviceConfig *>(&printer),
                                            static_cast<const VDeviceConfig *>(&unit),
                                            static_cast<const VDeviceConfig *>(&method)}) {
            const QByteArray json = bytesOf(*driver);
            const auto back = read(json);
            QVERIFY2(back != nullptr, json.constData());
            QVERIFY2(back->equalsTo(driver) && driver->equalsTo(back.get()), json.constData());
            QCOMPARE(bytesOf(*back), json);
            QCOMPARE(back->dataId(), driver->dataId());
            QCOMPARE(back->hash(), driver->hash());
            QCOMPARE(back->isValid(), driver->isValid());
            QCOMPARE(back->isEmpty(), driver->isEmpty());
        }
    }
}

// Squares of different sizes: of several images of one area an icon shows but one.
void tst_random_drivers::icons_comeBackEqual()
{
    RandomDrivers random(seed());
    for (int run = 0; run < 100; ++run) {
        QJsonArray icon;
        for (int size = 1 + random.number(9); size < 30; size += 1 + random.number(30)) {
            const auto format = random.flag() ? QImage::Format_ARGB32 : QImage::Format_RGB32;
            icon.append(iconElement(encoded(testImage(size, size, format, run))));
        }
        VPrinterDriver driver = random.printer();
        QJsonObject inner = innerOf(driver);
        inner.insert("icon"_L1, icon);
        QVERIFY(setInner(driver, inner));
        const auto back = read(bytesOf(driver));
        QVERIFY(back && back->equalsTo(&driver) && driver.equalsTo(back.get()));
        QCOMPARE(innerOf(driver).value("icon"_L1).toArray().size(), icon.size());
    }
}

void tst_random_drivers::numbers_comeBackAsJsonKeepsThem()
{
    const double infinity = std::numeric_limits<double>::infinity();
    const QList<double> numbers{0.0,      -0.0,      1e308,
                                -1e308,   5e-324,    0.1,
                                infinity, -infinity, std::numeric_limits<double>::quiet_NaN()};
    VElaborationDriver driver;
    driver.setScrollRatioList(numbers);
    for (const double number : numbers) {
        driver.setMagnification({number, -number});
        driver.setResolutionList({VResolution(number, 1)});
        const auto back = read(bytesOf(driver));
        QVERIFY(back);
        const auto &method = dynamic_cast<const VElaborationDriver &>(*back);
        for (qsizetype i = 0; i < numbers.size(); ++i)
            QVERIFY(method.scrollRatioList().at(i) == asJsonKeepsIt(numbers.at(i)));
        QVERIFY(!std::signbit(method.scrollRatioList().at(1)));
        QVERIFY(method.magnification().first == asJsonKeepsIt(number));
        QVERIFY(method.magnification().second == asJsonKeepsIt(-number));
        QVERIFY(method.resolutionList().first().x() == asJsonKeepsIt(number));
    }
}

void tst_random_drivers::lists_mayBeLong()
{
    VElaborationDriver method(QUuid::createUuid());
    method.setScrollRatioList(QList<double>(10000, 0.5));
    method.setLevelManagementList(QList<LevelManagement>(10000, LevelManagement::Binary));
    method.setResolutionList(QList<VResolution>(10000, VResolution(400, 360)));
    VPrintUnitDriver unit(QUuid::createUuid());
    unit.setChannels(QList<Channel>(10000, Channel::Powder9));
    QVERIFY(read(bytesOf(method))->equalsTo(&method));
    QVERIFY(read(bytesOf(unit))->equalsTo(&unit));
    QCOMPARE(read(bytesOf(unit))->dataId(), unit.dataId());
}

void tst_random_drivers::bytes_mayBeFlipped()
{
    const quint32 start = seed();
    RandomDrivers random(start);
    QRandomGenerator damage(start);
    for (int run = 0; run < 2000; ++run) {
        QByteArray json = bytesOf(random.printer());
        for (int i = damage.bounded(1, 4); i > 0; --i)
            json[damage.bounded(int(json.size()))] = char(damage.bounded(256));
        const auto driver = read(json);
        if (!driver)
            continue;
        const auto again = read(bytesOf(*driver)); // What was read can be written and read.
        QVERIFY2(again && again->equalsTo(driver.get()), json.toHex().constData());
    }
}

// Every key of every record with every type of value: never a crash, and what was read is written.
void tst_random_drivers::keys_mayHaveAnyType()
{
    RandomDrivers random(7);
    const QJsonArray values{QJsonValue::Null,
                            true,
                            -1,
                            1e308,
                            0.5,
                            u""_s,
                            u"x"_s,
                            u"Cyan"_s,
                            QString(100000, u'A'),
                            QJsonArray(),
                            QJsonArray{QJsonArray{1}, {}},
                            QJsonObject(),
                            QJsonObject{{"id"_L1, 1}, {"format"_L1, u"png"_s}}};
    const VPrinterDriver printer = random.printer();
    const VPrintUnitDriver unit = random.printUnit();
    const VElaborationDriver method = random.elaboration();
    for (const VDeviceConfig *driver :
         {static_cast<const VDeviceConfig *>(&printer), static_cast<const VDeviceConfig *>(&unit),
          static_cast<const VDeviceConfig *>(&method)}) {
        QJsonObject inner = innerOf(*driver);
        inner.insert("icon"_L1, u""_s);
        inner.insert("svgIcon"_L1, u""_s);
        for (const QString &key : inner.keys()) {
            for (const QJsonValue &value : values) {
                QJsonObject changed = inner;
                changed.insert(key, value);
                QJsonObject envelope = driver->toJsonObject();
                envelope.insert("config"_L1, changed);
                const auto once = read(QJsonDocument(envelope).toJson());
                QVERIFY(once != nullptr);
                QVERIFY(read(bytesOf(*once))->equalsTo(once.get()));
            }
        }
    }
}

QTEST_GUILESS_MAIN(tst_random_drivers)
#include "tst_random_drivers.moc"
