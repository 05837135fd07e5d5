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

using Hardware::VDeviceConfig;
using Hardware::Interfaces::IVDeviceConfig;

QString driverField()
{
    return u"driver"_s;
}

/// The driver that `config` is; null when it is none.
std::unique_ptr<VPrinterDriver> driverOf(std::unique_ptr<IVDeviceConfig> config)
{
    auto *driver = dynamic_cast<VPrinterDriver *>(config.get());
    if (!driver)
        return nullptr;
    std::ignore = config.release();
    return std::unique_ptr<VPrinterDriver>(driver);
}

/// The driver that the record's JSON gives; null when it gives none.
std::unique_ptr<VPrinterDriver> driverIn(const Database::VDBRecord &record)
{
    // Plain JSON stands in the file as it is. Whatever else there is shows when it is read as such.
    std::unique_ptr<IVDeviceConfig> config;
    if (const std::optional<VBytes> stored = record.stored(driverField()))
        config.reset(VDeviceConfig::fromPlainJson(*stored));
    if (!config)
        config.reset(VDeviceConfig::fromJson(record.utf8(driverField()).value_or(VBytes())));
    return driverOf(std::move(config));
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
    if (id.isNull())
        return nullptr;
    std::unique_ptr<VPrinterDriver> driver = driverIn(record);
    // A driver under a foreign id could neither be found by its content nor be rewritten.
    if (!driver || driver->dataId() != id)
        return nullptr;
    return driver;
}

} // namespace Norvane::Kilnjet::DriverRecord
