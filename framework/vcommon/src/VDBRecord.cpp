// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDBRecord.h>

#include "VDBRecordData.h"

#include <algorithm>

namespace Norvane::Database {

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
    d->isSigned = false;
    const auto field = std::find_if(d->fields.begin(), d->fields.end(),
                                    [&](const auto &known) { return known.key == key; });
    if (field == d->fields.end())
        d->fields.append({key, value});
    else
        field->value = value;
}

VDBField VDBRecord::search(const QString &key) const
{
    for (const VDBRecordData::Field &field : d->fields) {
        if (field.key == key)
            return VDBField(field.value);
    }
    return {};
}

QStringList VDBRecord::keys() const
{
    QStringList keys;
    for (const VDBRecordData::Field &field : d->fields)
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
