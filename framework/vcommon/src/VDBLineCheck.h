// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBFormat.h"

#include <vector>

namespace Norvane::Database {

/// A line of the kinds +, - and = with all that takes time to find out about it.
struct CheckedLine
{
    qsizetype begin = 0; ///< Where it begins in the content.
    qsizetype size = 0; ///< Its length up to the line feed.
    qsizetype soundSize = -1; ///< Its length as far as the signature matches; -1 when none does.
    qsizetype payloadAt = 0; ///< Where the payload begins, from `begin`.
    LineKind kind = LineKind::Insert;
    SumText sum = {}; ///< As a sound line states it.
    QString id; ///< The key of the record, sound or not; empty for a commit line.
    qsizetype lastFieldAt = 0; ///< Of a record: where its last field begins, from the payload.
    bool hasLineFeed = false; ///< A line feed stands behind the sound part.

    bool isSound() const { return soundSize >= 0; }
};

/// How lines are checked: under which key, and which field is the key of a record.
struct LineCheck
{
    const Signer &signer;
    const QString &keyField;

    /// Checks the line from `begin` to the line feed (or the end of content) `end`; nothing when it
    /// does not have the shape of a signed line.
    std::optional<CheckedLine> check(QByteArrayView content, qsizetype begin, qsizetype end) const;
    /// Checks in parallel what begins behind a line feed and looks like a signed line.
    ///
    /// Content is divided into pieces of `pieceSize` bytes; a line belongs to that in which it
    /// begins. Zero leaves all lines out.
    std::vector<CheckedLine> checkAll(QByteArrayView content, qsizetype pieceSize) const;

private:
    qsizetype soundSize(const Line &line, QByteArrayView bytes) const;
    std::vector<CheckedLine> checkPart(QByteArrayView content, qsizetype begin,
                                       qsizetype end) const;
};

} // namespace Norvane::Database
