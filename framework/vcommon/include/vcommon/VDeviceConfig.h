// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDeviceConfig.h>
#include <vcore/VBytes.h>
#include <vcore/VJsonText.h>
#include <vcore/VJsonWriter.h>

#include <QtCore/QSharedDataPointer>

namespace Norvane::Hardware {

class LateConfig;
class Prototypes;
class VDeviceConfigChildren;
class VDeviceConfigCodec;
class VDeviceConfigPrivate;

/// The base of every device configuration: the envelope around a class's own fields.
///
/// A class derives from it, adds its fields, and fills in clone(), equalsTo(), id(), the inner JSON
/// and, where it differs, the inner validity, emptiness and content id. Copies are independent of
/// each other, whoever holds a pointer into one of them; assigning a record from one of its own
/// children is safe. Metadata is annotation: it takes no part in equality, and entries flagged
/// `KillOnCopy` do not travel with a copy.
///
/// The JSON envelope, as toJsonObject() writes it and setJsonObject() reads it:
///
/// | Key           | Accessor      | JSON type       | When missing or ill-typed          |
/// |---------------|---------------|-----------------|------------------------------------|
/// | "id"          | id()          | string, braced  | the object is refused              |
/// | "deviceId"    | deviceId()    | string, braced  | the null id                        |
/// | "version"     | version()     | string "1.2.1"  | 0.0.0                              |
/// | "name"        | name()        | string          | empty                              |
/// | "description" | description() | string          | empty                              |
/// | "dateTime"    | dateTime()    | string, ISO UTC | invalid; not written when invalid  |
/// | "config"      | (the class's) | object          | an empty object                    |
/// | "children"    | values()      | array           | none; not written when there is none |
/// | "metadata"    | metadataList()| array           | none; not written when there is none |
///
/// A child of a kind that is not registered is kept as it came and written back unchanged, so that
/// an older program does not destroy a newer one's records.
///
/// Threads: one at a time for one object; copies may live on different threads. registerConfig()
/// and fromJson() from any thread.
/// Failures: bool results and defaults; nothing throws.
class VCOMMON_EXPORT VDeviceConfig : public Interfaces::IVDeviceConfig
{
public:
    using Norvane::Interfaces::IFormattable::toString;

    /// A record of version 0.0.0 with the null device id.
    VDeviceConfig();
    /// A record with these fields and without children.
    VDeviceConfig(const QUuid &deviceId, const VVersion &version, const QString &name,
                  const QString &description);
    /// An independent copy, children included; metadata flagged `KillOnCopy` stays behind.
    VDeviceConfig(const VDeviceConfig &other);
    /// Takes over everything but metadata flagged `KillOnCopy`.
    VDeviceConfig &operator=(const VDeviceConfig &other);
    ~VDeviceConfig() override;

    /// Equal device id, version, name, description, date-time and children, in order.
    bool operator==(const VDeviceConfig &other) const;
    /// The contrary of `==`.
    bool operator!=(const VDeviceConfig &other) const { return !(*this == other); }

    QUuid deviceId() const override;
    void setDeviceId(const QUuid &deviceId) override;
    bool isNull() const override;
    bool isEmpty() const override;
    bool isValid() const override;
    VVersion version() const override;
    void setVersion(const VVersion &version) override;
    QDateTime dateTime() const override;
    void setDateTime(const QDateTime &dateTime) override;
    QString name() const override;
    void setName(const QString &name) override;
    QString description() const override;
    void setDescription(const QString &description) override;
    /// As insert(config, true), for each of them.
    void insert(const QList<Interfaces::IVDeviceConfig *> &configs) override;
    void insert(Interfaces::IVDeviceConfig *config, bool takeOwnership) override;
    bool remove(const QUuid &id, bool deep) override;
    bool remove(Interfaces::IVDeviceConfig *config, bool deep) override;
    bool contains(const QUuid &id, bool deep) const override;
    bool contains(Interfaces::IVDeviceConfig *config, bool deep) const override;
    int count(const QUuid &id, bool deep) const override;
    QList<Interfaces::IVDeviceConfig *> values(const QUuid &id) const override;
    bool save(QIODevice *device) override;
    bool load(QIODevice *device) override;
    bool setJsonObject(const QJsonObject &object) override;
    QUuid dataId() const override;

    /// Keeps `prototype` (and owns it) as what fromJson() clones for its id(); a later one of the
    /// same kind takes its place. Prototypes are never deleted: their library may be gone by then.
    static void registerConfig(Interfaces::IVDeviceConfig *prototype);
    /// Forgets `prototype`, which is not deleted and not called again: what a library does with its
    /// prototypes when it is unloaded. The one that it replaced, if any, counts again.
    static void unregisterConfig(const Interfaces::IVDeviceConfig *prototype);
    /// True when a prototype of the kind is registered.
    static bool isRegistered(const QUuid &id);
    /// A new configuration, owned by the caller, of the kind that `json` names; null when the bytes
    /// are not the JSON of a registered kind. Safe on any bytes.
    static Interfaces::IVDeviceConfig *fromJson(const QByteArray &json);
    /// The same for a part of a buffer, which the record may keep: one whose class allows it, with
    /// text that is in order, is only decoded when it or a copy of it is first looked at. That does
    /// not show but in the time it takes.
    static Interfaces::IVDeviceConfig *fromJson(const VBytes &json);
    /// The same for bytes that may have to be decoded first: null as well when they are not plain
    /// JSON (see VJsonText), which has no backslash and is UTF-8.
    static Interfaces::IVDeviceConfig *fromPlainJson(const VBytes &json);

    /// The compact JSON text of toJsonObject().
    QByteArray toJson() const;

protected:
    /// The class's own fields as JSON.
    virtual QJsonObject toInnerJsonObject() const = 0;
    /// Reads the class's own fields; false refuses the object as a whole.
    virtual bool setInnerJsonObject(const QJsonObject &object) = 0;
    /// What toString() gives.
    virtual QString toInnerGenericString(const QString &format, const QLocale &locale) const;
    /// Stores the kind of a class whose id() is not a constant.
    virtual void setId(const QUuid &id);
    /// The content id; `*ok` (which may be null) says whether the record has one. Here: the device
    /// id.
    virtual QUuid innerDataId(bool *ok) const;
    /// Whether the record can be used. Here: the device id is not null.
    virtual bool innerIsValid() const;
    /// Whether the record says nothing. Here: no name, no description, no children.
    virtual bool innerIsEmpty() const;

    /// What setId() stored; the null id before.
    QUuid storedId() const;
    /// Decodes a record that was read without: a class with a codec calls this before it looks at
    /// its own fields.
    void decodeNow() const
    {
        if (m_late)
            decode();
    }

public:
    // Declared last, so that the operations above stand in one row in the table of virtuals.

    /// The envelope with the class's own fields under "config".
    QJsonObject toJsonObject() const override;
    /// SHA-256 over the compact JSON without "dateTime" and "metadata", its own and its children's.
    QByteArray hash() const override;
    /// The text of `format`, in which %n stands for the name, %d the description, %v the version,
    /// %i the device id, %c the content id and %% for a percent sign. An empty format gives the
    /// name, or the device id of a record without one.
    QString toString(const QString &format, const QLocale &locale) const override;

protected:
    /// How records of exactly this class are read and written without a tree of values; null, as
    /// here, if they are not. A class whose base has a codec must not use that of its base.
    virtual const VDeviceConfigCodec *codec() const;

private:
    friend class Prototypes;
    friend class VDeviceConfigChildren;
    friend const VDeviceConfigCodec *codecOf(const Interfaces::IVDeviceConfig *);

    Q_DECL_HIDDEN static Interfaces::IVDeviceConfig *fromText(const VJsonText &text,
                                                              const VBytes &json);
    void decode() const;
    const VDeviceConfigPrivate &fields() const;
    VDeviceConfigPrivate &own();
    const VDeviceConfigChildren *children() const;
    VDeviceConfigChildren &ownChildren() const;
    // What reads and writes the envelope, from a tree or from text alike.
    template<typename Object>
    Q_DECL_HIDDEN bool readEnvelope(const Object &envelope, const Prototypes &prototypes);
    bool readConfig(const QJsonObject &config);
    bool readConfig(const VJsonTextObject &config);
    void readText(const VJsonTextObject &envelope, const Prototypes &prototypes);
    template<typename Writer>
    Q_DECL_HIDDEN void writeEnvelope(Writer &envelope) const;
    void writeConfig(VJsonTreeWriter &envelope) const;
    void writeConfig(VJsonTextWriter &envelope) const;
    void writeText(VJsonTextWriter &envelope) const;

    /// The record, not decoded yet; null when it is, and the members below hold it.
    mutable QExplicitlySharedDataPointer<LateConfig> m_late;
    mutable QExplicitlySharedDataPointer<VDeviceConfigPrivate> d; ///< Shared by copies.
    mutable QExplicitlySharedDataPointer<VDeviceConfigChildren> m_children; ///< Null: none.
    QExplicitlySharedDataPointer<VDeviceConfigChildren> m_replaced; ///< Kept for an assignment.
};

} // namespace Norvane::Hardware
