// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Writer.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// What zsh calls to complete such a word; a blank for what cannot be offered.
QString action(const Words &words)
{
    switch (words.kind) {
    case Words::Kind::Free:
        return u" "_s;
    case Words::Kind::Files:
        return u"_files"_s;
    case Words::Kind::Machines:
        return u"_kilnjet_machines"_s;
    case Words::Kind::FilesOrMachines:
        return u"_kilnjet_sources"_s;
    default:
        return u"_kilnjet_words "_s + wordList(words).join(u' ');
    }
}

/// Text in an argument of zsh's _arguments, in single quotes.
QString specified(QString text)
{
    for (const QChar c : {u'\\', u'[', u']', u':'})
        text.replace(c, u'\\' + QString(c));
    return text.replace(u'\'', u"'\\''"_s);
}

QString optionSpecs(const QList<Option> &options)
{
    QString specs;
    for (const Option &option : options) {
        QString text = u'[' + specified(option.summary) + u']';
        if (!option.value.isEmpty())
            text += u':' + specified(option.value) + u':' + action(option.words);
        const bool isMany = option.times == Option::Times::Many;
        const QString first =
            isMany ? u"*"_s : u"(%1 %2)"_s.arg(option.name, option.letter).replace(u" )"_s, u")"_s);
        const QString end = option.value.isEmpty() ? QString() : u"="_s;
        specs += u"        '%1'\n"_s.arg(first + option.name + end + text);
        if (!option.letter.isEmpty())
            specs += u"        '%1'\n"_s.arg(first + option.letter + text);
    }
    return specs;
}

constexpr QLatin1StringView kHead(R"(#compdef kilnjet

# Offers the words, in any case, behind the options that _arguments hands on.
_kilnjet_words() {
    compadd -M 'm:{a-zA-Z}={A-Za-z}' "$@"
}

_kilnjet_machines() {
    local -a names
    names=("${(@f)$("${(Q)words[1]}" "$db[@]" --wait 0 list --names 2>/dev/null)}")
    _kilnjet_words "$@" -- "${(@)names:#}"
}

_kilnjet_sources() {
    [[ -z $db ]] || _kilnjet_machines "$@"
    _files "$@"
}

_kilnjet() {
    local command word skip
    local -a specs db
    typeset -A opt_args
)");

constexpr QLatin1StringView kFind(R"(
    # The command is the first word that is no option and no option's value.
    for word in "${(@Q)words[2,CURRENT-1]}"; do
        if [[ -n $skip ]]; then
            [[ $skip != --db ]] || db=(--db "$word")
            skip=
        elif [[ $word == (%1) ]]; then
            skip=$word
        elif [[ $word == --db=* ]]; then
            db=("$word")
        elif [[ $word != -* && -z $command ]]; then
            command=$word
        fi
    done
)");

} // namespace

QString zshCompletion()
{
    QString cases;
    QStringList names;
    for (const Command &command : commandTable()) {
        names.append(u"        '%1:%2'\n"_s.arg(command.name, specified(command.summary)));
        QString specs = optionSpecs(command.options);
        int place = 2; // Behind the command.
        for (const Operand &operand : command.operands) {
            const QString where = operand.most > 1 ? u"*"_s : QString::number(place++);
            specs += u"        '%1:%2:%3'\n"_s.arg(where, specified(operand.name),
                                                   action(operand.words));
        }
        if (!specs.isEmpty())
            cases += u"    %1) specs+=(\n%2    ) ;;\n"_s.arg(command.name, specs);
    }
    QStringList valued;
    for (const Option &option : globalOptions()) {
        if (!option.value.isEmpty())
            valued.append(option.name);
    }
    return kHead + u"    local -a commands=(\n%1    )\n"_s.arg(names.join(QString()))
        + u"    specs=(\n%1    )\n"_s.arg(optionSpecs(globalOptions()))
        + QString(kFind).arg(valued.join(u'|')) + u"    case $command in\n%1    esac\n"_s.arg(cases)
        + u"    _arguments -S : $specs '1:command:{_describe command commands}'\n}\n\n"
          "_kilnjet \"$@\"\n"_s;
}

} // namespace Norvane::Kilnjet::Tool
