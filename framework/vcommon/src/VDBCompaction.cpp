// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBCompaction.h"

#include "VDBBatch.h"

namespace Norvane::Database {

Compaction::Compaction(const Contents &contents, const Signer &signer)
{
    m_contents.header = contents.header;
    m_contents.headerLine = contents.headerLine;
    m_contents.reserve(std::size_t(contents.index.size()));
    addBytes(contents.headerLine + '\n' + contents.headerLine + '\n');
    QByteArray sums;
    for (const Entry &entry : contents.entries) {
        if (!entry.isLive || !entry.isSound)
            continue;
        sums += QByteArrayView(entry.sum);
        Entry moved = entry;
        moved.offset = m_contents.end;
        moved.line = m_contents.line;
        moved.hasLineFeed = true;
        addLine(entry);
        m_contents.add(std::move(moved));
    }
    const QByteArray seal = QByteArray(1, char(LineKind::Seal)) + '\n';
    if (!m_contents.entries.empty())
        addBytes(encodeCommit(m_contents.entries.size(), sums, signer) + seal);
    // Behind the sound ones, so that none of these is taken for a later one of the same key.
    for (const Entry &entry : contents.entries) {
        // A single byte is a mark that was damaged, and no part of a record.
        if (!entry.isLive || entry.isSound || entry.size < 2)
            continue;
        addLine(entry);
        m_isKnown = false;
    }
    if (!m_isKnown)
        addBytes(seal);
}

/// Adds a line of the present content, in one range with those before it where it follows them.
void Compaction::addLine(const Entry &entry)
{
    const qint64 size = entry.size + (entry.hasLineFeed ? 1 : 0);
    if (ContentPart &last = m_parts.back(); last.at >= 0 && last.at + last.size == entry.offset)
        last.size += size;
    else
        m_parts.push_back({.at = entry.offset, .size = size, .bytes = {}});
    m_contents.end += size;
    m_contents.line += 1;
    if (!entry.hasLineFeed) {
        addBytes("\n");
        m_contents.line -= 1;
    }
}

void Compaction::addBytes(const QByteArray &bytes)
{
    m_parts.push_back({.at = -1, .size = bytes.size(), .bytes = bytes});
    m_contents.end += bytes.size();
    m_contents.line += bytes.count('\n');
}

} // namespace Norvane::Database
