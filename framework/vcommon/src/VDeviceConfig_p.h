// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDeviceConfig.h>

#include <QtCore/QJsonArray>
#include <QtCore/QSharedData>

#include <memory>

namespace Norvane::Hardware {

/// The keys of the JSON envelope.
namespace EnvelopeKey {
constexpr QLatin1StringView kId{"id"};
constexpr QLatin1StringView kDeviceId{"deviceId"};
constexpr QLatin1StringView kVersion{"version"};
constexpr QLatin1StringView kName{"name"};
constexpr QLatin1StringView kDescription{"description"};
constexpr QLatin1StringView kDateTime{"dateTime"};
constexpr QLatin1StringView kConfig{"config"};
constexpr QLatin1StringView kChildren{"children"};
constexpr QLatin1StringView kMetadata{"metadata"};
} // namespace EnvelopeKey

/// The descriptive fields of a record, shared by its copies until one of them changes.
class VDeviceConfigPrivate : public QSharedData
{
public:
    QUuid deviceId;
    QUuid storedId; ///< What setId() stored; no part of the JSON.
    VVersion version;
    QDateTime dateTime; ///< In UTC.
    QString name;
    QString description;

    /// Replaces the fields by those of an envelope; a missing or ill-typed key takes its default.
    template<typename Object>
    void readJson(const Object &envelope);
    /// The date-time as the envelope spells it; empty when it has none that ISO can spell.
    QString dateTimeText() const;
    bool sameFields(const VDeviceConfigPrivate &other) const;
};

/// The "metadata" array of an envelope; entries that a save drops are left out.
QJsonArray metadataToJson(const QList<Norvane::Interfaces::IMetadata *> &entries);
/// Inserts the entries of a "metadata" array; malformed ones are skipped.
void insertMetadataFromJson(Norvane::Interfaces::IMetadatable &record, const QJsonArray &array);

} // namespace Norvane::Hardware
