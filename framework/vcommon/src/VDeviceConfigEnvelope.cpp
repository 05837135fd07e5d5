// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The fields of a record as JSON: what stands in the envelope beside the class's own object.

#include "VDeviceConfig_p.h"

#include <vcore/VJsonText.h>
#include <vcore/VMetadata.h>

#include <QtCore/QJsonArray>

using namespace Qt::StringLiterals;

namespace Norvane::Hardware {

namespace {

constexpr QLatin1StringView kMetadataKey{"key"};
constexpr QLatin1StringView kMetadataFlags{"flags"};
constexpr QLatin1StringView kMetadataValue{"value"};

QDateTime dateTimeFromText(const QString &text)
{
    if (text.isEmpty())
        return {};
    QDateTime dateTime = QDateTime::fromString(text, Qt::ISODateWithMs);
    // The same text means the same moment wherever it is read: no zone is not the reader's zone.
    if (dateTime.timeSpec() == Qt::LocalTime) {
        const QString inUtc = text.size() > 10 ? text + "Z"_L1 : text + "T00:00Z"_L1;
        dateTime = QDateTime::fromString(inUtc, Qt::ISODateWithMs);
    }
    return dateTime.isValid() ? dateTime.toUTC() : QDateTime();
}

} // namespace

template<typename Object>
void VDeviceConfigPrivate::readJson(const Object &envelope)
{
    deviceId = uuidFromJson(envelope.value(EnvelopeKey::kDeviceId));
    version = VVersion::fromString(envelope.value(EnvelopeKey::kVersion).toString());
    name = envelope.value(EnvelopeKey::kName).toString();
    description = envelope.value(EnvelopeKey::kDescription).toString();
    dateTime = dateTimeFromText(envelope.value(EnvelopeKey::kDateTime).toString());
}

template void VDeviceConfigPrivate::readJson(const QJsonObject &);
template void VDeviceConfigPrivate::readJson(const VJsonTextObject &);

QString VDeviceConfigPrivate::dateTimeText() const
{
    const QDate date = dateTime.date();
    const QTime time = dateTime.time();
    // ISO text covers the years 0 to 9999 only; a moment beyond them has none.
    if (!dateTime.isValid() || date.year() < 0 || date.year() > 9999)
        return {};
    // As Qt::ISODateWithMs, which took a seventh of the time that a record's text takes.
    char text[] = "0000-00-00T00:00:00.000Z";
    const auto put = [&text](int number, std::size_t end) {
        for (; number > 0; number /= 10)
            text[--end] = char('0' + number % 10);
    };
    put(date.year(), 4);
    put(date.month(), 7);
    put(date.day(), 10);
    put(time.hour(), 13);
    put(time.minute(), 16);
    put(time.second(), 19);
    put(time.msec(), 23);
    return QString::fromLatin1(text);
}

bool VDeviceConfigPrivate::sameFields(const VDeviceConfigPrivate &other) const
{
    return deviceId == other.deviceId && version == other.version && name == other.name
        && description == other.description && dateTime == other.dateTime;
}

QJsonArray metadataToJson(const QList<Norvane::Interfaces::IMetadata *> &entries)
{
    QJsonArray array;
    for (const auto *entry : entries) {
        if ((entry->flags() & MetadataFlags::KillOnSave) != MetadataFlags::None)
            continue;
        // As text: a JSON number holds no 64 bits.
        array.append(QJsonObject{
            {kMetadataKey, QString::number(entry->key())},
            {kMetadataFlags, MetadataFlags_T::instance().textOf(entry->flags())},
            {kMetadataValue, entry->value()},
        });
    }
    return array;
}

void insertMetadataFromJson(Norvane::Interfaces::IMetadatable &record, const QJsonArray &array)
{
    for (const QJsonValue &element : array) {
        const QJsonObject object = element.toObject();
        bool ok = false;
        const quint64 key = object.value(kMetadataKey).toString().toULongLong(&ok);
        if (!ok)
            continue;
        const QString flags = object.value(kMetadataFlags).toString();
        VMetadata entry(key, object.value(kMetadataValue),
                        MetadataFlags_T::instance().valueOf(flags));
        record.insertMetadata(&entry, false);
    }
}

} // namespace Norvane::Hardware
