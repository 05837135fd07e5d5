// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBLineCheck.h"

#include <vcore/VParallel.h>

#include <algorithm>
#include <iterator>

namespace Norvane::Database {

namespace {

/// Below this many pieces for each of two threads, starting the second costs more than it saves.
constexpr std::size_t kLeastPieces = 4;

} // namespace

/// How much of a signed line its signature matches, or -1.
qsizetype LineCheck::soundSize(const Line &line, QByteArrayView bytes) const
{
    const qsizetype payloadAt = line.payload.data() - bytes.data();
    const qsizetype lineFeed = bytes.endsWith('\r') ? bytes.size() - 1 : bytes.size();
    // The stated length finds the end of a line whose line feed was altered; the line feed finds
    // the end of a line whose length was altered.
    qsizetype tried = -1;
    for (const qsizetype end : {line.statedEnd, lineFeed, bytes.size()}) {
        if (end < payloadAt || end == tried)
            continue;
        tried = end;
        if (line.sum == Signer::sum(line.kind, bytes.sliced(payloadAt, end - payloadAt))
            && (!signer.isKeyed() || line.code == signer.code(line.sum)))
            return end;
    }
    return -1;
}

std::optional<CheckedLine> LineCheck::check(QByteArrayView content, qsizetype begin,
                                            qsizetype end) const
{
    const QByteArrayView bytes = content.sliced(begin, end - begin);
    const std::optional<Line> line = splitLine(bytes);
    if (!line)
        return std::nullopt;
    CheckedLine checked;
    checked.begin = begin;
    checked.size = bytes.size();
    checked.soundSize = soundSize(*line, bytes);
    checked.payloadAt = line->payload.data() - bytes.data();
    checked.kind = line->kind;
    // Copied and found out now, while the line is at hand: by the time that all are checked, the
    // first ones are far away from the processor again.
    if (checked.isSound())
        std::copy(line->sum.begin(), line->sum.end(), checked.sum.begin());
    const qsizetype soundEnd = begin + checked.soundSize;
    checked.hasLineFeed =
        checked.isSound() && soundEnd < content.size() && content[soundEnd] == '\n';
    const QByteArrayView payload = checked.isSound()
        ? line->payload.first(checked.soundSize - checked.payloadAt)
        : line->payload;
    if (line->kind == LineKind::Remove)
        checked.id = unescaped(payload);
    else if (line->kind == LineKind::Insert) {
        checked.id = findField(payload, keyField);
        checked.lastFieldAt = lastFieldAt(payload);
    }
    return checked;
}

/// Checks the lines that begin in one part of the content.
std::vector<CheckedLine> LineCheck::checkPart(QByteArrayView content, qsizetype begin,
                                              qsizetype end) const
{
    std::vector<CheckedLine> lines;
    if (begin > 0) {
        const qsizetype lineFeed = content.sliced(begin - 1, end - begin).indexOf('\n');
        begin = lineFeed < 0 ? end : begin + lineFeed;
    }
    while (begin < end) {
        const qsizetype lineFeed = content.indexOf('\n', begin);
        const qsizetype lineEnd = lineFeed < 0 ? content.size() : lineFeed;
        if (std::optional<CheckedLine> line = check(content, begin, lineEnd))
            lines.push_back(*std::move(line));
        begin = lineEnd + 1;
    }
    return lines;
}

std::vector<CheckedLine> LineCheck::checkAll(QByteArrayView content, qsizetype pieceSize) const
{
    if (pieceSize <= 0)
        return {};
    const auto pieces = std::size_t((content.size() + pieceSize - 1) / pieceSize);
    std::vector<std::vector<CheckedLine>> parts(pieces);
    parallelFor(pieces, kLeastPieces, [&](std::size_t begin, std::size_t end) {
        parts[begin] = checkPart(content, qsizetype(begin) * pieceSize,
                                 std::min(qsizetype(end) * pieceSize, content.size()));
    });
    std::size_t count = 0;
    for (const std::vector<CheckedLine> &part : parts)
        count += part.size();
    std::vector<CheckedLine> lines;
    lines.reserve(count);
    for (std::vector<CheckedLine> &part : parts)
        std::move(part.begin(), part.end(), std::back_inserter(lines));
    return lines;
}

} // namespace Norvane::Database
