// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "LineIndex.h"

#include <algorithm>

namespace Norvane::Kilnjet::Tool {

LineIndex::LineIndex(QByteArrayView text)
    : m_text(text)
{
    m_starts.append(0);
    for (qsizetype at = text.indexOf('\n'); at >= 0; at = text.indexOf('\n', at + 1))
        m_starts.append(at + 1);
}

TextPosition LineIndex::position(qsizetype offset) const
{
    const qsizetype at = std::clamp(offset, qsizetype(0), m_text.size());
    const auto after = std::upper_bound(m_starts.begin(), m_starts.end(), at);
    const qsizetype start = *std::prev(after);
    const QByteArrayView before = m_text.sliced(start, at - start);
    const auto characters = std::count_if(before.begin(), before.end(),
                                          [](char c) { return (uchar(c) & 0xC0) != 0x80; });
    return {after - m_starts.begin(), characters + 1};
}

} // namespace Norvane::Kilnjet::Tool
