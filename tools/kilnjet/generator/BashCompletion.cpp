// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Writer.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// What to offer, as the script's function _kilnjet_offer takes it.
QString offer(const Words &words)
{
    switch (words.kind) {
    case Words::Kind::Free:
        return u"nothing"_s;
    case Words::Kind::Files:
        return u"files"_s;
    case Words::Kind::Machines:
        return u"machines"_s;
    case Words::Kind::FilesOrMachines:
        return u"both"_s;
    default:
        return wordList(words).join(u' ');
    }
}

/// The names of the options; those with a value are added to `values`.
QString optionNames(const QString &scope, const QList<Option> &options, QString &values)
{
    QStringList names;
    for (const Option &option : options) {
        for (const QString &name : {QString(option.name), QString(option.letter)}) {
            if (name.isEmpty())
                continue;
            names.append(name);
            if (!option.value.isEmpty())
                values += u"        ['%1%2']='%3'\n"_s.arg(scope, name, offer(option.words));
        }
    }
    return names.join(u' ');
}

constexpr QLatin1StringView
    kHead(R"(# bash completion of kilnjet                                -*- shell-script -*-

# The word without its quotes, in $plain.
_kilnjet_plain()
{
    local word=$1 quote='' char i
    plain=
    for ((i = 0; i < ${#word}; ++i)); do
        char=${word:i:1}
        if [[ $char == "$quote" ]]; then
            quote=
        elif [[ $quote == "'" ]]; then
            plain+=$char
        elif [[ $char == \\ ]]; then
            plain+=${word: ++i:1}
        elif [[ ! $quote && $char == [\'\"] ]]; then
            quote=$char
        else
            plain+=$char
        fi
    done
    [[ $word != \~/* ]] || plain=$HOME${plain:1}
}

# Offers those of the words that begin as $plain does, in any case.
_kilnjet_words()
{
    local word
    for word; do
        [[ ${word,,} != "${plain,,}"* ]] || COMPREPLY+=("$word")
    done
}

_kilnjet_files()
{
    local -a found
    compopt -o filenames 2>/dev/null
    mapfile -t found < <(compgen -f -- "$plain")
    COMPREPLY+=("${found[@]}")
}

_kilnjet_machines()
{
    local -a found
    # Names have blanks, which bash quotes in the names of files.
    compopt -o filenames 2>/dev/null
    mapfile -t found < <("$tool" "${db[@]}" --wait 0 list --names 2>/dev/null)
    _kilnjet_words "${found[@]}"
}

_kilnjet_offer()
{
    local -a list
    case $1 in
    nothing) ;;
    files) _kilnjet_files ;;
    machines) _kilnjet_machines ;;
    both)
        _kilnjet_files
        [[ ${#db[@]} -eq 0 ]] || _kilnjet_machines
        ;;
    *)
        read -ra list <<<"$1"
        _kilnjet_words "${list[@]}"
        ;;
    esac
}

_kilnjet()
{
)");

constexpr QLatin1StringView kTail(R"(
    local plain word name option='' command='' over='' tool words=() db=() count=0 i
    COMPREPLY=()
    _kilnjet_plain "${COMP_WORDS[0]}"
    tool=$plain
    # Bash may take --name=value for three words.
    for ((i = 1; i <= COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        if [[ $word == '=' && ${words[-1]-} == --* && ${words[-1]} != *=* ]]; then
            words[-1]+='='
        elif [[ $i -gt 1 && ${COMP_WORDS[i - 1]} == '=' && ${words[-1]-} == --*= ]]; then
            words[-1]+=$word
        else
            words+=("$word")
        fi
    done
    for ((i = 0; i < ${#words[@]} - 1; ++i)); do
        _kilnjet_plain "${words[i]}"
        if [[ $option ]]; then
            [[ $option != --db ]] || db=(--db "$plain")
            option=
        elif [[ ! $over && $plain == -- ]]; then
            over=1
        elif [[ ! $over && $plain == -?* ]]; then
            [[ $plain != --db=* ]] || db=("$plain")
            [[ ${values[$plain]+x} || ${values[$command/$plain]+x} ]] && option=$plain
        elif [[ ! $command ]]; then
            command=$plain
        else
            count=$((count + 1))
        fi
    done

    word=${words[-1]-}
    if [[ ! $option && ! $over && $word == --*=* ]]; then
        option=${word%%=*}
        name=${word%%=*}=
        word=${word#*=}
    fi
    _kilnjet_plain "$word"
    if [[ $option ]]; then
        _kilnjet_offer "${values[$command/$option]-${values[$option]-nothing}}"
        [[ ! ${name-} || $COMP_WORDBREAKS == *=* ]] || COMPREPLY=("${COMPREPLY[@]/#/$name}")
    elif [[ ! $over && $word == -* ]]; then
        _kilnjet_offer "${options[$command]-} ${options[/]}"
    elif [[ ! $command ]]; then
        _kilnjet_offer "$commands"
    else
        name=${operands[$command/$count]-${operands[$command/more]-nothing}}
        _kilnjet_offer "$name"
    fi
}

complete -F _kilnjet kilnjet
)");

} // namespace

QString bashCompletion()
{
    QString values;
    QString options;
    QString operands;
    options += u"        ['/']='%1'\n"_s.arg(optionNames(QString(), globalOptions(), values));
    for (const Command &command : commandTable()) {
        const QString name = command.name;
        if (!command.options.isEmpty()) {
            options += u"        ['%1']='%2'\n"_s.arg(
                name, optionNames(name + u'/', command.options, values));
        }
        int count = 0;
        for (const Operand &operand : command.operands) {
            const QString place = operand.most > 1 ? u"more"_s : QString::number(count++);
            operands += u"        ['%1/%2']='%3'\n"_s.arg(name, place, offer(operand.words));
        }
    }
    return kHead + u"    local commands='%1'\n"_s.arg(commandNames().join(u' '))
        + u"    local -A options=(\n%1    )\n"_s.arg(options)
        + u"    # What follows an option: of every command, or COMMAND/OPTION.\n"
          "    local -A values=(\n%1    )\n"_s.arg(values)
        + u"    local -A operands=(\n%1    )\n"_s.arg(operands) + kTail;
}

} // namespace Norvane::Kilnjet::Tool
