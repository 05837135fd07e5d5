// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDeviceConfig.h>

#include "VDeviceConfigChildren.h"
#include "VDeviceConfig_p.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QJsonDocument>

namespace Norvane::Hardware {

using Interfaces::IVDeviceConfig;

namespace {

/// What a new record has; never destroyed, since records may outlive static destruction.
VDeviceConfigPrivate *defaultFields()
{
    static const auto *const fields = new QExplicitlySharedDataPointer(new VDeviceConfigPrivate);
    return fields->data();
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
    , d(other.d)
    , m_children(VDeviceConfigChildren::copyOf(other.m_children))
{
    copyMetadata(other.metadataList(), MetadataFlags::KillOnCopy);
}

VDeviceConfig &VDeviceConfig::operator=(const VDeviceConfig &other)
{
    if (this == &other)
        return *this;
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

VDeviceConfigPrivate &VDeviceConfig::own()
{
    // Acquire: a copy on another thread that has just let go has also finished reading.
    if (d->ref.loadAcquire() != 1)
        d.reset(new VDeviceConfigPrivate(*d));
    return *d;
}

VDeviceConfigChildren &VDeviceConfig::ownChildren() const
{
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
    if (d != other.d && !d->sameFields(*other.d))
        return false;
    const bool hasChildren = m_children && !m_children->isEmpty();
    const bool otherHasChildren = other.m_children && !other.m_children->isEmpty();
    if (!hasChildren || !otherHasChildren)
        return hasChildren == otherHasChildren;
    return m_children == other.m_children || m_children->equals(*other.m_children);
}

QUuid VDeviceConfig::deviceId() const
{
    return d->deviceId;
}

void VDeviceConfig::setDeviceId(const QUuid &deviceId)
{
    own().deviceId = deviceId;
}

bool VDeviceConfig::isNull() const
{
    return d->deviceId.isNull();
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
    return d->version;
}

void VDeviceConfig::setVersion(const VVersion &version)
{
    own().version = version;
}

QDateTime VDeviceConfig::dateTime() const
{
    return d->dateTime;
}

void VDeviceConfig::setDateTime(const QDateTime &dateTime)
{
    own().dateTime = dateTime.isValid() ? dateTime.toUTC() : QDateTime();
}

QString VDeviceConfig::name() const
{
    return d->name;
}

void VDeviceConfig::setName(const QString &name)
{
    own().name = name;
}

QString VDeviceConfig::description() const
{
    return d->description;
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
    return m_children && m_children->contains(id, deep);
}

bool VDeviceConfig::contains(IVDeviceConfig *config, bool deep) const
{
    return m_children && m_children->contains(config, deep);
}

int VDeviceConfig::count(const QUuid &id, bool deep) const
{
    return m_children ? m_children->count(id, deep) : 0;
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
    const QByteArray json = QJsonDocument(toJsonObject()).toJson(QJsonDocument::Compact);
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
    const auto kind = QUuid::fromString(object.value(EnvelopeKey::kId).toString());
    if (kind.isNull() || kind != id())
        return false;
    const auto oldFields = d;
    const auto oldChildren = m_children;
    own().readJson(object);
    m_children = VDeviceConfigChildren::fromJson(object.value(EnvelopeKey::kChildren).toArray());
    // The class reads its own fields last, so that it can ask in which version they were written.
    if (!setInnerJsonObject(object.value(EnvelopeKey::kConfig).toObject())) {
        d = oldFields;
        m_children = oldChildren;
        return false;
    }
    clearMetadata();
    insertMetadataFromJson(*this, object.value(EnvelopeKey::kMetadata).toArray());
    return true;
}

QUuid VDeviceConfig::dataId() const
{
    // True until told otherwise: a class whose records always have a content id may ignore it.
    bool ok = true;
    const QUuid id = innerDataId(&ok);
    return ok ? id : QUuid();
}

QJsonObject VDeviceConfig::toJsonObject() const
{
    QJsonObject object;
    object.insert(EnvelopeKey::kId, id().toString(QUuid::WithBraces));
    d->writeJson(object);
    object.insert(EnvelopeKey::kConfig, toInnerJsonObject());
    if (m_children && !m_children->isEmpty())
        object.insert(EnvelopeKey::kChildren, m_children->toJson());
    const QJsonArray metadata = metadataToJson(metadataList());
    if (!metadata.isEmpty())
        object.insert(EnvelopeKey::kMetadata, metadata);
    return object;
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
    if (format.isEmpty())
        return d->name.isEmpty() ? textOf(d->deviceId) : d->name;
    QString text;
    // In one pass: a name that itself holds "%d" is text, not format.
    for (qsizetype i = 0; i < format.size(); ++i) {
        const bool isCode = format.at(i) == u'%' && i + 1 < format.size();
        switch (isCode ? format.at(++i).unicode() : u'\0') {
        case u'n':
            text += d->name;
            break;
        case u'd':
            text += d->description;
            break;
        case u'v':
            text += d->version.toString();
            break;
        case u'i':
            text += textOf(d->deviceId);
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
    return d->deviceId;
}

bool VDeviceConfig::innerIsValid() const
{
    return !isNull();
}

bool VDeviceConfig::innerIsEmpty() const
{
    return d->name.isEmpty() && d->description.isEmpty() && count(QUuid(), false) == 0;
}

QUuid VDeviceConfig::storedId() const
{
    return d->storedId;
}

} // namespace Norvane::Hardware
