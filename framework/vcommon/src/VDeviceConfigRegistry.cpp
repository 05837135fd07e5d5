// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The prototypes of the kinds of records, and the records made from them.

#include "VDeviceConfig_p.h"

#include <vcommon/VDeviceConfig.h>

#include <QtCore/QHash>
#include <QtCore/QJsonDocument>
#include <QtCore/QMutex>

#include <vector>

namespace Norvane::Hardware {

namespace {

using Interfaces::IVDeviceConfig;

struct Registry
{
    QMutex mutex;
    QHash<QUuid, const IVDeviceConfig *> prototypes;
    std::vector<IVDeviceConfig *> kept; ///< All that were ever registered, replaced ones too.
};

/// Never destroyed, like the prototypes: the library of one may be unloaded before this one.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

const IVDeviceConfig *prototypeOf(const QUuid &id)
{
    const QMutexLocker locker(&registry().mutex);
    return registry().prototypes.value(id, nullptr);
}

} // namespace

std::unique_ptr<IVDeviceConfig> registeredConfigFromJson(const QJsonObject &envelope)
{
    const auto id = QUuid::fromString(envelope.value(EnvelopeKey::kId).toString());
    const IVDeviceConfig *const prototype = id.isNull() ? nullptr : prototypeOf(id);
    if (prototype == nullptr)
        return nullptr;
    std::unique_ptr<IVDeviceConfig> config(static_cast<IVDeviceConfig *>(prototype->clone()));
    return config->setJsonObject(envelope) ? std::move(config) : nullptr;
}

void VDeviceConfig::registerConfig(IVDeviceConfig *prototype)
{
    if (prototype == nullptr)
        return;
    const QUuid id = prototype->id();
    const QMutexLocker locker(&registry().mutex);
    registry().prototypes.insert(id, prototype);
    registry().kept.push_back(prototype);
}

bool VDeviceConfig::isRegistered(const QUuid &id)
{
    return prototypeOf(id) != nullptr;
}

IVDeviceConfig *VDeviceConfig::fromJson(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isObject() ? registeredConfigFromJson(document.object()).release() : nullptr;
}

} // namespace Norvane::Hardware
