// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Writer.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// Text in single quotes.
QString inQuotes(QString text)
{
    return u'\'' + text.replace(u'\\', u"\\\\"_s).replace(u'\'', u"\\'"_s) + u'\'';
}

/// The options of `complete` that offer such a word.
QString offer(const Words &words)
{
    switch (words.kind) {
    case Words::Kind::Free:
        return {};
    case Words::Kind::Files:
        return u" -F"_s;
    case Words::Kind::Machines:
        return u" -k -a '(__kilnjet_machines)'"_s;
    case Words::Kind::FilesOrMachines:
        return u" -F -k -a '(__kilnjet_other_machines)'"_s;
    default:
        return u" -a "_s + inQuotes(wordList(words).join(u' '));
    }
}

QString optionLines(const QString &condition, const QList<Option> &options)
{
    QString text;
    for (const Option &option : options) {
        text += u"complete -c kilnjet"_s + condition + u" -l "_s + option.name.sliced(2);
        if (!option.letter.isEmpty())
            text += u" -s "_s + option.letter.sliced(1);
        if (!option.value.isEmpty())
            text += (option.words.kind == Words::Kind::Files ? u" -r"_s : u" -x"_s)
                + offer(option.words);
        text += u" -d "_s + inQuotes(option.summary) + u'\n';
    }
    return text;
}

constexpr QLatin1StringView kHead(R"(# fish completion of kilnjet

# Prints the command and its operands that stand before the cursor, one a line.
function __kilnjet_operands
    set -l skip ''
    set -l over ''
    for word in (commandline -opc)[2..-1]
        if test -n "$skip"
            set skip ''
        else if test -z "$over" -a "$word" = --
            set over 1
        else if test -z "$over"; and contains -- $word %1
            set skip 1
        else if test -n "$over"; or not string match -q -- '-?*' $word
            echo $word
        end
    end
end

# True behind the command $argv[1], at one of its operands $argv[2..] if there are any.
function __kilnjet_at
    set -l operands (__kilnjet_operands)
    test (count $operands) -gt 0; and test $operands[1] = $argv[1]; or return 1
    test (count $argv) -eq 1; or contains (count $operands) $argv[2..-1]
end

function __kilnjet_db
    set -l words (commandline -opc)
    for i in (seq (count $words))
        if test $words[$i] = --db; and set -q words[(math $i + 1)]
            printf '%s\n' --db $words[(math $i + 1)]
            return
        else if string match -q -- '--db=*' $words[$i]
            echo $words[$i]
            return
        end
    end
    return 1
end

function __kilnjet_machines
    set -l tool (commandline -opc)[1]
    set -l db (__kilnjet_db)
    $tool $db --wait 0 list --names 2>/dev/null
end

function __kilnjet_other_machines
    __kilnjet_db >/dev/null; and __kilnjet_machines
end

complete -c kilnjet -f
)");

} // namespace

QString fishCompletion()
{
    QStringList valued;
    QString commands;
    QString details;
    const auto noteValued = [&valued](const QList<Option> &options) {
        for (const Option &option : options) {
            if (!option.value.isEmpty())
                valued += QStringList{option.name, option.letter};
        }
    };
    noteValued(globalOptions());
    for (const Command &command : commandTable()) {
        noteValued(command.options);
        commands +=
            u"complete -c kilnjet -n 'not count (__kilnjet_operands) >/dev/null' -a %1 -d %2\n"_s
                .arg(command.name, inQuotes(command.summary));
        details += optionLines(u" -n '__kilnjet_at %1'"_s.arg(command.name), command.options);
        int place = 1; // How many words stand before the operand, the command among them.
        for (const Operand &operand : command.operands) {
            QString condition = u"__kilnjet_at "_s + command.name;
            if (operand.most == 1)
                condition += u' ' + QString::number(place++);
            const QString what = offer(operand.words);
            if (!what.isEmpty())
                details += u"complete -c kilnjet -n '%1'%2\n"_s.arg(condition, what);
        }
    }
    valued.removeAll(QString());
    return QString(kHead).arg(valued.join(u' ')) + commands
        + optionLines(QString(), globalOptions()) + details;
}

} // namespace Norvane::Kilnjet::Tool
