// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "LateConfig.h"

#include "VDeviceConfig_p.h"

#include <vcommon/VDeviceConfigCodec.h>

namespace Norvane::Hardware {

namespace {

/// Whether what the envelope holds can wait. Metadata cannot: they live in the record itself, and
/// not all of them travel to its copies. Nor can children that code of others decodes: it would
/// notice.
bool canWait(const VJsonTextObject &envelope, const Prototypes &prototypes)
{
    if (!envelope.value(EnvelopeKey::kMetadata).isUndefined())
        return false;
    for (const VJsonTextValue &child : envelope.value(EnvelopeKey::kChildren).toArray()) {
        if (!child.isObject())
            continue; // Skipped by whoever decodes.
        const VJsonTextObject inner = child.toObject();
        if (prototypes.find(inner).codec == nullptr || !canWait(inner, prototypes))
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

QExplicitlySharedDataPointer<LateConfig> LateConfig::create(const VBytes &json,
                                                            const VJsonTextObject &envelope,
                                                            const Prototypes &prototypes,
                                                            const VDeviceConfigCodec &codec)
{
    QExplicitlySharedDataPointer<LateConfig> late;
    const std::optional<QUuid> dataId =
        codec.dataId(uuidFromJson(envelope.value(EnvelopeKey::kDeviceId)),
                     envelope.value(EnvelopeKey::kConfig).toObject());
    if (dataId && canWait(envelope, prototypes)) {
        late.reset(new LateConfig);
        late->m_dataId = *dataId;
        late->m_codec = &codec;
        late->m_json = json;
        late->m_prototypes = &prototypes;
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
    });
    return static_cast<const VDeviceConfig &>(*m_decoded);
}

} // namespace Norvane::Hardware
