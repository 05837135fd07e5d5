// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>
#include <vcore/ICloneable.h>
#include <vcore/IEquatable.h>
#include <vcore/IFormattable.h>
#include <vcore/IHashable.h>
#include <vcore/IJsonConvertible.h>
#include <vcore/IMetadatable.h>
#include <vcore/VVersion.h>

#include <QtCore/QDateTime>
#include <QtCore/QIODevice>
#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QUuid>

namespace Norvane::Hardware::Interfaces {

/// What every device configuration offers: identity, descriptive fields, children, JSON.
///
/// Three ids are kept apart: id() names the kind, deviceId() the record, dataId() its content.
/// A configuration owns its children. In the child operations a `QUuid` is a kind, the null id
/// means every kind, and `deep` means "in the children's children too"; pointers are compared by
/// identity.
/// The order of the virtual operations is part of the binary interface.
class VCOMMON_EXPORT IVDeviceConfig : public Norvane::Interfaces::ICloneable,
                                      public Norvane::Interfaces::IEquatable,
                                      public Norvane::Interfaces::IFormattable,
                                      public Norvane::Interfaces::IJsonConvertible,
                                      public Norvane::Interfaces::IHashable,
                                      public Norvane::Interfaces::IMetadatable
{
public:
    ~IVDeviceConfig() override;

    /// The kind of configuration, the same for every object of a class.
    virtual QUuid id() const = 0;
    /// The record's own identity.
    virtual QUuid deviceId() const = 0;
    /// Sets the record's identity, which enters its content id.
    virtual void setDeviceId(const QUuid &deviceId) = 0;
    /// True when the device id is null.
    virtual bool isNull() const = 0;
    /// True when the record says nothing yet.
    virtual bool isEmpty() const = 0;
    /// True when the record can be used.
    virtual bool isValid() const = 0;
    /// The version of the format in which the record's data were written.
    virtual VVersion version() const = 0;
    /// Sets the version. Who rewrites a record keeps it: it says how the content id is made.
    virtual void setVersion(const VVersion &version) = 0;
    /// When the record was made or changed, in UTC to the millisecond; invalid when unknown.
    virtual QDateTime dateTime() const = 0;
    /// Sets the moment, which is converted to UTC; an invalid one means unknown.
    virtual void setDateTime(const QDateTime &dateTime) = 0;
    /// The name that is shown to people; may be empty.
    virtual QString name() const = 0;
    /// Sets the name. Nothing makes it unique.
    virtual void setName(const QString &name) = 0;
    /// What people should know about the record; may be empty.
    virtual QString description() const = 0;
    /// Sets the description.
    virtual void setDescription(const QString &description) = 0;

    /// Takes every configuration of the list over as a child, as insert(config, true) does.
    virtual void insert(const QList<IVDeviceConfig *> &configs) = 0;
    /// Appends `config` as a child: itself when `takeOwnership`, else a clone of it.
    ///
    /// Refused, with the object still the caller's: null, this record, one of its ancestors, and
    /// taking over what is a child already. contains() tells whether it was accepted.
    virtual void insert(IVDeviceConfig *config, bool takeOwnership) = 0;
    /// Deletes the children of the kind; true when there was one.
    virtual bool remove(const QUuid &id, bool deep) = 0;
    /// Deletes the child that is `config`; true when there was one.
    virtual bool remove(IVDeviceConfig *config, bool deep) = 0;
    /// True when there is a child of the kind.
    virtual bool contains(const QUuid &id, bool deep) const = 0;
    /// True when `config` is a child.
    virtual bool contains(IVDeviceConfig *config, bool deep) const = 0;
    /// How many children of the kind there are.
    virtual int count(const QUuid &id, bool deep) const = 0;
    /// The direct children of the kind, in order; they stay this record's.
    virtual QList<IVDeviceConfig *> values(const QUuid &id) const = 0;

    /// Writes the record's JSON to `device`, which must be open; true when every byte was taken.
    virtual bool save(QIODevice *device) = 0;
    /// Reads what save() wrote, to the end of `device`; false, and nothing changed, if it is not a
    /// record of this kind.
    virtual bool load(QIODevice *device) = 0;
    /// Fills the record from what toJsonObject() gives; false, and nothing changed, when "id" is
    /// not this record's kind. Every other missing or ill-typed key takes its default.
    virtual bool setJsonObject(const QJsonObject &object) = 0;
    /// The content id: equal content, as the class defines it, gives equal ids.
    virtual QUuid dataId() const = 0;
};

} // namespace Norvane::Hardware::Interfaces
