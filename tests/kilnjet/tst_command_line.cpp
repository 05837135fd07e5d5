// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The command line: what is understood, and how mistakes are answered.

#include "Command.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet::Tool;
using namespace Qt::StringLiterals;
using Support::ToolRun;

class tst_command_line : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMistake_isExplained_data();
    void aMistake_isExplained();
    void aMistake_isExplainedInJsonToo_data() { aMistake_isExplained_data(); }
    void aMistake_isExplainedInJsonToo();
    void theTable_saysEverythingAboutACommand();
    void help_showsEveryCommand();
    void help_explainsOneCommand_data();
    void help_explainsOneCommand();
    void help_needsNoSoundCommandLine();
    void version_isShown();
    void options_mayStandAnywhere();
    void operands_mayLookLikeOptionsBehindTwoDashes();

private:
    Support::ToolFolder m_folder;
};

void tst_command_line::aMistake_isExplained_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("where");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("hint");
    const auto addRow = [](const char *name, const QString &arguments, const QString &where,
                           const QString &what, const QString &hint = QString()) {
        QTest::newRow(name) << arguments.split(u' ', Qt::SkipEmptyParts) << where << what << hint;
    };
    addRow("nothing", u""_s, u""_s, u"there is no command"_s, u"'kilnjet --help'"_s);
    addRow("an unknown command", u"paint"_s, u"paint"_s, u"there is no such command"_s,
           u"'kilnjet --help'"_s);
    addRow("a misspelt command", u"improt x"_s, u"improt"_s, u"there is no such command"_s,
           u"did you mean 'import'?"_s);
    addRow("a command in capitals", u"LIST"_s, u"LIST"_s, u"there is no such command"_s,
           u"did you mean 'list'?"_s);
    addRow("an unknown option", u"list --colour"_s, u"--colour"_s, u"there is no such option"_s,
           u"'kilnjet list --help'"_s);
    addRow("a misspelt option", u"list --jsno"_s, u"--jsno"_s, u"there is no such option"_s,
           u"did you mean '--json'?"_s);
    addRow("an unknown letter", u"list -x"_s, u"-x"_s, u"there is no such option"_s);
    addRow("another command's option", u"list --output x"_s, u"--output"_s,
           u"there is no such option"_s);
    addRow("a command's option before it", u"--dry-run import x"_s, u"--dry-run"_s,
           u"the option belongs behind its command"_s, u"kilnjet import --dry-run"_s);
    addRow("an option without its value", u"list --db"_s, u"--db"_s, u"the option needs a value"_s);
    addRow("an option twice", u"--db a list --db b"_s, u"--db"_s, u"the option is given twice"_s);
    addRow("a value for an option without one", u"list --json=yes"_s, u"--json"_s,
           u"the option takes no value"_s);
    addRow("an empty database name", u"list --db="_s, u"--db"_s, u"the name is empty"_s);
    addRow("a wait that is no number", u"list --wait=soon"_s, u"--wait"_s,
           u"'soon' is no number of seconds"_s);
    addRow("a wait below zero", u"list --wait=-1"_s, u"--wait"_s, u"is no number of seconds"_s);
    addRow("a wait of years", u"list --wait=99999999999"_s, u"--wait"_s,
           u"is no number of seconds"_s);
    addRow("import without files", u"import"_s, u"import"_s, u"FILE is missing"_s);
    addRow("show without a machine", u"show"_s, u"show"_s, u"ID|NAME is missing"_s);
    addRow("remove without a machine", u"remove"_s, u"remove"_s, u"ID|NAME is missing"_s);
    addRow("rename without a name", u"rename a"_s, u"rename"_s, u"NEW-NAME is missing"_s);
    addRow("validate without files", u"validate"_s, u"validate"_s, u"FILE|DB is missing"_s);
    addRow("too much for list", u"list all"_s, u"list"_s, u"'all' is one operand too many"_s);
    addRow("too much for show", u"show a b"_s, u"show"_s, u"'b' is one operand too many"_s);
    addRow("too much for rename", u"rename a b c"_s, u"rename"_s, u"'c' is one operand too many"_s);
    addRow("too much for enums", u"enums a b"_s, u"enums"_s, u"'b' is one operand too many"_s);
    addRow("too much for verify", u"verify a b"_s, u"verify"_s, u"'b' is one operand too many"_s);
    addRow("import of the input twice", u"import - -"_s, u"import"_s, u"can be read only once"_s);
    addRow("validation of the input twice", u"validate - x -"_s, u"validate"_s,
           u"can be read only once"_s);
    addRow("a database named twice", u"--db a verify b"_s, u"verify"_s, u"is named twice"_s);
    addRow("help for an unknown command", u"help lst"_s, u"lst"_s, u"there is no such command"_s,
           u"did you mean 'list'?"_s);
}

void tst_command_line::aMistake_isExplained()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, where);
    QFETCH(QString, what);
    QFETCH(QString, hint);
    const ToolRun run = m_folder.run(arguments);
    VERIFY_CODE(run, 2);
    QCOMPARE(run.out, QByteArray());
    QVERIFY2(run.messages().startsWith(u"kilnjet: "_s + where), run.err.constData());
    QVERIFY2(run.messages().contains(what), run.err.constData());
    QVERIFY2(run.messages().contains(hint), run.err.constData());
    QCOMPARE(run.messages().count(u'\n'), 1);
}

void tst_command_line::aMistake_isExplainedInJsonToo()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, where);
    QFETCH(QString, what);
    QFETCH(QString, hint);
    const ToolRun run = m_folder.run(QStringList{u"--json"_s} + arguments);
    VERIFY_CODE(run, 2);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.error()["code"_L1].toInt(), 2);
    QCOMPARE(run.error()["where"_L1].toString(), where);
    QVERIFY2(run.error()["what"_L1].toString().contains(what), run.err.constData());
    QVERIFY2(run.error()["hint"_L1].toString().contains(hint), run.err.constData());
}

void tst_command_line::theTable_saysEverythingAboutACommand()
{
    QSet<QString> names;
    for (const Command &command : commandTable()) {
        const char *const name = command.name.data();
        QVERIFY2(!names.contains(command.name), name);
        names.insert(command.name);
        QVERIFY2(command.run != nullptr, name);
        QVERIFY2(!command.summary.isEmpty() && !command.summary.endsWith("."_L1), name);
        QVERIFY2(command.examples.size() >= 2, name);
        for (const Operand &operand : command.operands)
            QVERIFY2(!operand.summary.isEmpty() && operand.least <= operand.most, name);
        for (const Option &option : command.options) {
            QVERIFY2(option.name.startsWith("--"_L1) && !option.summary.isEmpty(), name);
            for (const Option &global : globalOptions())
                QVERIFY2(option.name != global.name, name);
        }
    }
    QCOMPARE(exitCodeTable().size(), 7);
}

void tst_command_line::help_showsEveryCommand()
{
    for (const QStringList &arguments : {QStringList{u"--help"_s}, {u"-h"_s}, {u"help"_s}}) {
        const ToolRun run = m_folder.run(arguments);
        VERIFY_CODE(run, 0);
        QCOMPARE(run.err, QByteArray());
        for (const Command &command : commandTable())
            QVERIFY2(run.text().contains(command.summary), run.out.constData());
        for (const Option &option : globalOptions())
            QVERIFY2(run.text().contains(option.name), run.out.constData());
    }
}

void tst_command_line::help_explainsOneCommand_data()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < commandTable().size(); ++i)
        QTest::newRow(commandTable().at(i).name.data()) << i;
}

void tst_command_line::help_explainsOneCommand()
{
    QFETCH(int, index);
    const Command &command = commandTable().at(index);
    const ToolRun run = m_folder.run({u"help"_s, command.name});
    VERIFY_CODE(run, 0);
    QCOMPARE(m_folder.run({command.name, u"--help"_s}).out, run.out);
    QVERIFY(run.text().startsWith(command.summary));
    for (const Example &example : command.examples)
        QVERIFY2(run.text().contains(u"  kilnjet "_s + example.line + u'\n'), run.out.constData());
    for (const Option &option : command.options)
        QVERIFY2(run.text().contains(option.name), run.out.constData());
    for (const QString &line : run.text().split(u'\n'))
        QVERIFY2(line.size() <= 80, qPrintable(line));
}

void tst_command_line::help_needsNoSoundCommandLine()
{
    VERIFY_CODE(m_folder.run({u"rename"_s, u"-h"_s}), 0);
    VERIFY_CODE(m_folder.run({u"list"_s, u"too"_s, u"many"_s, u"--help"_s}), 0);
}

void tst_command_line::version_isShown()
{
    const ToolRun text = m_folder.run({u"--version"_s});
    VERIFY_CODE(text, 0);
    QVERIFY(text.text().startsWith(u"kilnjet 2."_s));
    const ToolRun json = m_folder.run({u"--version"_s, u"--json"_s});
    VERIFY_CODE(json, 0);
    QCOMPARE(u"kilnjet "_s + json.object()["version"_L1].toString() + u'\n', text.text());
}

void tst_command_line::options_mayStandAnywhere()
{
    const QByteArray expected = m_folder.run({u"--json"_s, u"enums"_s, u"Bool"_s}).out;
    QVERIFY(expected.contains("\"True\""));
    QCOMPARE(m_folder.run({u"enums"_s, u"--json"_s, u"Bool"_s}).out, expected);
    QCOMPARE(m_folder.run({u"enums"_s, u"Bool"_s, u"--json"_s, u"--db=x"_s}).out, expected);
    QCOMPARE(m_folder.run({u"--db"_s, u"x"_s, u"enums"_s, u"--json"_s, u"--"_s, u"Bool"_s}).out,
             expected);
}

void tst_command_line::operands_mayLookLikeOptionsBehindTwoDashes()
{
    const ToolRun run = m_folder.run({u"enums"_s, u"--"_s, u"--json"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.messages().startsWith(u"kilnjet: --json: there is no such enumeration"_s),
             run.err.constData());
}

QTEST_GUILESS_MAIN(tst_command_line)
#include "tst_command_line.moc"
