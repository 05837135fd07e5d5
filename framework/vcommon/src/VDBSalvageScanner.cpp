// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBSalvageScanner.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

using Reason = VDBDamage::Reason;
using Proof = VDBSalvagedRecord::Proof;
using Batch = SalvagedLine::Batch;

/// Hostile bytes may look like the beginning of a line everywhere. Real damage needs less.
constexpr qsizetype kEffortPerByte = 8;
constexpr qsizetype kLeastEffort = 1 << 16;
/// A mark with a line end of two bytes on both sides.
constexpr qsizetype kLongestEnd = 5;

/// Where the next line may begin, from `from` on; -1 when nowhere.
qsizetype nextStart(QByteArrayView bytes, qsizetype from)
{
    // No key and no value holds a tab, so few places look like a beginning and are none.
    for (qsizetype tab = bytes.indexOf('\t', from + 1); tab >= 0;
         tab = bytes.indexOf('\t', tab + 1)) {
        if (QByteArrayView("+-=").contains(bytes[tab - 1]))
            return tab - 1;
    }
    return -1;
}

/// True for what may have become of a line end, alone or around a mark. No record is lost with it.
bool isEndOfLine(QByteArrayView bytes)
{
    return bytes.size() < 2
        || (bytes.size() <= kLongestEnd && std::all_of(bytes.begin(), bytes.end(), [](char c) {
                return QByteArrayView("\r .~\0", 5).contains(c);
            }));
}

bool isHeader(QByteArrayView chunk)
{
    return chunk.startsWith(kHeaderStart)
        && decodeHeader(chunk.endsWith('\r') ? chunk.chopped(1) : chunk).has_value();
}

} // namespace

SalvageScanner::SalvageScanner(QByteArrayView bytes, const Signer &signer, const QString &keyField)
    : m_bytes(bytes)
    , m_signer(signer)
    , m_keyField(keyField)
    , m_effort(bytes.size() * kEffortPerByte + kLeastEffort)
{ }

void SalvageScanner::run()
{
    qsizetype lineFeed = -1;
    while (m_position < m_bytes.size()) {
        if (lineFeed < m_position) {
            lineFeed = m_bytes.indexOf('\n', m_position);
            if (lineFeed < 0)
                lineFeed = m_bytes.size();
        }
        readChunk(m_bytes.sliced(m_position, lineFeed - m_position));
        m_isLineStart = m_position == lineFeed;
        if (m_isLineStart) {
            ++m_position;
            ++m_line;
        }
    }
    endBatch(m_pending, Batch::Unfinished);
}

/// Reads the bytes up to a line feed, or as far as the first line in them goes.
void SalvageScanner::readChunk(QByteArrayView chunk)
{
    if (chunk.isEmpty() || chunk == QByteArrayView("\r") || readMark(chunk) || isHeader(chunk)) {
        m_position += chunk.size();
        return;
    }
    for (qsizetype at = nextStart(chunk, 0); at >= 0; at = nextStart(chunk, at + 1)) {
        const QByteArrayView rest = chunk.sliced(at);
        const std::optional<Line> line = splitLine(rest);
        const bool isInPlace = at == 0 && m_isLineStart;
        const Proven proven = line ? prove(*line, rest, isInPlace) : Proven();
        if (proven.end < 0)
            continue;
        takeDamaged(chunk.first(at));
        m_position += at;
        take(*line, rest, proven);
        m_position += proven.end;
        return;
    }
    takeDamaged(chunk);
    m_position += chunk.size();
}

/// Reads a seal or a void mark; false when the bytes are neither.
bool SalvageScanner::readMark(QByteArrayView chunk)
{
    if (chunk.size() != 1 && chunk.sliced(1) != QByteArrayView("\r"))
        return false;
    if (chunk[0] == char(LineKind::Seal))
        endBatch(m_pending, Batch::Completed);
    else if (chunk[0] == char(LineKind::Void))
        endBatch(m_pending, Batch::Void);
    else
        return false;
    return true;
}

/// Looks for an end of the line, which begins `bytes`, that makes its sum match.
SalvageScanner::Proven SalvageScanner::prove(const Line &line, QByteArrayView bytes, bool isInPlace)
{
    const qsizetype payloadAt = line.payload.data() - bytes.data();
    const qsizetype lineFeed = bytes.endsWith('\r') ? bytes.size() - 1 : bytes.size();
    for (const qsizetype end : {line.statedEnd, lineFeed}) {
        if (end < payloadAt)
            continue;
        const QByteArrayView payload = bytes.sliced(payloadAt, end - payloadAt);
        m_effort -= isInPlace ? 0 : payload.size();
        if (m_effort < 0 && !isInPlace)
            return {};
        if (line.sum != Signer::sum(line.kind, payload))
            continue;
        const bool isSigned = line.code != QByteArrayView("-");
        hasCodes = hasCodes || isSigned;
        if (!m_signer.isKeyed())
            return {end, Proof::Sum};
        return {end, line.code == m_signer.code(line.sum) ? Proof::Code : Proof::None};
    }
    return {};
}

QString SalvageScanner::idOf(LineKind kind, QByteArrayView payload) const
{
    return kind == LineKind::Remove ? unescaped(payload) : findField(payload, m_keyField);
}

/// Takes a line whose sum matches; it begins `bytes` at the present position.
void SalvageScanner::take(const Line &line, QByteArrayView bytes, const Proven &proven)
{
    const qsizetype payloadAt = line.payload.data() - bytes.data();
    const QByteArrayView payload = bytes.sliced(payloadAt, proven.end - payloadAt);
    if (proven.proof == Proof::None)
        return takeDamaged(bytes.first(proven.end)); // Somebody else's, however well it is made.
    if (line.kind == LineKind::Commit)
        return readCommit(payload);
    const QString id = idOf(line.kind, payload);
    if (id.isEmpty())
        return report(Reason::NotALine, proven.end);
    lines.push_back({m_position, m_position + payloadAt, m_position + proven.end, m_line, line.kind,
                     id, proven.proof, Batch::Unfinished});
}

/// Takes note of bytes at the present position that prove nothing.
void SalvageScanner::takeDamaged(QByteArrayView bytes)
{
    if (isEndOfLine(bytes))
        return;
    const std::optional<Line> line = splitLine(bytes);
    const QByteArrayView payload = line ? line->payload : bytes;
    const LineKind kind = line ? line->kind : LineKind::Insert;
    if (!line && bytes.contains(kHeaderStart))
        return report(Reason::BadHeader, bytes.size());
    if (kind == LineKind::Commit) {
        m_batch = lines.size();
        return report(Reason::BadCommit, bytes.size());
    }
    const QString id = idOf(kind, payload);
    report(line ? Reason::BadSignature : Reason::NotALine, bytes.size(), id);
    if (kind == LineKind::Insert && !id.isEmpty()) {
        const qint64 payloadAt = m_position + (payload.data() - bytes.data());
        lines.push_back({m_position, payloadAt, m_position + bytes.size(), m_line, kind, id,
                         Proof::None, Batch::Unfinished});
    }
}

void SalvageScanner::readCommit(QByteArrayView payload)
{
    const auto count = findField(payload, u"lines"_s).toULongLong();
    // Lines that an interrupted batch left in front do not belong to this one.
    const std::size_t present = lines.size() - m_batch;
    const std::size_t begin = present > count ? lines.size() - std::size_t(count) : m_batch;
    std::for_each(lines.begin() + std::ptrdiff_t(m_pending),
                  lines.begin() + std::ptrdiff_t(m_batch),
                  [](SalvagedLine &line) { line.batch = Batch::Completed; });
    endBatch(begin, Batch::Completed);
}

/// Says of the lines from `begin` on what became of their batch, and begins another one.
void SalvageScanner::endBatch(std::size_t begin, Batch state)
{
    std::for_each(lines.begin() + std::ptrdiff_t(begin), lines.end(),
                  [state](SalvagedLine &line) { line.batch = state; });
    m_pending = lines.size();
    m_batch = lines.size();
}

void SalvageScanner::report(Reason reason, qsizetype size, const QString &id)
{
    damage.append({m_position, size, m_line, id, reason});
}

} // namespace Norvane::Database
