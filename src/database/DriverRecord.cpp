// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverRecord.h"

#include <vcommon/VDeviceConfig.h>
#include <vcore/VBytes.h>

#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::DriverRecord {

namespace {

QString driverField()
{
    return u"driver"_s;
}

std::unique_ptr<VPrinterDriver> driverFromJson(const VBytes &json)
{
    std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> config(
        Hardware::VDeviceConfig::fromJson(json));
    auto *driver = dynamic_cast<VPrinterDriver *>(config.get());
    if (!driver)
        return nullptr;
    std::ignore = config.release();
    return std::unique_ptr<VPrinterDriver>(driver);
}

} // namespace

QString idField()
{
    return u"id"_s;
}

QString textFromId(const QUuid &id)
{
    return id.toString(QUuid::WithBraces);
}

Database::VDBRecord fromDriver(const VPrinterDriver &driver)
{
    Database::VDBRecord record;
    record.insert(idField(), textFromId(driver.dataId()));
    record.insertUtf8(driverField(), driver.toJson());
    return record;
}

std::unique_ptr<VPrinterDriver> toDriver(const Database::VDBRecord &record)
{
    if (!record.checkSignature())
        return nullptr;
    const QUuid id =
        QUuid::fromString(QUtf8StringView(record.utf8(idField()).value_or(VBytes()).view()));
    const std::optional<VBytes> json = record.utf8(driverField());
    if (id.isNull() || !json)
        return nullptr;
    std::unique_ptr<VPrinterDriver> driver = driverFromJson(*json);
    // A driver under a foreign id could neither be found by its content nor be rewritten.
    if (!driver || driver->dataId() != id)
        return nullptr;
    return driver;
}

} // namespace Norvane::Kilnjet::DriverRecord
