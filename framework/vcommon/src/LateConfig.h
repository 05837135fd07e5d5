// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDeviceConfigRegistry.h"

#include <vcommon/VDeviceConfig.h>
#include <vcore/VBytes.h>

#include <QtCore/QSharedData>

#include <memory>
#include <mutex>

namespace Norvane::Hardware {

/// A record that was read but not decoded: most records of a catalogue are never looked at.
///
/// The copies of the record share it, on whatever threads, until they are looked at themselves;
/// whoever is first decodes for all. The text is known to be sound, and its content id proven.
class LateConfig : public QSharedData
{
public:
    /// The record that `envelope`, the structure of `json`, describes; null when it must be decoded
    /// at once, as what decoding meets could change until later.
    static QExplicitlySharedDataPointer<LateConfig> create(const VBytes &json,
                                                           const VJsonTextObject &envelope,
                                                           const Prototypes &prototypes,
                                                           const VDeviceConfigCodec &codec);

    const QUuid &dataId() const { return m_dataId; }
    const VDeviceConfigCodec &codec() const { return *m_codec; }
    /// The record itself.
    const VDeviceConfig &decoded() const;

private:
    LateConfig() = default;

    QUuid m_dataId;
    const VDeviceConfigCodec *m_codec = nullptr;
    mutable std::once_flag m_once;
    mutable VBytes m_json; ///< Until it is decoded.
    const Prototypes *m_prototypes = nullptr; ///< Those that there were when it was read.
    mutable std::unique_ptr<Interfaces::IVDeviceConfig> m_decoded;
};

} // namespace Norvane::Hardware
