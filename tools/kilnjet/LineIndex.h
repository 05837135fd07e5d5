// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArrayView>
#include <QtCore/QList>

namespace Norvane::Kilnjet::Tool {

/// A place in a text: both numbers from 1, the column in characters.
struct TextPosition
{
    qint64 line = 1;
    qint64 column = 1;
};

/// Turns offsets in a text into lines and columns, many of them without reading it each time.
class LineIndex
{
public:
    /// `text` is UTF-8 and must outlive the index.
    explicit LineIndex(QByteArrayView text);
    TextPosition position(qsizetype offset) const;

private:
    QByteArrayView m_text;
    QList<qsizetype> m_starts; ///< Where each line begins.
};

} // namespace Norvane::Kilnjet::Tool
