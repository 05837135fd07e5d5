// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDBRecord.h>

#include "VDBRecordData.h"

#include <vcore/VConvert.h>
#include <vcore/VLocale.h>

#include <algorithm>

namespace Norvane::Database {

namespace {

using Field = VDBRecordData::Field;

/// The field `key` of `fields`, which is given back at its end when it is new.
Field &fieldOf(QList<Field> &fields, const QString &key)
{
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field &known) { return known.key == key; });
    if (field != fields.end())
        return *field;
    fields.append({key, {}, {}});
    return fields.last();
}

const Field *findField(const QList<Field> &fields, const QString &key)
{
    const auto field = std::find_if(fields.begin(), fields.end(),
                                    [&](const Field &known) { return known.key == key; });
    return field != fields.end() ? &*field : nullptr;
}

} // namespace

QString cultureName(const QLocale &locale)
{
    return locale.name().replace(u'_', u'-');
}

QLocale cultureLocale(const QString &name)
{
    return VLocale(name, QLocale::OmitGroupSeparator);
}

QVariant VDBRecordData::Field::variant() const
{
    return isUtf8 ? QVariant(textFromUtf8(utf8)) : value;
}

VDBRecordData::Field &VDBRecordData::field(const QString &key)
{
    if (!payload.isEmpty()) {
        fields = decoded();
        payload = VBytes();
    }
    return fieldOf(fields, key);
}

QList<Field> VDBRecordData::decoded() const
{
    QList<Field> result = fields;
    for (const FormatField &stored : decodeFields(payload.view()))
        fieldOf(result, stored.key).value = stored.value ? QVariant(*stored.value) : QVariant();
    return result;
}

QByteArray VDBRecordData::encoded(const QString &culture) const
{
    QByteArray bytes;
    const QLocale locale = cultureLocale(culture);
    if (!culture.isEmpty())
        appendField(bytes, VDBRecord::cultureKey(), culture.toUtf8());
    for (const Field &field : decoded()) {
        if (field.key == VDBRecord::cultureKey())
            continue; // The store's own business.
        if (field.isUtf8)
            appendField(bytes, field.key, field.utf8);
        else if (field.value.isNull())
            appendField(bytes, field.key, std::nullopt);
        else
            appendField(bytes, field.key, VConvert::toString(field.value, locale).toUtf8());
    }
    return bytes;
}

VDBRecord::VDBRecord()
    : d(new VDBRecordData)
{ }

VDBRecord::VDBRecord(const VDBRecord &other) = default;
VDBRecord &VDBRecord::operator=(const VDBRecord &other) = default;
VDBRecord::~VDBRecord() = default;

bool VDBRecord::isNull() const
{
    return d->offset < 0 && d->fields.isEmpty();
}

void VDBRecord::insert(const QString &key, const QVariant &value)
{
    d->field(key) = {key, value, {}};
    d->isSigned = false;
}

void VDBRecord::insertUtf8(const QString &key, const QByteArray &utf8)
{
    d->field(key) = {key, {}, utf8.isValidUtf8() ? utf8 : textFromUtf8(utf8).toUtf8(), true};
    d->isSigned = false;
}

VDBField VDBRecord::search(const QString &key) const
{
    if (const Field *const field = findField(d->fields, key))
        return VDBField(field->variant());
    const std::optional<RawField> stored = lastField(d->payload.view(), d->lastFieldAt, key);
    if (!stored)
        return {};
    return VDBField(stored->value ? QVariant(unescaped(*stored->value)) : QVariant());
}

std::optional<VBytes> VDBRecord::utf8(const QString &key) const
{
    if (const Field *const field = findField(d->fields, key)) {
        if (field->isUtf8)
            return VBytes(field->utf8);
        if (field->value.isNull())
            return std::nullopt;
        const QString culture = search(cultureKey()).value().toString();
        return VBytes(VConvert::toString(field->value, cultureLocale(culture)).toUtf8());
    }
    const std::optional<RawField> stored = lastField(d->payload.view(), d->lastFieldAt, key);
    if (!stored || !stored->value)
        return std::nullopt;
    VBytes value = stored->value->contains('\\') ? VBytes(unescapedUtf8(*stored->value))
                                                 : d->payload.part(*stored->value);
    if (!QUtf8StringView(value.view().data(), value.size()).isValidUtf8())
        value = VBytes(textFromUtf8(value.view()).toUtf8());
    return value;
}

std::optional<VBytes> VDBRecord::stored(const QString &key) const
{
    const std::optional<RawField> stored = lastField(d->payload.view(), d->lastFieldAt, key);
    if (!stored || !stored->value)
        return std::nullopt;
    return d->payload.part(*stored->value);
}

QStringList VDBRecord::keys() const
{
    QStringList keys;
    for (const VDBRecordData::Field &field : d->decoded())
        keys.append(field.key);
    return keys;
}

bool VDBRecord::checkSignature() const
{
    return d->isSigned;
}

qint64 VDBRecord::line() const
{
    return d->line;
}

qint64 VDBRecord::offset() const
{
    return d->offset;
}

QString VDBRecord::cultureKey()
{
    return QStringLiteral("culture");
}

} // namespace Norvane::Database
