// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "LateConfig.h"

#include "VDeviceConfig_p.h"

#include <vcommon/VDeviceConfigCodec.h>

namespace Norvane::Hardware {

namespace {

/// Whether no code of others takes part in decoding these children: it would notice when it runs.
bool areOwn(const VJsonTextArray &children, const Prototypes &prototypes)
{
    for (const VJsonTextValue &child : children) {
        if (!child.isObject())
            continue; // Skipped by whoever decodes.
        const VJsonTextObject envelope = child.toObject();
        if (prototypes.find(envelope).codec == nullptr
            || !areOwn(envelope.value(EnvelopeKey::kChildren).toArray(), prototypes))
            return false;
    }
    return true;
}

} // namespace

VDeviceConfigCodec::~VDeviceConfigCodec() = default;

std::optional<QUuid> VDeviceConfigCodec::dataId(const QUuid &, const VJsonTextObject &) const
{
    return std::nullopt;
}

void VDeviceConfigCodec::adopt(const VDeviceConfig &, const VDeviceConfig &) const { }

QExplicitlySharedDataPointer<LateConfig>
LateConfig::create(const VBytes &json, const VJsonTextObject &envelope,
                   const std::shared_ptr<const Prototypes> &prototypes,
                   const VDeviceConfigCodec &codec)
{
    QExplicitlySharedDataPointer<LateConfig> late;
    const std::optional<QUuid> dataId =
        codec.dataId(uuidFromJson(envelope.value(EnvelopeKey::kDeviceId)),
                     envelope.value(EnvelopeKey::kConfig).toObject());
    // Metadata live in the record itself and not all of them travel to its copies.
    const bool isPlain = !envelope.text().hasKey(EnvelopeKey::kMetadata)
        && areOwn(envelope.value(EnvelopeKey::kChildren).toArray(), *prototypes);
    if (dataId && isPlain) {
        late.reset(new LateConfig);
        late->m_dataId = *dataId;
        late->m_codec = &codec;
        late->m_json = json;
        late->m_prototypes = prototypes;
    }
    return late;
}

const VDeviceConfig &LateConfig::decoded() const
{
    std::call_once(m_once, [this] {
        VJsonText text;
        [[maybe_unused]] const bool isPlain = text.parse(m_json.view());
        Q_ASSERT(isPlain);
        m_decoded = m_prototypes->create(text.object());
        m_json = VBytes();
        m_prototypes.reset();
    });
    return static_cast<const VDeviceConfig &>(*m_decoded);
}

} // namespace Norvane::Hardware
