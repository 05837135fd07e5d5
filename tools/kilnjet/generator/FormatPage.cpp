// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A page of the manual from a text in Markdown: headings, paragraphs, lists, and blocks of code.

#include "Roff.h"
#include "Text.h"
#include "Writer.h"

#include <QtCore/QRegularExpression>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// The text between two marks, or a link, as the page has it.
QString spanText(const QRegularExpressionMatch &match)
{
    if (match.hasCaptured(u"code"_s))
        return bold(match.captured(u"code"_s));
    if (match.hasCaptured(u"strong"_s))
        return bold(match.captured(u"strong"_s));
    if (match.hasCaptured(u"emphasis"_s))
        return italic(match.captured(u"emphasis"_s));
    return escaped(match.captured(u"link"_s));
}

/// A paragraph with its spans.
QString paragraphText(const QString &text)
{
    static const QRegularExpression spans(
        u"`(?<code>[^`]+)`|\\*\\*(?<strong>[^*]+)\\*\\*|\\*(?<emphasis>[^*]+)\\*"
        "|\\[(?<link>[^]]+)\\]\\([^)]*\\)"_s);
    QString result;
    qsizetype done = 0;
    for (auto matches = spans.globalMatch(text); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += escaped(text.sliced(done, match.capturedStart() - done)) + spanText(match);
        done = match.capturedEnd();
    }
    return result + escaped(text.sliced(done));
}

QString paragraph(const QStringList &lines)
{
    constexpr int kWidth = 78;
    QString result;
    for (const QString &part : wrapped(paragraphText(lines.join(u' ')), kWidth))
        result += line(part);
    return result;
}

QString codeBlock(const QStringList &lines)
{
    QString text = u".PP\n.RS 4\n.nf\n"_s;
    for (const QString &one : lines)
        text += line(escaped(one, true));
    return text + u".fi\n.RE\n"_s;
}

/// The block of a text that begins at a line; `lines` loses its lines.
QString takeBlock(QStringList &lines)
{
    static const QRegularExpression item(u"^(-|\\d+\\.) +"_s);
    const QString first = lines.first();
    if (first.startsWith(u"## "_s)) {
        lines.removeFirst();
        return u".SH "_s + escaped(first.sliced(3).toUpper()) + u'\n';
    }
    QStringList block;
    if (first.startsWith(u"    "_s)) {
        while (!lines.isEmpty() && (lines.first().isEmpty() || lines.first().startsWith(u"    "_s)))
            block.append(lines.takeFirst().mid(4));
        while (block.last().isEmpty())
            block.removeLast();
        return codeBlock(block);
    }
    const QRegularExpressionMatch match = item.match(first);
    block.append(lines.takeFirst().mid(match.capturedLength()));
    while (!lines.isEmpty() && !lines.first().isEmpty() && !item.match(lines.first()).hasMatch())
        block.append(lines.takeFirst().trimmed());
    if (!match.hasMatch())
        return u".PP\n"_s + paragraph(block);
    const QString mark = match.captured(1) == "-"_L1 ? u"\\[u2022]"_s : match.captured(1);
    return u".IP %1 3\n"_s.arg(mark) + paragraph(block);
}

} // namespace

QString formatPage(const QString &name, const QString &summary, const QString &markdown,
                   const Edition &edition)
{
    QString text = heading(name, u"5"_s, edition, u"File Formats"_s) + nameSection(name, summary)
        + u".SH DESCRIPTION\n"_s;
    QStringList lines;
    for (const QString &one : markdown.split(u'\n')) {
        if (!one.startsWith(u"<!--"_s) && !one.startsWith(u"# "_s))
            lines.append(one);
    }
    QString before;
    while (!lines.isEmpty()) {
        if (lines.first().isEmpty()) {
            lines.removeFirst();
            continue;
        }
        QString block = takeBlock(lines);
        // A heading is a break already.
        if ((before.isEmpty() || before.startsWith(u".SH"_s)) && block.startsWith(u".PP\n"_s))
            block.remove(0, 4);
        text += block;
        before = block;
    }
    return text + u".SH SEE ALSO\n.BR kilnjet (1)\n"_s;
}

} // namespace Norvane::Kilnjet::Tool
