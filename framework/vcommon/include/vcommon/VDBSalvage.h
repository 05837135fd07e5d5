// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>
#include <vcommon/VDBRecord.h>
#include <vcommon/VDBStatus.h>

#include <QtCore/QIODevice>
#include <QtCore/QList>

#include <chrono>
#include <memory>

namespace Norvane::Database {

class VDBSalvagePrivate;

/// A record that was found in a damaged file.
struct VDBSalvagedRecord
{
    /// What speaks for the record.
    enum class Proof
    {
        Code, ///< Its code was made with the key that was given.
        Sum, ///< Its sum matches its content.
        None, ///< Nothing but the look of its line speaks for it.
    };

    QString id; ///< Its key.
    VDBRecord record; ///< Its signature counts as matching, unless the proof is None.
    /// What speaks for the record.
    Proof proof = Proof::None;
    bool isUnfinished =
        false; ///< It stands in a batch of which nothing says that it was completed.
};

/// Finds the records in a file that is damaged beyond what VDBText takes: without a header, without
/// line ends, with blocks overwritten, cut off, or joined from pieces.
///
/// Every place where a record may begin is tried, and what proves itself counts: for each key the
/// last sound version, unless a completed batch removes it later. A batch without its end counts,
/// too, but for its removals; one that a writer has found unfinished and marked as void only where
/// nothing else is known of a key. Where no sound version is left, the last damaged one is given
/// with Proof::None, for the caller to judge. What became of the other bytes, damage() tells.
///
/// Threads: one at a time.
/// Failures: read()'s result. Nothing throws, nothing is logged; the file is only read.
class VCOMMON_EXPORT VDBSalvage
{
public:
    /// `keyField` is the field that holds the keys, should no header of the file be left to name
    /// it.
    explicit VDBSalvage(const QString &keyField);
    Q_DISABLE_COPY_MOVE(VDBSalvage)
    ~VDBSalvage();

    /// Reads the whole of `device`, under a lock shared with other readers. With a key, only what
    /// was signed with it is sound; WrongKey when nothing was. DamagedHeader: neither a header nor
    /// a line is left, NotADatabase: nor is a trace of either.
    [[nodiscard]] VDBStatus read(QIODevice *device, const QString &key,
                                 std::chrono::milliseconds lockTimeout);
    /// The system's words for the last failure; empty when there was none.
    QString errorString() const;

    /// True when the file, or a line of it, is signed with a key.
    bool isKeyed() const;
    /// True when a copy of the header is sound.
    bool hasHeader() const;
    /// The records, in file order.
    qsizetype count() const;
    /// The record at `index`, from 0 to count() - 1.
    VDBSalvagedRecord record(qsizetype index) const;
    /// Every stretch that could not be used, in file order; records with Proof::None are among
    /// them.
    const QList<VDBDamage> &damage() const;

private:
    std::unique_ptr<VDBSalvagePrivate> d;
};

} // namespace Norvane::Database
