// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Roff.h"

#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

QString escaped(const QString &text, bool isLiteral)
{
    QString result;
    for (const uint code : text.toUcs4()) {
        switch (code) {
        case '\\':
            result += u"\\e"_s;
            break;
        case '-':
            result += isLiteral ? u"\\-"_s : u"-"_s;
            break;
        case '\'':
            result += u"\\(aq"_s;
            break;
        case '`':
            result += u"\\(ga"_s;
            break;
        case '^':
            result += u"\\(ha"_s;
            break;
        case '~':
            result += u"\\(ti"_s;
            break;
        default:
            if (code < 0x80)
                result += QChar(ushort(code));
            else
                result += u"\\[u%1]"_s.arg(QString::number(code, 16).toUpper(), 4, u'0');
        }
    }
    return result;
}

QString line(const QString &text)
{
    return (text.startsWith(u'.') ? u"\\&"_s : QString()) + text + u'\n';
}

QString filled(const QString &text)
{
    constexpr int kWidth = 72;
    QString result;
    for (const QString &part : wrapped(text, kWidth))
        result += line(escaped(part));
    return result;
}

QString bold(const QString &text)
{
    return u"\\fB"_s + escaped(text, true) + u"\\fR"_s;
}

QString italic(const QString &text)
{
    return u"\\fI"_s + escaped(text, true) + u"\\fR"_s;
}

QString heading(const QString &name, const QString &section, const Edition &edition,
                const QString &book)
{
    return u".TH %1 %2 %3 \"kilnjet %4\" \"%5\"\n"_s.arg(escaped(name.toUpper(), true), section,
                                                         edition.date, edition.version, book);
}

QString nameSection(const QString &name, const QString &summary)
{
    return u".SH NAME\n%1 \\- %2\n"_s.arg(escaped(name, true), escaped(summary));
}

} // namespace Norvane::Kilnjet::Tool
