// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBFormat.h"

#include <vcommon/VDBSalvage.h>

#include <QtCore/QList>

#include <vector>

namespace Norvane::Database {

/// How every copy of a header begins: the magic word and a tab. No record holds that, for a bare
/// tab ends a field.
constexpr QByteArrayView kHeaderStart("vdbtext\t");

/// A line that was found, sound or not.
struct SalvagedLine
{
    using Proof = VDBSalvagedRecord::Proof;
    enum class Batch
    {
        Completed,
        Unfinished, ///< Nothing says that it was completed.
        Void, ///< A writer has said that it was not.
    };

    qint64 offset = 0;
    qint64 payloadAt = 0; ///< Where its fields begin in the file, and where they end.
    qint64 end = 0;
    qint64 line = 0;
    LineKind kind = LineKind::Insert;
    QString id;
    Proof proof = Proof::None;
    Batch batch = Batch::Unfinished;
};

/// Finds the lines in any bytes, whatever stands between them.
///
/// Unlike the reader of a store it does not believe line feeds: a line begins wherever one proves
/// itself. Time is proportional to the number of bytes.
class SalvageScanner
{
public:
    SalvageScanner(QByteArrayView bytes, const Signer &signer, const QString &keyField);

    void run();

    std::vector<SalvagedLine> lines;
    QList<VDBDamage> damage;
    bool hasCodes = false; ///< A line with a matching sum has a code.

private:
    /// Where a line's content ends, and what proves that.
    struct Proven
    {
        qsizetype end = -1;
        VDBSalvagedRecord::Proof proof = VDBSalvagedRecord::Proof::None;
    };

    void readChunk(QByteArrayView chunk);
    bool readMark(QByteArrayView chunk);
    Proven prove(const Line &line, QByteArrayView bytes, bool isInPlace);
    void take(const Line &line, QByteArrayView bytes, const Proven &proven);
    void takeDamaged(QByteArrayView bytes);
    void readCommit(QByteArrayView payload);
    void endBatch(std::size_t begin, SalvagedLine::Batch state);
    void report(VDBDamage::Reason reason, qsizetype size, const QString &id = {});
    QString idOf(LineKind kind, QByteArrayView payload) const;

    const QByteArrayView m_bytes;
    const Signer &m_signer;
    const QString m_keyField;
    qsizetype m_position = 0;
    qint64 m_line = 1;
    bool m_isLineStart = true; ///< The present position is the beginning or behind a line feed.
    qsizetype m_effort; ///< How many bytes may still be summed for lines out of place.
    std::size_t m_pending = 0; ///< The first line whose batch has no end yet.
    std::size_t m_batch = 0; ///< The first line behind the last end of a batch, damaged or not.
};

} // namespace Norvane::Database
