// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IMetadata.h>

namespace Norvane {

/// A metadata entry that carries any JSON value; what a record's JSON is read back into.
class VCORE_EXPORT VMetadata final : public Interfaces::IMetadata
{
public:
    /// The entry `key` with a value, and flags that say when it is to be dropped.
    explicit VMetadata(quint64 key = 0, const QJsonValue &value = QJsonValue(),
                       MetadataFlags flags = MetadataFlags::None);

    Interfaces::ICloneable *clone() const override;
    bool equalsTo(const Interfaces::IEquatable *other) const override;
    quint64 key() const override;
    MetadataFlags flags() const override;
    QJsonValue value() const override;

private:
    quint64 m_key;
    QJsonValue m_value;
    MetadataFlags m_flags;
};

} // namespace Norvane
