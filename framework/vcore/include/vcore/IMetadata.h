// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/ICloneable.h>
#include <vcore/IEquatable.h>
#include <vcore/MetadataFlags.h>

#include <QtCore/QJsonValue>

namespace Norvane::Interfaces {

/// One annotation of a record: a key, a value, and the flags that say when it is to be dropped.
class VCORE_EXPORT IMetadata : public ICloneable, public IEquatable
{
public:
    ~IMetadata() override;

    /// The key under which the entry is stored; a record holds one entry a key.
    virtual quint64 key() const = 0;

    /// When the entry is to be dropped.
    virtual MetadataFlags flags() const = 0;

    /// The value, in the form in which a record's JSON carries it.
    virtual QJsonValue value() const = 0;
};

} // namespace Norvane::Interfaces
