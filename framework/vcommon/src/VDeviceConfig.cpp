// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDeviceConfig.h>

#include "LateConfig.h"
#include "VDeviceConfigChildren.h"
#include "VDeviceConfigRegistry.h"
#include "VDeviceConfig_p.h"

#include <vcommon/VDeviceConfigCodec.h>

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

#include <utility>

namespace Norvane::Hardware {

using Interfaces::IVDeviceConfig;

namespace {

/// What a new record has; never destroyed, since records may outlive static destruction.
VDeviceConfigPrivate *defaultFields()
{
    static const auto *const fields = new QExplicitlySharedDataPointer(new VDeviceConfigPrivate);
    return fields->data();
}

const QJsonArray &treeOf(const QJsonArray &array)
{
    return array;
}

QJsonArray treeOf(const VJsonTextArray &array)
{
    return array.toJsonArray();
}

/// The envelope without what says nothing about the content, in its children too.
QJsonObject contentOf(QJsonObject envelope)
{
    envelope.remove(EnvelopeKey::kDateTime);
    envelope.remove(EnvelopeKey::kMetadata);
    QJsonArray children = envelope.value(EnvelopeKey::kChildren).toArray();
    for (QJsonValueRef child : children) {
        if (child.isObject())
            child = contentOf(child.toObject());
    }
    if (!children.isEmpty())
        envelope.insert(EnvelopeKey::kChildren, children);
    return envelope;
}

} // namespace

VDeviceConfig::VDeviceConfig()
    : d(defaultFields())
{ }

VDeviceConfig::VDeviceConfig(const QUuid &deviceId, const VVersion &version, const QString &name,
                             const QString &description)
    : d(new VDeviceConfigPrivate)
{
    d->deviceId = deviceId;
    d->version = version;
    d->name = name;
    d->description = description;
}

VDeviceConfig::VDeviceConfig(const VDeviceConfig &other)
    : IVDeviceConfig()
    , m_late(other.m_late)
    , d(other.d)
    , m_children(VDeviceConfigChildren::copyOf(other.m_children))
{
    copyMetadata(other.metadataList(), MetadataFlags::KillOnCopy);
}

VDeviceConfig &VDeviceConfig::operator=(const VDeviceConfig &other)
{
    if (this == &other)
        return *this;
    // Before anything changes, since the derived class has fields of its own to decode.
    decodeNow();
    other.decodeNow();
    const auto children = VDeviceConfigChildren::copyOf(other.m_children);
    // `other` may be one of the children that are replaced here, and the derived class, whose
    // assignment calls this one first, has yet to read its fields from it: it must live on until
    // the next assignment, and over that one too should it be the source again.
    if (m_children && !m_children->isShareable() && m_children->contains(&other, true))
        m_replaced = m_children;
    else if (m_replaced && !m_replaced->contains(&other, true))
        m_replaced.reset();
    m_children = children;
    d = other.d;
    clearMetadata();
    copyMetadata(other.metadataList(), MetadataFlags::KillOnCopy);
    return *this;
}

VDeviceConfig::~VDeviceConfig() = default;

void VDeviceConfig::decode() const
{
    // Taken first: whatever looks at the record from here on finds it decoded.
    const auto late = std::exchange(m_late, {});
    const VDeviceConfig &decoded = late->decoded();
    d = decoded.d;
    m_children = VDeviceConfigChildren::copyOf(decoded.m_children);
    late->codec().adopt(*this, decoded);
}

const VDeviceConfigPrivate &VDeviceConfig::fields() const
{
    decodeNow();
    return *d;
}

VDeviceConfigPrivate &VDeviceConfig::own()
{
    decodeNow();
    // Acquire: a copy on another thread that has just let go has also finished reading.
    if (d->ref.loadAcquire() != 1)
        d.reset(new VDeviceConfigPrivate(*d));
    return *d;
}

/// The children; null when there are none.
const VDeviceConfigChildren *VDeviceConfig::children() const
{
    decodeNow();
    return m_children.data();
}

VDeviceConfigChildren &VDeviceConfig::ownChildren() const
{
    decodeNow();
    if (!m_children)
        m_children.reset(new VDeviceConfigChildren);
    else if (m_children->ref.loadAcquire() != 1)
        m_children = m_children->clones();
    return *m_children;
}

bool VDeviceConfig::operator==(const VDeviceConfig &other) const
{
    if (this == &other)
        return true;
    const VDeviceConfigPrivate &own = fields();
    const VDeviceConfigPrivate &others = other.fields();
    if (&own != &others && !own.sameFields(others))
        return false;
    const bool hasChildren = m_children && !m_children->isEmpty();
    const bool otherHasChildren = other.m_children && !other.m_children->isEmpty();
    if (!hasChildren || !otherHasChildren)
        return hasChildren == otherHasChildren;
    return m_children == other.m_children || m_children->equals(*other.m_children);
}

QUuid VDeviceConfig::deviceId() const
{
    return fields().deviceId;
}

void VDeviceConfig::setDeviceId(const QUuid &deviceId)
{
    own().deviceId = deviceId;
}

bool VDeviceConfig::isNull() const
{
    return fields().deviceId.isNull();
}

bool VDeviceConfig::isEmpty() const
{
    return innerIsEmpty();
}

bool VDeviceConfig::isValid() const
{
    return innerIsValid();
}

VVersion VDeviceConfig::version() const
{
    return fields().version;
}

void VDeviceConfig::setVersion(const VVersion &version)
{
    own().version = version;
}

QDateTime VDeviceConfig::dateTime() const
{
    return fields().dateTime;
}

void VDeviceConfig::setDateTime(const QDateTime &dateTime)
{
    own().dateTime = dateTime.isValid() ? dateTime.toUTC() : QDateTime();
}

QString VDeviceConfig::name() const
{
    return fields().name;
}

void VDeviceConfig::setName(const QString &name)
{
    own().name = name;
}

QString VDeviceConfig::description() const
{
    return fields().description;
}

void VDeviceConfig::setDescription(const QString &description)
{
    own().description = description;
}

void VDeviceConfig::insert(const QList<IVDeviceConfig *> &configs)
{
    for (IVDeviceConfig *config : configs)
        insert(config, true);
}

void VDeviceConfig::insert(IVDeviceConfig *config, bool takeOwnership)
{
    const bool refused = config == nullptr || config == this || config->contains(this, true)
        || (takeOwnership && contains(config, true));
    if (refused)
        return;
    if (takeOwnership)
        ownChildren().appendReachable(std::unique_ptr<IVDeviceConfig>(config));
    else
        ownChildren().appendClone(*config);
}

bool VDeviceConfig::remove(const QUuid &id, bool deep)
{
    if (!contains(id, deep))
        return false;
    ownChildren().remove(id, deep);
    return true;
}

bool VDeviceConfig::remove(IVDeviceConfig *config, bool deep)
{
    return contains(config, deep) && ownChildren().remove(config, deep);
}

bool VDeviceConfig::contains(const QUuid &id, bool deep) const
{
    return children() != nullptr && m_children->contains(id, deep);
}

bool VDeviceConfig::contains(IVDeviceConfig *config, bool deep) const
{
    return children() != nullptr && m_children->contains(config, deep);
}

int VDeviceConfig::count(const QUuid &id, bool deep) const
{
    return children() != nullptr ? m_children->count(id, deep) : 0;
}

QList<IVDeviceConfig *> VDeviceConfig::values(const QUuid &id) const
{
    if (!contains(id, false))
        return {};
    return ownChildren().handOut(id);
}

bool VDeviceConfig::save(QIODevice *device)
{
    if (device == nullptr || !device->isWritable())
        return false;
    const QByteArray json = toJson();
    return device->write(json) == json.size();
}

bool VDeviceConfig::load(QIODevice *device)
{
    if (device == nullptr || !device->isReadable())
        return false;
    const QJsonDocument document = QJsonDocument::fromJson(device->readAll());
    return document.isObject() && setJsonObject(document.object());
}

bool VDeviceConfig::setJsonObject(const QJsonObject &object)
{
    const QUuid kind = uuidFromJson(object.value(EnvelopeKey::kId));
    return !kind.isNull() && kind == id() && readEnvelope(object, registeredPrototypes());
}

bool VDeviceConfig::readConfig(const QJsonObject &config)
{
    return setInnerJsonObject(config);
}

bool VDeviceConfig::readConfig(const VJsonTextObject &config)
{
    codec()->read(*this, config);
    return true;
}

template<typename Object>
bool VDeviceConfig::readEnvelope(const Object &envelope, const Prototypes &prototypes)
{
    decodeNow();
    const auto oldFields = d;
    const auto oldChildren = m_children;
    own().readJson(envelope);
    m_children = VDeviceConfigChildren::fromJson(envelope.value(EnvelopeKey::kChildren).toArray(),
                                                 prototypes);
    // The class reads its own fields last, so that it can ask in which version they were written.
    if (!readConfig(envelope.value(EnvelopeKey::kConfig).toObject())) {
        d = oldFields;
        m_children = oldChildren;
        return false;
    }
    clearMetadata();
    insertMetadataFromJson(*this, treeOf(envelope.value(EnvelopeKey::kMetadata).toArray()));
    return true;
}

void VDeviceConfig::readText(const VJsonTextObject &envelope, const Prototypes &prototypes)
{
    readEnvelope(envelope, prototypes);
}

QUuid VDeviceConfig::dataId() const
{
    // The id of a record that was not decoded is known, unless its class computes another one.
    if (m_late && codec() != nullptr)
        return m_late->dataId();
    // True until told otherwise: a class whose records always have a content id may ignore it.
    bool ok = true;
    const QUuid id = innerDataId(&ok);
    return ok ? id : QUuid();
}

void VDeviceConfig::writeConfig(VJsonTreeWriter &envelope) const
{
    envelope.insert(EnvelopeKey::kConfig, toInnerJsonObject());
}

void VDeviceConfig::writeConfig(VJsonTextWriter &envelope) const
{
    envelope.object(EnvelopeKey::kConfig, [this](auto &config) { codec()->write(*this, config); });
}

template<typename Writer>
void VDeviceConfig::writeEnvelope(Writer &envelope) const
{
    // In the order of the keys, as the writers ask for.
    const VDeviceConfigPrivate &own = fields();
    if (m_children && !m_children->isEmpty())
        envelope.array(EnvelopeKey::kChildren, [this](auto &array) { m_children->write(array); });
    writeConfig(envelope);
    if (const QString text = own.dateTimeText(); !text.isEmpty())
        envelope.insert(EnvelopeKey::kDateTime, text);
    envelope.insert(EnvelopeKey::kDescription, own.description);
    envelope.insertPlain(EnvelopeKey::kDeviceId, own.deviceId.toByteArray(QUuid::WithBraces));
    envelope.insertPlain(EnvelopeKey::kId, id().toByteArray(QUuid::WithBraces));
    if (const QJsonArray metadata = metadataToJson(metadataList()); !metadata.isEmpty())
        envelope.insert(EnvelopeKey::kMetadata, metadata);
    envelope.insert(EnvelopeKey::kName, own.name);
    envelope.insert(EnvelopeKey::kVersion, own.version.toString());
}

void VDeviceConfig::writeText(VJsonTextWriter &envelope) const
{
    writeEnvelope(envelope);
}

QJsonObject VDeviceConfig::toJsonObject() const
{
    VJsonTreeWriter envelope;
    writeEnvelope(envelope);
    return envelope.members();
}

QByteArray VDeviceConfig::toJson() const
{
    if (codec() == nullptr)
        return QJsonDocument(toJsonObject()).toJson(QJsonDocument::Compact);
    VJsonTextWriter writer;
    writer.object([this](auto &envelope) { writeEnvelope(envelope); });
    return writer.text();
}

const VDeviceConfigCodec *VDeviceConfig::codec() const
{
    return nullptr;
}

QByteArray VDeviceConfig::hash() const
{
    const QJsonDocument document(contentOf(toJsonObject()));
    return QCryptographicHash::hash(document.toJson(QJsonDocument::Compact),
                                    QCryptographicHash::Sha256);
}

QString VDeviceConfig::toString(const QString &format, const QLocale &locale) const
{
    return toInnerGenericString(format, locale);
}

QString VDeviceConfig::toInnerGenericString(const QString &format, const QLocale &locale) const
{
    Q_UNUSED(locale)
    const auto textOf = [](const QUuid &id) { return id.toString(QUuid::WithBraces); };
    const VDeviceConfigPrivate &own = fields();
    if (format.isEmpty())
        return own.name.isEmpty() ? textOf(own.deviceId) : own.name;
    QString text;
    // In one pass: a name that itself holds "%d" is text, not format.
    for (qsizetype i = 0; i < format.size(); ++i) {
        const bool isCode = format.at(i) == u'%' && i + 1 < format.size();
        switch (isCode ? format.at(++i).unicode() : u'\0') {
        case u'n':
            text += own.name;
            break;
        case u'd':
            text += own.description;
            break;
        case u'v':
            text += own.version.toString();
            break;
        case u'i':
            text += textOf(own.deviceId);
            break;
        case u'c':
            text += textOf(dataId());
            break;
        case u'%':
            text += u'%';
            break;
        default: // An unknown code stands for itself.
            text += isCode ? format.sliced(i - 1, 2) : format.sliced(i, 1);
            break;
        }
    }
    return text;
}

void VDeviceConfig::setId(const QUuid &id)
{
    own().storedId = id;
}

QUuid VDeviceConfig::innerDataId(bool *ok) const
{
    if (ok != nullptr)
        *ok = true;
    return fields().deviceId;
}

bool VDeviceConfig::innerIsValid() const
{
    return !isNull();
}

bool VDeviceConfig::innerIsEmpty() const
{
    return fields().name.isEmpty() && fields().description.isEmpty() && count(QUuid(), false) == 0;
}

QUuid VDeviceConfig::storedId() const
{
    return fields().storedId;
}

} // namespace Norvane::Hardware
