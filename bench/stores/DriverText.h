// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Contender.h"

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>

namespace Bench {

/// Who makes a driver of a text.
enum class Decoder
{
    QtJson, ///< QJsonDocument, and the driver's setJsonObject(): the way that the headers show.
    Ours, ///< The library's VDeviceConfig::fromJson().
};

QByteArray keyOf(const QUuid &id);
QByteArray textOf(const VPrinterDriver &driver);

/// Makes the driver of a text. Nothing unless it is one and its data id gives the key.
std::optional<VPrinterDriver> driverFrom(Decoder decoder, QByteArrayView key, QByteArrayView text);

} // namespace Bench
