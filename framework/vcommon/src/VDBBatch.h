// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBContents.h"

#include <QtCore/QHash>

#include <optional>
#include <vector>

namespace Norvane::Database {

/// A batch as it goes to the file.
struct EncodedBatch
{
    QByteArray bytes;
    std::vector<Entry>
        entries; ///< Its lines but the last; offsets and numbers count from its first.
};

/// The changes between open() and close(): for each key the last thing that was asked for.
class Batch
{
public:
    bool isEmpty() const { return m_changes.empty(); }
    void clear();

    /// Whether the batch holds a record under the key; nothing when it says nothing about it.
    std::optional<bool> contains(const QString &id) const;
    void insert(const QString &id, const QByteArray &payload);
    /// Removes a record that is in the file or in the batch.
    void remove(const QString &id);
    /// The lines of the batch with their commit line, behind the bytes `before`.
    EncodedBatch encode(const Signer &signer, const QByteArray &before) const;

private:
    struct Change
    {
        QString id;
        LineKind kind;
        QByteArray payload;
    };

    std::vector<Change> m_changes;
    QHash<QString, std::size_t> m_byId;
};

/// The commit line for `count` lines whose sums, in order, are `sums`.
QByteArray encodeCommit(std::size_t count, QByteArrayView sums, const Signer &signer);

} // namespace Norvane::Database
