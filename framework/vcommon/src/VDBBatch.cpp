// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBBatch.h"

#include <vcore/VParallel.h>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

/// Fewer lines than twice as many are signed sooner than a second thread starts.
constexpr std::size_t kLeastLines = 32;

} // namespace

void Batch::clear()
{
    m_changes.clear();
    m_byId.clear();
}

std::optional<bool> Batch::contains(const QString &id) const
{
    const auto change = m_byId.constFind(id);
    if (change == m_byId.constEnd())
        return std::nullopt;
    return m_changes[*change].kind == LineKind::Insert;
}

void Batch::insert(const QString &id, const QByteArray &payload)
{
    const auto known = m_byId.constFind(id);
    if (known == m_byId.constEnd()) {
        m_byId.insert(id, m_changes.size());
        m_changes.push_back({id, LineKind::Insert, payload});
    } else {
        m_changes[*known].kind = LineKind::Insert;
        m_changes[*known].payload = payload;
    }
}

void Batch::remove(const QString &id)
{
    QByteArray payload;
    appendEscaped(payload, id.toUtf8());
    const auto known = m_byId.constFind(id);
    if (known != m_byId.constEnd()) {
        // A record that was only ever in the batch leaves a removal of nothing behind: harmless.
        m_changes[*known].kind = LineKind::Remove;
        m_changes[*known].payload = payload;
    } else {
        m_byId.insert(id, m_changes.size());
        m_changes.push_back({id, LineKind::Remove, payload});
    }
}

EncodedBatch Batch::encode(const Signer &signer, const QByteArray &before) const
{
    EncodedBatch encoded;
    encoded.entries.resize(m_changes.size());
    qint64 size = before.size();
    for (std::size_t i = 0; i < m_changes.size(); ++i) {
        const Change &change = m_changes[i];
        Entry &entry = encoded.entries[i];
        entry.offset = size;
        entry.size = lineSize(change.payload.size(), signer) - 1;
        entry.payloadAt = entry.size - change.payload.size();
        entry.line = qint64(i);
        entry.id = change.id;
        entry.kind = change.kind;
        entry.isSound = true;
        size += entry.size + 1;
    }
    constexpr qsizetype kRest = 256; // A commit line and a seal are shorter.
    encoded.bytes.reserve(size + kRest);
    encoded.bytes.append(before).resize(size);
    QByteArray sums(qsizetype(m_changes.size()) * kSumLength, Qt::Uninitialized);
    char *const bytesAt = encoded.bytes.data();
    char *const sumsAt = sums.data();
    parallelFor(m_changes.size(), kLeastLines, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            Entry &entry = encoded.entries[i];
            entry.sum = writeLine(bytesAt + entry.offset, entry.kind, m_changes[i].payload, signer);
            std::copy(entry.sum.begin(), entry.sum.end(), sumsAt + i * kSumLength);
        }
    });
    encoded.bytes += encodeCommit(m_changes.size(), sums, signer);
    return encoded;
}

QByteArray encodeCommit(std::size_t count, QByteArrayView sums, const Signer &signer)
{
    const QByteArray payload =
        encodeFields({{u"lines"_s, QString::number(count)},
                      {u"digest"_s, QString::fromLatin1(Signer::sum(sums))}});
    return encodeLine(LineKind::Commit, payload, signer);
}

} // namespace Norvane::Database
