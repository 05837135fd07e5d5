// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Help.h"

#include "Command.h"
#include "Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr int kWidth = 80;
constexpr int kIndent = 2;
constexpr int kWidestTerm = 26;

/// A term and its explanation.
struct Entry
{
    QString term;
    QString text;
};

/// The entries under a heading, their explanations aligned and wrapped.
QString section(const QString &heading, const QList<Entry> &entries)
{
    if (entries.isEmpty())
        return {};
    int column = 0;
    for (const Entry &entry : entries)
        column = std::max(column, int(entry.term.size()));
    column = std::min(column, kWidestTerm) + 2 * kIndent;

    QString text = u'\n' + heading + u":\n"_s;
    for (const Entry &entry : entries) {
        QString line = QString(kIndent, u' ') + entry.term;
        if (line.size() + kIndent > column) {
            text += line + u'\n';
            line.clear();
        }
        for (const QString &part : wrapped(entry.text, kWidth - column)) {
            text += line.leftJustified(column) + part + u'\n';
            line.clear();
        }
    }
    return text;
}

/// One paragraph for each line of `text`.
QString paragraphs(const QString &text)
{
    QString result;
    for (const QString &paragraph : text.split(u'\n', Qt::SkipEmptyParts))
        result += u'\n' + wrapped(paragraph, kWidth).join(u'\n') + u'\n';
    return result;
}

QString operandText(const Operand &operand)
{
    QString text = operand.name;
    if (operand.most > 1)
        text += u"..."_s;
    return operand.least == 0 ? u'[' + text + u']' : text;
}

QString usage(const Command &command)
{
    QString text = command.name;
    for (const Operand &operand : command.operands)
        text += u' ' + operandText(operand);
    return text;
}

QList<Entry> optionEntries(const QList<Option> &options)
{
    QList<Entry> entries;
    for (const Option &option : options) {
        QString term = option.name;
        if (!option.letter.isEmpty())
            term = option.letter + u", "_s + term;
        if (!option.value.isEmpty())
            term += u' ' + option.value;
        entries.append({term, option.summary});
    }
    return entries;
}

QList<Entry> exitEntries(const QList<ExitMeaning> &special)
{
    QList<Entry> entries;
    for (const ExitMeaning &usual : exitCodeTable()) {
        QString meaning = usual.meaning;
        for (const ExitMeaning &own : special) {
            if (own.code == usual.code)
                meaning = own.meaning;
        }
        entries.append({QString::number(int(usual.code)), meaning});
    }
    return entries;
}

} // namespace

QString generalHelp()
{
    QList<Entry> commands;
    for (const Command &command : commandTable())
        commands.append({usage(command), command.summary});
    return u"Keeps the catalogue of printer drivers from the command line.\n\n"
           "Usage: kilnjet [OPTION...] COMMAND [OPERAND...]\n"_s
        + section(u"Commands"_s, commands) + section(u"Options"_s, optionEntries(globalOptions()))
        + section(u"Exit codes"_s, exitEntries({}))
        + u"\n'kilnjet help COMMAND' explains a command and gives examples.\n"_s;
}

QString commandHelp(const Command &command)
{
    QList<Entry> operands;
    for (const Operand &operand : command.operands)
        operands.append({operandText(operand), operand.summary});
    QString text = command.summary + u".\n\nUsage: kilnjet [OPTION...] "_s + usage(command) + u'\n';
    text += paragraphs(command.description);
    text += section(u"Operands"_s, operands);
    text += section(u"Options"_s, optionEntries(command.options + globalOptions()));
    text += section(u"Exit codes"_s, exitEntries(command.exitCodes));
    text += u"\nExamples:\n"_s;
    for (const Example &example : command.examples)
        text += u"  # %1\n  kilnjet %2\n"_s.arg(example.summary, example.line);
    return text;
}

} // namespace Norvane::Kilnjet::Tool
