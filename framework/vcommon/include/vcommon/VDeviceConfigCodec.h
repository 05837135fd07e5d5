// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>
#include <vcore/VJsonText.h>
#include <vcore/VJsonWriter.h>

#include <QtCore/QUuid>

#include <optional>

namespace Norvane::Hardware {

class VDeviceConfig;

/// How the own fields of one class of records are read from JSON text and written to it, without
/// the tree of values that setInnerJsonObject() and toInnerJsonObject() need.
///
/// Both roads must agree to the last byte; one function over any reader or writer serves both.
/// Threads: any number at once, for different records.
class VCOMMON_EXPORT VDeviceConfigCodec
{
public:
    VDeviceConfigCodec() = default;
    Q_DISABLE_COPY_MOVE(VDeviceConfigCodec)
    virtual ~VDeviceConfigCodec();

    /// As VDeviceConfig::setInnerJsonObject(); it cannot refuse.
    virtual void read(VDeviceConfig &record, const VJsonTextObject &config) const = 0;
    /// Writes the members of VDeviceConfig::toInnerJsonObject(), their keys in ascending order.
    virtual void write(const VDeviceConfig &record, VJsonTextWriter &config) const = 0;

    /// The content id of the record that an envelope with this device id and these fields
    /// describes. Nothing, as here, means that records of the class are always decoded at once.
    virtual std::optional<QUuid> dataId(const QUuid &deviceId, const VJsonTextObject &config) const;
    /// Gives `record` the own fields of `decoded`, when it is first looked at after it was read
    /// without being decoded. Both are of the class or derive from it.
    virtual void adopt(const VDeviceConfig &record, const VDeviceConfig &decoded) const;
};

} // namespace Norvane::Hardware
