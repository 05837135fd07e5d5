// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDeviceConfig.h>

#include <QtCore/QJsonObject>

namespace Norvane::Hardware {

/// A record of a kind that nobody has registered, kept as it came.
///
/// The fields of the envelope can be read and set; toJsonObject() gives back the object it came
/// from, with what was set or added later laid over it. Its own children and metadata stay part of
/// that object: they cannot be reached, only kept.
class OpaqueConfig final : public VDeviceConfig
{
public:
    explicit OpaqueConfig(const QJsonObject &object);

    Norvane::Interfaces::ICloneable *clone() const override;
    bool equalsTo(const Norvane::Interfaces::IEquatable *other) const override;
    /// The kind that the object names; the null id when it names none.
    QUuid id() const override;
    bool setJsonObject(const QJsonObject &object) override;
    QJsonObject toJsonObject() const override;

protected:
    QJsonObject toInnerJsonObject() const override;
    bool setInnerJsonObject(const QJsonObject &object) override;
    bool innerIsEmpty() const override;

private:
    QJsonObject m_object;
};

} // namespace Norvane::Hardware
