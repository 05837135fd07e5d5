// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QByteArrayView>
#include <QtCore/QList>
#include <QtCore/QString>

#include <functional>
#include <memory>

namespace Bench {

/// A store of texts under keys of 16 bytes: what there is to write for each peer.
class KeyValueStore
{
public:
    /// Takes a key and its text, which live until it returns; false ends the reading.
    using Visitor = std::function<bool(QByteArrayView key, QByteArrayView text)>;

    struct Change
    {
        QByteArray key;
        QByteArray text; ///< Null: the key goes.
    };

    virtual ~KeyValueStore() = default;

    /// Opens the store in `folder`; makes it when the folder is empty.
    [[nodiscard]] virtual bool open(const QString &folder) = 0;
    virtual void close() = 0;
    /// True when an open store keeps other processes out.
    virtual bool holdsItsFiles() const { return true; }

    /// Hands all that there is to `visit`. False when something cannot be read, or `visit` says so.
    [[nodiscard]] virtual bool readAll(const Visitor &visit) = 0;
    /// The text of the key; null when there is none.
    virtual QByteArray read(const QByteArray &key) = 0;
    /// Writes all changes or none, and returns when they are on the disk.
    [[nodiscard]] virtual bool write(const QList<Change> &changes) = 0;
    /// Gives unused space back to the file system.
    [[nodiscard]] virtual bool compact() = 0;
};

/// How SQLite keeps what it needs to undo or to redo a transaction.
enum class SqliteJournal
{
    Wal,
    Rollback
};
std::unique_ptr<KeyValueStore> makeSqlite(SqliteJournal journal);
std::unique_ptr<KeyValueStore> makeLmdb();
std::unique_ptr<KeyValueStore> makeLevelDb();
std::unique_ptr<KeyValueStore> makeRocksDb();
/// A file of one JSON object a line, written anew by each change.
std::unique_ptr<KeyValueStore> makeJsonLines();

} // namespace Bench
