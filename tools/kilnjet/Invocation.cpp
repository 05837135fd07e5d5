// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Invocation.h"

#include "Nearest.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// The arguments, read from the front.
class Parser
{
public:
    explicit Parser(const QStringList &arguments)
        : m_arguments(arguments)
    { }

    Invocation parse();

private:
    [[noreturn]] void fail(const QString &where, const QString &what,
                           QString hint = QString()) const;
    void readOption(const QString &argument);
    void readOperand(const QString &argument);
    const Option &findOption(const QString &name) const;
    QStringList optionNames() const;
    void checkOperands() const;

    QStringList m_arguments;
    qsizetype m_next = 0;
    Invocation m_invocation;
};

Invocation Parser::parse()
{
    // The command decides which options there are, so it is found first.
    bool optionsOver = false;
    QStringList operands;
    while (m_next < m_arguments.size()) {
        const QString argument = m_arguments.at(m_next++);
        if (optionsOver || argument == "-"_L1 || !argument.startsWith(u'-'))
            readOperand(argument);
        else if (argument == "--"_L1)
            optionsOver = true;
        else
            readOption(argument);
    }
    if (!m_invocation.has("--help"_L1) && !m_invocation.has("--version"_L1))
        checkOperands();
    return m_invocation;
}

void Parser::fail(const QString &where, const QString &what, QString hint) const
{
    if (hint.isEmpty()) {
        hint = m_invocation.command == nullptr
            ? u"'kilnjet --help' lists the commands"_s
            : u"'kilnjet %1 --help' shows its use"_s.arg(m_invocation.command->name);
    }
    throw Failure{.code = ExitCode::Usage, .where = where, .what = what, .hint = hint};
}

void Parser::readOption(const QString &argument)
{
    const qsizetype equals = argument.indexOf(u'=');
    const Option &option = findOption(argument.left(equals));
    const QString name = option.name;
    const bool isSingle = !option.value.isEmpty() && option.times == Option::Times::Once;
    if (isSingle && m_invocation.options.contains(name))
        fail(name, u"the option is given twice"_s);
    QStringList &values = m_invocation.options[name];
    if (option.value.isEmpty()) {
        if (equals >= 0)
            fail(name, u"the option takes no value"_s);
        values.append(QString());
    } else if (equals >= 0) {
        values.append(argument.sliced(equals + 1));
    } else if (m_next < m_arguments.size()) {
        values.append(m_arguments.at(m_next++));
    } else {
        fail(name, u"the option needs a value: %1 %2"_s.arg(name, option.value));
    }
}

void Parser::readOperand(const QString &argument)
{
    if (m_invocation.command != nullptr) {
        m_invocation.operands.append(argument);
        return;
    }
    m_invocation.command = findCommand(argument);
    if (m_invocation.command == nullptr)
        fail(argument, u"there is no such command"_s, suggestion(argument, commandNames()));
}

const Option &Parser::findOption(const QString &name) const
{
    const auto find = [&name](const QList<Option> &options) -> const Option * {
        for (const Option &option : options) {
            if (name == option.name || (!option.letter.isEmpty() && name == option.letter))
                return &option;
        }
        return nullptr;
    };
    if (m_invocation.command != nullptr) {
        if (const Option *option = find(m_invocation.command->options))
            return *option;
    }
    if (const Option *option = find(globalOptions()))
        return *option;
    for (const Command &command : commandTable()) {
        if (m_invocation.command == nullptr && find(command.options) != nullptr)
            fail(name, u"the option belongs behind its command"_s,
                 u"kilnjet %1 %2"_s.arg(command.name, name));
    }
    fail(name, u"there is no such option"_s, suggestion(name, optionNames()));
}

QStringList Parser::optionNames() const
{
    QStringList names;
    for (const Option &option : globalOptions())
        names.append(option.name);
    if (m_invocation.command != nullptr) {
        for (const Option &option : m_invocation.command->options)
            names.append(option.name);
    }
    return names;
}

void Parser::checkOperands() const
{
    if (m_invocation.command == nullptr)
        fail(QString(), u"there is no command"_s);
    qsizetype least = 0;
    qsizetype most = 0;
    for (const Operand &operand : m_invocation.command->operands) {
        if (m_invocation.operands.size() < least + operand.least)
            fail(m_invocation.command->name, u"%1 is missing"_s.arg(operand.name));
        least += operand.least;
        most += operand.most;
    }
    if (m_invocation.operands.size() > most) {
        const QString first = m_invocation.operands.at(most);
        fail(m_invocation.command->name, u"%1 is one operand too many"_s.arg(quoted(first)));
    }
}

} // namespace

Invocation parseArguments(const QStringList &arguments)
{
    return Parser(arguments).parse();
}

void refuseRepeatedInput(const Invocation &invocation)
{
    if (invocation.operands.count("-"_L1) > 1) {
        throw Failure{.code = ExitCode::Usage,
                      .where = invocation.command->name,
                      .what = u"the standard input can be read only once"_s};
    }
}

bool asksForJson(const QStringList &arguments)
{
    const qsizetype end = arguments.indexOf("--"_L1);
    return arguments.first(end < 0 ? arguments.size() : end).contains("--json"_L1);
}

} // namespace Norvane::Kilnjet::Tool
