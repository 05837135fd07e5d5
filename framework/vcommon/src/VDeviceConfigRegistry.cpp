// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The prototypes of the kinds of records, and the records made from them.

#include "VDeviceConfigRegistry.h"

#include "LateConfig.h"
#include "VDeviceConfig_p.h"

#include <vcommon/VDeviceConfig.h>
#include <vcommon/VDeviceConfigCodec.h>

#include <QtCore/QJsonDocument>
#include <QtCore/QMutex>

#include <atomic>
#include <memory>
#include <utility>
#include <vector>

namespace Norvane::Hardware {

namespace {

using Interfaces::IVDeviceConfig;

struct Prototype
{
    QUuid kind;
    const IVDeviceConfig *config;
};

struct Registry
{
    Registry() { _publish(); }

    QMutex mutex;
    /// The last of those published. All threads that read records look here for each of them, so
    /// nothing is locked or counted.
    std::atomic<const Prototypes *> prototypes;
    std::vector<std::unique_ptr<const Prototypes>> published; ///< Some may be in use for ever.
    std::vector<Prototype> known; ///< In the order of registration; of a kind the last one counts.
    std::vector<IVDeviceConfig *> kept; ///< All that were ever registered, forgotten ones too.

    /// To be called after a change of the known ones. The prototypes are made anew, since whoever
    /// reads records at this moment goes on with those that were registered before.
    void _publish()
    {
        auto next = std::make_unique<Prototypes>();
        for (const Prototype &each : known) {
            const Prototypes::Kind kind{each.config, codecOf(each.config)};
            next->byId.insert(each.kind, kind);
            if (!each.kind.isNull()) // No envelope names that one.
                next->byText.insert(each.kind.toByteArray(), kind);
        }
        prototypes = next.get();
        published.push_back(std::move(next));
    }
};

/// Never destroyed, like the prototypes: the library of one may be unloaded before this one.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

IVDeviceConfig *configFromTree(const QByteArray &json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    return document.isObject() ? registeredPrototypes().create(document.object()).release()
                               : nullptr;
}

} // namespace

const Prototypes &registeredPrototypes()
{
    return *registry().prototypes;
}

const VDeviceConfigCodec *codecOf(const IVDeviceConfig *prototype)
{
    const auto *config = dynamic_cast<const VDeviceConfig *>(prototype);
    return config != nullptr ? config->codec() : nullptr;
}

Prototypes::Kind Prototypes::find(const QUuid &id) const
{
    return id.isNull() ? Kind() : byId.value(id);
}

Prototypes::Kind Prototypes::find(const QJsonObject &envelope) const
{
    return find(uuidFromJson(envelope.value(EnvelopeKey::kId)));
}

Prototypes::Kind Prototypes::find(const VJsonTextObject &envelope) const
{
    const VJsonTextValue id = envelope.value(EnvelopeKey::kId);
    const QUtf8StringView text = id.utf8();
    const auto kind = byText.constFind(QByteArray::fromRawData(text.data(), text.size()));
    return kind != byText.constEnd() ? *kind : find(uuidFromJson(id));
}

std::unique_ptr<IVDeviceConfig> Prototypes::create(const QJsonObject &envelope) const
{
    const IVDeviceConfig *const prototype = find(envelope).prototype;
    if (prototype == nullptr)
        return nullptr;
    std::unique_ptr<IVDeviceConfig> config(static_cast<IVDeviceConfig *>(prototype->clone()));
    return config->setJsonObject(envelope) ? std::move(config) : nullptr;
}

std::unique_ptr<IVDeviceConfig> Prototypes::create(const VJsonTextObject &envelope) const
{
    const auto [prototype, codec] = find(envelope);
    if (codec == nullptr)
        return prototype != nullptr ? create(envelope.toJsonObject()) : nullptr;
    std::unique_ptr<IVDeviceConfig> config(static_cast<IVDeviceConfig *>(prototype->clone()));
    static_cast<VDeviceConfig &>(*config).readText(envelope, *this);
    return config;
}

void VDeviceConfig::registerConfig(IVDeviceConfig *prototype)
{
    if (prototype == nullptr)
        return;
    const QUuid kind = prototype->id();
    const QMutexLocker locker(&registry().mutex);
    registry().known.push_back({kind, prototype});
    registry().kept.push_back(prototype);
    registry()._publish();
}

void VDeviceConfig::unregisterConfig(const IVDeviceConfig *prototype)
{
    const QMutexLocker locker(&registry().mutex);
    std::erase_if(registry().known,
                  [prototype](const Prototype &each) { return each.config == prototype; });
    registry()._publish();
}

bool VDeviceConfig::isRegistered(const QUuid &id)
{
    return registeredPrototypes().byId.contains(id);
}

IVDeviceConfig *VDeviceConfig::fromJson(const QByteArray &json)
{
    VJsonText text;
    return text.parse(json) ? registeredPrototypes().create(text.object()).release()
                            : configFromTree(json);
}

IVDeviceConfig *VDeviceConfig::fromJson(const VBytes &json)
{
    VJsonText text;
    return text.parse(json.view()) ? fromText(text, json) : configFromTree(json.toByteArray());
}

IVDeviceConfig *VDeviceConfig::fromPlainJson(const VBytes &json)
{
    VJsonText text;
    return text.parse(json.view()) ? fromText(text, json) : nullptr;
}

/// A record of the text that `json` holds, decoded at its first use if possible.
IVDeviceConfig *VDeviceConfig::fromText(const VJsonText &text, const VBytes &json)
{
    const Prototypes &prototypes = registeredPrototypes();
    const VJsonTextObject envelope = text.object();
    const auto [prototype, codec] = prototypes.find(envelope);
    QExplicitlySharedDataPointer<LateConfig> late;
    if (codec != nullptr)
        late = LateConfig::create(json, envelope, prototypes, *codec);
    if (!late)
        return prototypes.create(envelope).release();
    auto *config = static_cast<VDeviceConfig *>(static_cast<IVDeviceConfig *>(prototype->clone()));
    config->m_late = late;
    config->clearMetadata();
    return config;
}

} // namespace Norvane::Hardware
