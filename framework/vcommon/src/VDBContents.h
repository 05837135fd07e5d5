// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBFormat.h"

#include <vcommon/VDBStatus.h>

#include <QtCore/QHash>

#include <vector>

namespace Norvane::Database {

/// One line of the file that is, or once was, a live record; or bytes that cannot be read.
struct Entry
{
    qint64 offset = 0; ///< Where the line begins in the file.
    qint64 size = 0; ///< Its length without the line end.
    qint64 payloadAt = 0; ///< Where its fields begin, from `offset`.
    qint64 lastFieldAt = 0; ///< Where the last of the fields begins, from the first one.
    qint64 line = 0; ///< Its number, from 1.
    QString id; ///< The record's key; of a damaged line as far as it is readable.
    SumText sum = {}; ///< As a sound line states it.
    LineKind kind = LineKind::Insert;
    VDBDamage::Reason damage = VDBDamage::Reason::NotALine; ///< Why, when it is not sound.
    bool isSound = false; ///< The signature matches the content.
    bool isRecord = false; ///< Damaged, but an insert line still.
    bool looksTorn = false; ///< Damaged in a way that an interrupted write leaves.
    bool isLive = true;
    bool hasLineFeed = true; ///< A line feed follows it.
};

/// What an append must put right first.
enum class TailState
{
    Clean,
    Bare, ///< There is nothing but a header, and nothing says that it is on the disk.
    Unsealed, ///< The last batch is complete, but nothing says that it is on the disk.
    Unfinished, ///< The last batch was never completed.
};

/// What a file holds: its header, its live records, and how it ends.
struct Contents
{
    VDBStatus status = VDBStatus::Ok;
    Header header;
    QByteArray headerLine; ///< One copy of the header, without its line end.
    std::vector<Entry> entries; ///< In file order; dead ones included.
    QHash<QString, std::size_t> index; ///< From the key to the live and sound entry.
    QMultiHash<QString, std::size_t> damagedRecords; ///< Likewise, the live and damaged ones.
    TailState tail = TailState::Clean;
    bool endsInsideLine = false; ///< The last byte before `end` is no line end.
    qint64 end = 0; ///< Where content ends; what follows is filling.
    qint64 line = 1; ///< The number of the line that begins at `end`.

    std::size_t deadCount = 0; ///< How many entries are dead.

    /// Makes room for so many entries, and for some more: the next commit must not move them all.
    void reserve(std::size_t count);
    /// Appends a sound entry, or a damaged record: later lines of a key stand for earlier ones.
    void add(Entry &&entry);
    /// Marks every live entry of the key as dead.
    void kill(const QString &id);
    /// Drops the dead entries once they are many, so that they do not grow for ever.
    void forgetDead();

private:
    void killDamaged(const QString &id);
    void killAt(std::size_t place);
};

} // namespace Norvane::Database
