// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Expected.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QMap>

#include <bit>

using namespace Norvane::Kilnjet;
using Norvane::Hardware::Interfaces::IVDeviceConfig;

namespace Bench {

namespace {

/// Adds up what it is given; cheap, so that the reading is what is measured.
class Sum
{
public:
    void add(quint64 value) { m_value = m_value * 1'099'511'628'211U + value; }
    void add(double value) { add(std::bit_cast<quint64>(value)); }
    void add(const QUuid &id) { add(quint64(id.data1) << 32 | quint64(id.data2) << 16 | id.data3); }
    void add(const QString &text)
    {
        add(quint64(text.size()));
        for (const QChar letter : text)
            m_value += letter.unicode();
    }
    template<typename Enumeration>
    requires std::is_enum_v<Enumeration>
    void add(Enumeration value) { add(quint64(value)); }

    quint64 value() const { return m_value; }

private:
    quint64 m_value = 0;
};

void addBase(Sum &sum, const IVDeviceConfig &config)
{
    sum.add(config.deviceId());
    sum.add(config.dataId());
    sum.add(config.version().toString());
    sum.add(config.name());
    sum.add(config.description());
    sum.add(quint64(config.dateTime().toMSecsSinceEpoch()));
}

void addUnit(Sum &sum, const VPrintUnitDriver &unit)
{
    for (const Norvane::Channel channel : unit.channels())
        sum.add(channel);
    sum.add(quint64(unit.customHorizontalResolution()));
    sum.add(quint64(unit.customVerticalResolution()));
}

void addElaboration(Sum &sum, const VElaborationDriver &method)
{
    sum.add(method.elaborationType());
    for (const LevelManagement mode : method.levelManagementList())
        sum.add(mode);
    for (const Norvane::Imaging::VResolution &resolution : method.resolutionList()) {
        sum.add(resolution.x());
        sum.add(resolution.y());
        sum.add(resolution.unit());
    }
    for (const double ratio : method.scrollRatioList())
        sum.add(ratio);
    sum.add(method.magnification().first);
    sum.add(method.magnification().second);
    sum.add(quint64(method.allowOnlineElaboration()));
    sum.add(quint64(method.isPrefered()));
}

} // namespace

quint64 readEveryField(const VPrinterDriver &driver)
{
    Sum sum;
    addBase(sum, driver);
    sum.add(driver.printerClass());
    sum.add(driver.facesMode());
    sum.add(driver.fileCompression());
    sum.add(driver.fileProtection());
    sum.add(quint64(driver.maximumFaces()));
    sum.add(quint64(driver.maximumImageBytes()));
    sum.add(quint64(driver.onlineElaboration()));
    sum.add(quint64(driver.onlineLinearizations()));
    sum.add(quint64(driver.experimental()));
    for (const IVDeviceConfig *child : driver.values(QUuid())) {
        addBase(sum, *child);
        if (const auto *unit = dynamic_cast<const VPrintUnitDriver *>(child))
            addUnit(sum, *unit);
        else if (const auto *method = dynamic_cast<const VElaborationDriver *>(child))
            addElaboration(sum, *method);
    }
    return sum.value();
}

Expected::Expected(const Drivers &drivers)
{
    m_drivers.reserve(drivers.size());
    for (const VPrinterDriver &driver : drivers) {
        m_drivers.insert(driver.dataId(), driver);
        m_sum += readEveryField(driver);
    }
}

bool Expected::areEqual(const Drivers &drivers) const
{
    quint64 sum = 0;
    for (const VPrinterDriver &driver : drivers) {
        sum += readEveryField(driver);
        const auto it = m_drivers.constFind(driver.dataId());
        // An icon that is missing equals any, seen from its side: hence both directions.
        if (it == m_drivers.constEnd() || driver != *it || *it != driver)
            return false;
    }
    return sum == m_sum && drivers.size() == m_drivers.size();
}

QByteArray digest(const Drivers &drivers)
{
    QMap<QByteArray, const VPrinterDriver *> sorted;
    for (const VPrinterDriver &driver : drivers)
        sorted.insert(driver.dataId().toRfc4122(), &driver);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (auto it = sorted.cbegin(); it != sorted.cend(); ++it) {
        hash.addData(it.key());
        hash.addData(QJsonDocument(it.value()->toJsonObject()).toJson(QJsonDocument::Compact));
    }
    return hash.result();
}

} // namespace Bench
