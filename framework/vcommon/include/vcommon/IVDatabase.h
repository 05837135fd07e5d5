// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDBRecord.h>

#include <QtCore/QIODevice>
#include <QtCore/QLocale>
#include <QtCore/QString>

namespace Norvane::Database {

/// A store of records in a device, each found by the value of one field.
///
/// Every access stands between open() (or create()) and close(); what is inserted and removed there
/// is one batch, written by close().
class VCOMMON_EXPORT IVDatabase
{
public:
    virtual ~IVDatabase();

    /// Writes the batch, if there is one, and ends the access.
    virtual void close() = 0;
    /// Begins an access to the store in `device`; false when it cannot be used.
    [[nodiscard]] virtual bool open(QIODevice *device) = 0;
    /// Writes an empty store to `device` and begins an access to it; false when there is content
    /// already or it cannot be written.
    [[nodiscard]] virtual bool create(QIODevice *device, const QString &keyField, const int &option,
                                      const QLocale &locale, const QString &format) = 0;
    /// Sets the key that signs the records, and what the next open() is for.
    virtual void setKey(const QString &key, const QString &extra) = 0;
    /// Adds the record to the batch; it replaces the one with the same key. False when it has none
    /// or the access is for reading only.
    virtual bool insert(const VDBRecord &record) = 0;
    /// Adds the removal of the record with the key `id` to the batch; false when there is none or
    /// the access is for reading only.
    virtual bool remove(const QString &id) = 0;
    /// Drops what is no longer live from the file; false when that could not be done.
    [[nodiscard]] virtual bool purge() = 0;
    /// True when there is a record with the key `id`, the batch included.
    virtual bool contains(const QString &id) = 0;
    /// Gives the first record, or a null one.
    virtual void first(VDBRecord &record) = 0;
    /// Gives the last record, or a null one.
    virtual void last(VDBRecord &record) = 0;
    /// The key last given to setKey().
    virtual QString key() = 0;
    /// Builds the index anew from the whole file; false when that could not be done.
    [[nodiscard]] virtual bool reindex() = 0;
    /// Replaces `record` by the one that follows it, or by a null one.
    virtual void next(VDBRecord &record) = 0;
};

} // namespace Norvane::Database
