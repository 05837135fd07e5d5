// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Roff.h"
#include "Writer.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// A summary, which has neither a capital nor a full stop, as a sentence.
QString sentence(QString summary)
{
    summary[0] = summary.at(0).toUpper();
    return summary + u'.';
}

QString optionTerm(const Option &option)
{
    QString term = bold(option.name);
    if (!option.letter.isEmpty())
        term = bold(option.letter) + u", "_s + term;
    if (!option.value.isEmpty())
        term += u' ' + italic(option.value);
    return term;
}

QString options(const QString &title, const QList<Option> &list)
{
    QString text = list.isEmpty() ? QString() : u".SH %1\n"_s.arg(title);
    for (const Option &option : list)
        text += u".TP\n"_s + optionTerm(option) + u'\n' + filled(sentence(option.summary));
    return text;
}

QString operandTerm(const Operand &operand)
{
    QString text = italic(operand.name);
    if (operand.most > 1)
        text += u"..."_s;
    return operand.least == 0 ? u'[' + text + u']' : text;
}

QString exitCodes(const QList<ExitMeaning> &special)
{
    QString text = u".SH EXIT STATUS\n"_s;
    for (const ExitMeaning &usual : exitCodeTable()) {
        QString meaning = usual.meaning;
        for (const ExitMeaning &own : special) {
            if (own.code == usual.code)
                meaning = own.meaning;
        }
        text += u".TP\n%1\n"_s.arg(int(usual.code)) + filled(sentence(meaning));
    }
    return text;
}

QString seeAlso(const QStringList &commands)
{
    QStringList pages;
    for (const QString &command : commands)
        pages.append(u".BR kilnjet%1 (1)"_s.arg(escaped(command, true)));
    pages.append(u".BR kilnjet\\-format (5)"_s);
    return u".SH SEE ALSO\n"_s + pages.join(u",\n"_s) + u'\n';
}

QString toolPage(const Edition &edition)
{
    QString text = heading(u"kilnjet"_s, u"1"_s, edition, u"User Commands"_s)
        + nameSection(u"kilnjet"_s, u"keep the catalogue of printer drivers"_s)
        + u".SH SYNOPSIS\n.B kilnjet\n[\\fIOPTION\\fR...] \\fICOMMAND\\fR [\\fIOPERAND\\fR...]\n"_s
        + u".SH DESCRIPTION\n"_s
        + filled(u"Keeps the catalogue of printer drivers for industrial decoration printers in a "
                 "database file that survives a power cut. Data goes to standard output, messages "
                 "to standard error. It needs no display."_s)
        + u".PP\n"_s
        + filled(u"Options may stand anywhere before --, a command's own behind its name. "
                 "--name=value and --name value mean the same."_s)
        + u".SH COMMANDS\n"_s;
    QStringList pages;
    for (const Command &command : commandTable()) {
        QString usage = bold(command.name);
        for (const Operand &operand : command.operands)
            usage += u' ' + operandTerm(operand);
        text += u".TP\n"_s + usage + u'\n' + filled(sentence(command.summary));
        pages.append(u"-"_s + command.name);
    }
    text += options(u"OPTIONS"_s, globalOptions()) + exitCodes({});
    text += u".SH ENVIRONMENT\n.TP\n.BR LC_ALL \", \" LC_MESSAGES \", \" LANG\n"_s
        + filled(u"The first that is set names the language in which values are shown when --lang "
                 "is left out."_s)
        + u".TP\n.B NO_COLOR\n"_s + filled(u"When it is not empty, nothing is coloured."_s)
        + u".TP\n.B TERM\n"_s
        + filled(u"When it is \"dumb\", nothing is coloured and no progress is shown."_s);
    text += u".SH FILES\n.TP\n.I Printers.tdb\n"_s
        + filled(u"The database in the current folder, unless --db names another."_s);
    return text + seeAlso(pages);
}

} // namespace

QString manPage(const Command *command, const Edition &edition)
{
    if (command == nullptr)
        return toolPage(edition);
    const QString name = u"kilnjet-"_s + command->name;
    QString summary = command->summary;
    summary[0] = summary.at(0).toLower();
    QString text = heading(name, u"1"_s, edition, u"User Commands"_s) + nameSection(name, summary);
    text += u".SH SYNOPSIS\n.B kilnjet\n[\\fIOPTION\\fR...] "_s + bold(command->name);
    for (const Operand &operand : command->operands)
        text += u' ' + operandTerm(operand);
    text += u"\n.SH DESCRIPTION\n"_s;
    const QString description =
        command->description.isEmpty() ? sentence(command->summary) : command->description;
    text += [&] {
        QStringList paragraphs;
        for (const QString &paragraph : description.split(u'\n', Qt::SkipEmptyParts))
            paragraphs.append(filled(paragraph));
        return paragraphs.join(u".PP\n"_s);
    }();
    if (!command->operands.isEmpty())
        text += u".SH OPERANDS\n"_s;
    for (const Operand &operand : command->operands)
        text += u".TP\n"_s + operandTerm(operand) + u'\n' + filled(sentence(operand.summary));
    text += options(u"OPTIONS"_s, command->options);
    text += options(u"COMMON OPTIONS"_s, globalOptions());
    text += exitCodes(command->exitCodes);
    text += u".SH EXAMPLES\n"_s;
    for (const Example &example : command->examples) {
        text += u".TP\n"_s + line(escaped(sentence(example.summary)))
            + line(u"\\fBkilnjet "_s + escaped(example.line, true) + u"\\fR"_s);
    }
    return text + seeAlso({QString()});
}

} // namespace Norvane::Kilnjet::Tool
