// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Text.h"

#include <QtCore/QChar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

struct CodeRange
{
    char32_t first;
    char32_t last;
};

/// The characters that take two columns, in blocks: East Asian wide and fullwidth ones, and emoji.
constexpr CodeRange kWideRanges[] = {
    {0x1100, 0x115F},   {0x2E80, 0x303E},   {0x3041, 0x33FF},   {0x3400, 0x4DBF},
    {0x4E00, 0x9FFF},   {0xA000, 0xA4CF},   {0xA960, 0xA97F},   {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF},   {0xFE30, 0xFE6F},   {0xFF00, 0xFF60},   {0xFFE0, 0xFFE6},
    {0x16FE0, 0x18CFF}, {0x1AFF0, 0x1B2FF}, {0x1F300, 0x1F64F}, {0x1F680, 0x1F6FF},
    {0x1F900, 0x1FAFF}, {0x20000, 0x3FFFD},
};

bool isWide(char32_t code)
{
    const auto after = std::upper_bound(std::begin(kWideRanges), std::end(kWideRanges), code,
                                        [](char32_t c, const CodeRange &r) { return c < r.first; });
    return after != std::begin(kWideRanges) && code <= std::prev(after)->last;
}

bool isUnsafe(char32_t code)
{
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        // Embeddings, overrides and isolates would reorder the rest of the line.
        return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
    }
}

/// Visible ASCII and blanks: one column each, nothing to escape. Most text is no more than that.
bool isPlain(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
}

QString padding(int columns)
{
    return QString(std::max(columns, 0), u' ');
}

} // namespace

QString printable(const QString &text)
{
    if (isPlain(text))
        return text;
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar unit = text.at(i);
        const bool pair =
            unit.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const char32_t code = pair ? QChar::surrogateToUcs4(unit, text.at(i + 1)) : unit.unicode();
        if (isUnsafe(code))
            result += u"\\u%1"_s.arg(uint(code), 4, 16, QChar(u'0'));
        else
            result += QStringView(text).sliced(i, pair ? 2 : 1);
        if (pair)
            ++i;
    }
    return result;
}

int displayWidth(const QString &text)
{
    if (isPlain(text))
        return int(text.size());
    int width = 0;
    for (const uint code : text.toUcs4()) {
        switch (QChar::category(code)) {
        case QChar::Mark_NonSpacing:
        case QChar::Mark_Enclosing:
        case QChar::Other_Format:
            break;
        default:
            width += isWide(code) ? 2 : 1;
        }
    }
    return width;
}

QStringList wrapped(const QString &text, int width)
{
    QStringList lines;
    QString line;
    for (const QString &word : text.split(u' ', Qt::SkipEmptyParts)) {
        if (!line.isEmpty() && displayWidth(line) + 1 + displayWidth(word) > width) {
            lines.append(line);
            line.clear();
        }
        line += line.isEmpty() ? word : u' ' + word;
    }
    if (!line.isEmpty())
        lines.append(line);
    return lines;
}

QString quoted(const QString &text)
{
    return u'\'' + text + u'\'';
}

QString counted(qsizetype count, const QString &noun)
{
    return QString::number(count) + u' ' + noun + (count == 1 ? QString() : u"s"_s);
}

void TextTable::addColumn(const QString &heading, Align align)
{
    m_headings.append(heading);
    m_aligns.append(align);
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList row;
    for (const QString &cell : cells)
        row.append(printable(cell));
    m_rows.append(row);
}

QString TextTable::toString() const
{
    QList<int> widths;
    for (qsizetype column = 0; column < m_headings.size(); ++column) {
        int width = displayWidth(m_headings.at(column));
        for (const QStringList &row : m_rows)
            width = std::max(width, displayWidth(row.at(column)));
        widths.append(width);
    }
    QString text;
    const auto append = [&](const QStringList &row) {
        QString line;
        for (qsizetype column = 0; column < row.size(); ++column) {
            const QString &cell = row.at(column);
            const QString gap = padding(widths.at(column) - displayWidth(cell));
            line += m_aligns.at(column) == Align::Left ? cell + gap : gap + cell;
            line += u"  "_s;
        }
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    };
    append(m_headings);
    for (const QStringList &row : m_rows)
        append(row);
    return text;
}

} // namespace Norvane::Kilnjet::Tool
