// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QLatin1StringView>
#include <QtCore/QUuid>

#include <span>

namespace Norvane::Kilnjet::Tool {

/// What the value under a key of a record must be.
enum class ValueType
{
    Text,
    Id, ///< The text of a UUID.
    Version, ///< "1.2.1"
    DateTime, ///< ISO 8601 with a time zone.
    Flag, ///< true or false.
    Int32,
    Int64Text, ///< Digits in a text, because JSON's numbers are too short for them.
    UInt64Text,
    Number,
    EnumName, ///< A name of the enumeration; several for flags.
    EnumNames, ///< An array of names.
    Numbers, ///< An array of numbers.
    Resolutions, ///< An array of resolutions.
    Images, ///< An array of encoded images.
    Svg, ///< A compressed SVG document in Base64.
    Base64, ///< Bytes in Base64, not empty.
    Config, ///< The record's own fields.
    Children, ///< An array of records.
    Metadata, ///< An array of metadata entries.
    Anything,
};

enum class Presence
{
    Required,
    Optional
};

/// One key of an object and what its value must be.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): tables read best in this order
struct KeyRule
{
    QLatin1StringView key;
    ValueType type;
    QLatin1StringView enumeration = {}; ///< The short name, for EnumName and EnumNames.
    Presence presence = Presence::Required;
};

using ObjectRule = std::span<const KeyRule>;

/// One kind of record: what it is called, and the keys of its "config".
struct RecordKind
{
    QUuid id;
    QLatin1StringView name;
    ObjectRule config;
};

/// The keys around every record.
ObjectRule envelopeRule();
/// The keys of a resolution, of an icon's image, of a metadata entry.
ObjectRule resolutionRule();
ObjectRule imageRule();
ObjectRule metadataRule();

/// The kind of printer drivers, the only one that a catalogue holds by itself.
const RecordKind &printerKind();
/// The kind with this id, or null.
const RecordKind *findKind(const QUuid &id);
/// What records of the kind are called; "unknown kind" when it is not known.
QString kindName(const QUuid &id);

} // namespace Norvane::Kilnjet::Tool
