// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>
#include <vcommon/VDBField.h>
#include <vcore/VBytes.h>

#include <QtCore/QSharedDataPointer>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace Norvane::Database {

class VDBRecordData;
class VDBSalvage;
class VDBTextPrivate;

/// One record of a text database: fields in order, each a key and a value.
///
/// The store writes values as text, in the locale that the field cultureKey() names, and adds that
/// field and the signature by itself. Copies are cheap and independent. A record from a store keeps
/// the bytes that were read in memory, and decodes a field whenever it is asked for.
/// Threads: one at a time for one object; copies may live on different threads.
class VCOMMON_EXPORT VDBRecord
{
public:
    /// A null record.
    VDBRecord();
    /// A copy, which shares the bytes that were read.
    VDBRecord(const VDBRecord &other);
    /// Becomes a copy, which shares the bytes that were read.
    VDBRecord &operator=(const VDBRecord &other);
    ~VDBRecord();

    /// True when the record has no fields and stands for no stored one: past the end of a store.
    bool isNull() const;

    /// Appends the field `key`, or gives it a new value; the signature no longer matches then.
    void insert(const QString &key, const QVariant &value);
    /// The same with the value as UTF-8, which goes to the file without a detour over QString. What
    /// is no UTF-8 is replaced as QString::fromUtf8() does it. A null array is an empty text.
    void insertUtf8(const QString &key, const QByteArray &utf8);
    /// The field `key`, found or not.
    VDBField search(const QString &key) const;
    /// The value of the field `key` as valid UTF-8; nothing when it is missing or null. These are
    /// the stored bytes themselves, shared and not copied, unless they contain escapes.
    std::optional<VBytes> utf8(const QString &key) const;
    /// The same as it stands in the file, unread: a backslash begins an escape, and bytes that are
    /// no UTF-8 are still there. Nothing when the record is in no file, or was changed.
    std::optional<VBytes> stored(const QString &key) const;
    /// The keys in order.
    QStringList keys() const;

    /// True when the record came from a store and its signature matched its content there. A store
    /// opened with a key asks for the signature under that key.
    bool checkSignature() const;

    /// The line of the file on which the record stands, from 1; 0 when it is in no file.
    qint64 line() const;
    /// Where that line begins in the file, in bytes; -1 when it is in no file.
    qint64 offset() const;

    /// The key of the field that names the locale of the values.
    static QString cultureKey();

private:
    friend class VDBSalvage;
    friend class VDBTextPrivate;
    QSharedDataPointer<VDBRecordData> d;
};

} // namespace Norvane::Database
