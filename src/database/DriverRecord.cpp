// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverRecord.h"

#include <vcommon/VDeviceConfig.h>
#include <vcore/VConvert.h>
#include <vcore/VLocale.h>

#include <QtCore/QJsonDocument>

#include <optional>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::DriverRecord {

namespace {

QString driverField()
{
    return u"driver"_s;
}

VLocale localeOf(const Database::VDBRecord &record)
{
    const QVariant culture = record.search(Database::VDBRecord::cultureKey()).value();
    return VLocale(VConvert::toString(culture, QLocale::c()), QLocale::OmitGroupSeparator);
}

std::optional<QString> textOf(const Database::VDBRecord &record, const QString &key,
                              const QLocale &locale)
{
    const Database::VDBField field = record.search(key);
    if (!field.isFound() || field.value().isNull())
        return std::nullopt;
    return VConvert::toString(field.value(), locale);
}

std::unique_ptr<VPrinterDriver> driverFromJson(const QByteArray &json)
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
    const QByteArray json = QJsonDocument(driver.toJsonObject()).toJson(QJsonDocument::Compact);
    Database::VDBRecord record;
    record.insert(idField(), textFromId(driver.dataId()));
    record.insert(driverField(), QString::fromUtf8(json));
    return record;
}

std::unique_ptr<VPrinterDriver> toDriver(const Database::VDBRecord &record)
{
    if (!record.checkSignature())
        return nullptr;
    const VLocale locale = localeOf(record);
    const QUuid id(textOf(record, idField(), locale).value_or(QString()));
    if (id.isNull())
        return nullptr;
    const std::optional<QString> json = textOf(record, driverField(), locale);
    if (!json)
        return nullptr;
    std::unique_ptr<VPrinterDriver> driver = driverFromJson(json->toUtf8());
    // A driver under a foreign id could neither be found by its content nor be rewritten.
    if (!driver || driver->dataId() != id)
        return nullptr;
    return driver;
}

} // namespace Norvane::Kilnjet::DriverRecord
