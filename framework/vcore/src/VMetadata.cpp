// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VMetadata.h>

namespace Norvane {

VMetadata::VMetadata(quint64 key, const QJsonValue &value, MetadataFlags flags)
    : m_key(key)
    , m_value(value)
    , m_flags(flags)
{ }

Interfaces::ICloneable *VMetadata::clone() const
{
    return new VMetadata(*this);
}

bool VMetadata::equalsTo(const Interfaces::IEquatable *other) const
{
    if (!sameTypeAs(other))
        return false;
    const auto &entry = static_cast<const VMetadata &>(*other);
    return m_key == entry.m_key && m_flags == entry.m_flags && m_value == entry.m_value;
}

quint64 VMetadata::key() const
{
    return m_key;
}

MetadataFlags VMetadata::flags() const
{
    return m_flags;
}

QJsonValue VMetadata::value() const
{
    return m_value;
}

} // namespace Norvane
