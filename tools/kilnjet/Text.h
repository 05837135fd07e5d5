// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

/// `text` with what could steer a terminal written as escapes: control characters, line and
/// paragraph separators, bidirectional overrides, lone surrogates.
QString printable(const QString &text);

/// How many columns of a terminal `text` takes: wide characters count two, combining ones none.
int displayWidth(const QString &text);

/// `text` broken at blanks into lines of at most `width` columns.
QStringList wrapped(const QString &text, int width);

/// `text` in single quotes, for messages.
QString quoted(const QString &text);

/// "1 machine", "2 machines": `count` and the noun, with an s where it belongs.
QString counted(qsizetype count, const QString &noun);

/// Rows of cells, aligned in columns for people to read.
class TextTable
{
public:
    enum class Align
    {
        Left,
        Right
    };

    /// A column with a heading; all columns come before the first row.
    void addColumn(const QString &heading, Align align = Align::Left);
    /// A row of as many cells as there are columns; made printable here.
    void addRow(const QStringList &cells);
    /// The headings and the rows, one a line, without trailing blanks.
    QString toString() const;

private:
    QStringList m_headings;
    QList<Align> m_aligns;
    QList<QStringList> m_rows;
};

} // namespace Norvane::Kilnjet::Tool
