// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "OpaqueConfig.h"

#include "VDeviceConfig_p.h"

#include <QtCore/QJsonArray>

namespace Norvane::Hardware {

namespace {

void appendArray(QJsonObject &object, QLatin1StringView key, const QJsonArray &added)
{
    if (added.isEmpty())
        return;
    QJsonArray array = object.value(key).toArray();
    for (const QJsonValue &element : added)
        array.append(element);
    object.insert(key, array);
}

} // namespace

OpaqueConfig::OpaqueConfig(const QJsonObject &object)
    : m_object(object)
{
    VDeviceConfigPrivate fields;
    fields.readJson(object);
    setId(QUuid::fromString(object.value(EnvelopeKey::kId).toString()));
    setDeviceId(fields.deviceId);
    setVersion(fields.version);
    setDateTime(fields.dateTime);
    setName(fields.name);
    setDescription(fields.description);
}

Norvane::Interfaces::ICloneable *OpaqueConfig::clone() const
{
    return new OpaqueConfig(*this);
}

bool OpaqueConfig::equalsTo(const Norvane::Interfaces::IEquatable *other) const
{
    if (!sameTypeAs(other))
        return false;
    const auto &config = static_cast<const OpaqueConfig &>(*other);
    return m_object == config.m_object && VDeviceConfig::operator==(config);
}

QUuid OpaqueConfig::id() const
{
    return storedId();
}

bool OpaqueConfig::setJsonObject(const QJsonObject &object)
{
    const OpaqueConfig config(object);
    if (config.id() != id())
        return false;
    *this = config;
    return true;
}

QJsonObject OpaqueConfig::toJsonObject() const
{
    const QJsonObject came = OpaqueConfig(m_object).VDeviceConfig::toJsonObject();
    const QJsonObject now = VDeviceConfig::toJsonObject();
    QJsonObject object = m_object;
    for (const auto key : {EnvelopeKey::kDeviceId, EnvelopeKey::kVersion, EnvelopeKey::kName,
                           EnvelopeKey::kDescription, EnvelopeKey::kDateTime}) {
        const QJsonValue value = now.value(key);
        if (value == came.value(key))
            continue;
        if (value.isUndefined())
            object.remove(key);
        else
            object.insert(key, value);
    }
    appendArray(object, EnvelopeKey::kChildren, now.value(EnvelopeKey::kChildren).toArray());
    appendArray(object, EnvelopeKey::kMetadata, now.value(EnvelopeKey::kMetadata).toArray());
    return object;
}

QJsonObject OpaqueConfig::toInnerJsonObject() const
{
    return m_object.value(EnvelopeKey::kConfig).toObject();
}

bool OpaqueConfig::setInnerJsonObject(const QJsonObject &object)
{
    m_object.insert(EnvelopeKey::kConfig, object);
    return true;
}

bool OpaqueConfig::innerIsEmpty() const
{
    return m_object.isEmpty() && VDeviceConfig::innerIsEmpty();
}

} // namespace Norvane::Hardware
