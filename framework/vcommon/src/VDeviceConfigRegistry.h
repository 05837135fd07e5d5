// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDeviceConfig.h>
#include <vcore/VJsonText.h>

#include <QtCore/QHash>
#include <QtCore/QJsonObject>

#include <memory>

namespace Norvane::Hardware {

class VDeviceConfigCodec;

/// The prototypes by kind, as they were at one moment.
class Prototypes
{
public:
    QHash<QUuid, const Interfaces::IVDeviceConfig *> byKind;

    /// The prototype of the kind that an envelope names; null when it is not registered.
    template<typename Object>
    const Interfaces::IVDeviceConfig *find(const Object &envelope) const;
    /// A record as `envelope` describes it; null when its kind is not registered or refuses it.
    std::unique_ptr<Interfaces::IVDeviceConfig> create(const QJsonObject &envelope) const;
    std::unique_ptr<Interfaces::IVDeviceConfig> create(const VJsonTextObject &envelope) const;
};

/// What is registered now. What is registered later does not show in it.
std::shared_ptr<const Prototypes> registeredPrototypes();

/// The codec of the records that `prototype` makes; null when it has none.
const VDeviceConfigCodec *codecOf(const Interfaces::IVDeviceConfig *prototype);

} // namespace Norvane::Hardware
