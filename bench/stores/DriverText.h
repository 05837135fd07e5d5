// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Contender.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace Bench {

/// Who makes a driver of a text, and the text of a driver.
enum class Decoder
{
    QtJson, ///< QJsonDocument, and the driver's setJsonObject(): the classes that everybody knows.
    Ours, ///< The library's VDeviceConfig::fromJson() and toJson().
};

QByteArray keyOf(const QUuid &id);
QByteArray textOf(const VPrinterDriver &driver, Decoder decoder = Decoder::QtJson);

/// Makes the driver of a text. Nothing unless it is one and its data id gives the key.
std::optional<VPrinterDriver> driverFrom(Decoder decoder, QByteArrayView key, QByteArrayView text);

} // namespace Bench
