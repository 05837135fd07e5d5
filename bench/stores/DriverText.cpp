// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverText.h"

#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

namespace Bench {

namespace {

std::optional<VPrinterDriver> decoded(Decoder decoder, const QByteArray &text)
{
    if (decoder == Decoder::QtJson) {
        VPrinterDriver driver;
        if (!driver.setJsonObject(QJsonDocument::fromJson(text).object()))
            return std::nullopt;
        return driver;
    }
    const std::unique_ptr<Norvane::Hardware::Interfaces::IVDeviceConfig> config(
        Norvane::Hardware::VDeviceConfig::fromJson(Norvane::VBytes(text)));
    const auto *driver = dynamic_cast<const VPrinterDriver *>(config.get());
    return driver ? std::optional(*driver) : std::nullopt;
}

} // namespace

QByteArray keyOf(const QUuid &id)
{
    return id.toRfc4122();
}

QByteArray textOf(const VPrinterDriver &driver, Decoder decoder)
{
    if (decoder == Decoder::Ours)
        return driver.toJson();
    return QJsonDocument(driver.toJsonObject()).toJson(QJsonDocument::Compact);
}

std::optional<VPrinterDriver> driverFrom(Decoder decoder, QByteArrayView key, QByteArrayView text)
{
    // A store's memory may be gone tomorrow: a decoder that keeps the bytes must be given its own.
    const QByteArray bytes = decoder == Decoder::Ours
        ? text.toByteArray()
        : QByteArray::fromRawData(text.data(), text.size());
    std::optional<VPrinterDriver> driver = decoded(decoder, bytes);
    if (driver && driver->dataId() != QUuid::fromRfc4122(key))
        driver.reset();
    return driver;
}

} // namespace Bench
