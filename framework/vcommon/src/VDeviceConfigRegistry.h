// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDeviceConfig.h>
#include <vcore/VJsonText.h>

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QJsonObject>
#include <QtCore/QUuid>

#include <memory>

namespace Norvane::Hardware {

class VDeviceConfigCodec;

/// The prototypes by kind, as they were at one moment.
class Prototypes
{
public:
    struct Kind
    {
        const Interfaces::IVDeviceConfig *prototype = nullptr;
        const VDeviceConfigCodec *codec = nullptr; ///< Of its records; null when they have none.
    };

    QHash<QUuid, Kind> byId;
    /// The same by the text that records are written with: most ids need no reading then.
    QHash<QByteArray, Kind> byText;

    /// The kind that an envelope names; one without a prototype when it is not registered.
    Kind find(const QJsonObject &envelope) const;
    Kind find(const VJsonTextObject &envelope) const;
    /// A record as `envelope` describes it; null when its kind is not registered or refuses it.
    std::unique_ptr<Interfaces::IVDeviceConfig> create(const QJsonObject &envelope) const;
    std::unique_ptr<Interfaces::IVDeviceConfig> create(const VJsonTextObject &envelope) const;

private:
    Kind find(const QUuid &id) const;
};

/// What is registered now. What is registered later does not show in it. It is never deleted.
const Prototypes &registeredPrototypes();

/// The codec of the records that `prototype` makes; null when it has none.
const VDeviceConfigCodec *codecOf(const Interfaces::IVDeviceConfig *prototype);

} // namespace Norvane::Hardware
