// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What the shells offer on a command line: each is asked itself.

#include "Command.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <vcore/VEnumRegistry.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Support::printerJson;

class tst_completion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void theShells_readTheirFiles_data();
    void theShells_readTheirFiles();
    void aShell_offers_data();
    void aShell_offers();
    void everyOption_isOffered_data() { addShells(); }
    void everyOption_isOffered();
    void everyCommand_isOffered_data() { addShells(); }
    void everyCommand_isOffered();
    void bash_takesQuotesAndEqualsSigns_data();
    void bash_takesQuotesAndEqualsSigns();

private:
    static void addShells();
    QString run(const QString &program, const QStringList &arguments) const;
    /// What the shell offers for the last of the words, in alphabetical order.
    QStringList offered(const QString &shell, const QStringList &words) const;
    QStringList bash(const QStringList &words) const;
    QStringList fish(const QStringList &words) const;
    QStringList zsh(const QStringList &words) const;

    Support::ToolFolder m_folder;
};

namespace {

const QString kBash = QStringLiteral(EXTRAS "/bash/kilnjet");
const QString kFish = QStringLiteral(EXTRAS "/fish/kilnjet.fish");
const QString kZsh = QStringLiteral(EXTRAS "/zsh/_kilnjet");

} // namespace

void tst_completion::addShells()
{
    QTest::addColumn<QString>("shell");
    for (const char *shell : {"bash", "fish", "zsh"})
        QTest::newRow(shell) << QString::fromLatin1(shell);
}

void tst_completion::initTestCase()
{
    QVERIFY(QDir(m_folder.path(u"."_s)).mkdir(u"home"_s));
    const QJsonArray records{printerJson(u"Kiln line 4"_s), printerJson(u"Kiln line 5"_s),
                             printerJson(u"Proof"_s)};
    VERIFY_CODE(m_folder.run({u"import"_s, m_folder.write(u"machines.json"_s, records)}), 0);
    const QString other = m_folder.write(u"other.json"_s, printerJson(u"Other"_s));
    VERIFY_CODE(m_folder.run({u"--db"_s, u"an other.tdb"_s, u"import"_s, other}), 0);
}

QString tst_completion::run(const QString &program, const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString tools = QFileInfo(QStringLiteral(KILNJET_TOOL)).absolutePath();
    environment.insert(u"PATH"_s, tools + u":/usr/bin:/bin"_s);
    for (const auto &name : {u"HOME"_s, u"XDG_CONFIG_HOME"_s, u"XDG_DATA_HOME"_s, u"ZDOTDIR"_s})
        environment.insert(name, m_folder.path(u"home"_s));
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s);
    environment.insert(u"TERM"_s, u"dumb"_s);
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder.path(u"."_s));
    process.start(program, arguments);
    process.closeWriteChannel();
    if (!process.waitForStarted())
        return program + u" does not start: install it, or run ./dev test, which does"_s;
    if (!process.waitForFinished(120'000) || process.exitCode() != 0)
        return u"%1 failed: "_s.arg(program) + QString::fromUtf8(process.readAllStandardError());
    return QString::fromUtf8(process.readAllStandardOutput() + process.readAllStandardError());
}

QStringList tst_completion::bash(const QStringList &words) const
{
    const QString script = u"source \"$1\"; shift; COMP_WORDS=(kilnjet \"$@\"); COMP_CWORD=$#;"
                           "_kilnjet; [[ ${#COMPREPLY[@]} -eq 0 ]] || printf '%s\\n' "
                           "\"${COMPREPLY[@]}\""_s;
    return run(u"/bin/bash"_s, QStringList{u"--norc"_s, u"-c"_s, script, u"bash"_s, kBash} + words)
        .split(u'\n', Qt::SkipEmptyParts);
}

QStringList tst_completion::fish(const QStringList &words) const
{
    QStringList quoted{u"kilnjet"_s};
    for (QString word : words)
        quoted.append(word.replace(u' ', u"\\ "_s));
    const QString script =
        u"source $argv[1]; complete -C \"$argv[2]\" | string split -f 1 \\t; true"_s;
    return run(u"/usr/bin/fish"_s, {u"--no-config"_s, u"-c"_s, script, kFish, quoted.join(u' ')})
        .split(u'\n', Qt::SkipEmptyParts);
}

QStringList tst_completion::zsh(const QStringList &words) const
{
    QStringList quoted{u"kilnjet"_s};
    for (QString word : words)
        quoted.append(word.replace(u' ', u"\\ "_s));
    const QStringList list =
        run(u"/usr/bin/zsh"_s, {u"-f"_s, QStringLiteral(COMPLETE_ZSH), kZsh, quoted.join(u' ')})
            .split(u'\n', Qt::SkipEmptyParts);
    // Where nothing else fits, it offers options.
    return words.last().startsWith(u'-') ? list : list.filter(QRegularExpression(u"^[^-]"_s));
}

QStringList tst_completion::offered(const QString &shell, const QStringList &words) const
{
    QStringList list = shell == "bash"_L1 ? bash(words)
        : shell == "fish"_L1              ? fish(words)
                                          : zsh(words);
    list.removeDuplicates();
    list.sort();
    return list;
}

void tst_completion::theShells_readTheirFiles_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("file");
    QTest::newRow("bash") << u"/bin/bash"_s << kBash;
    QTest::newRow("fish") << u"/usr/bin/fish"_s << kFish;
    QTest::newRow("zsh") << u"/usr/bin/zsh"_s << kZsh;
}

void tst_completion::theShells_readTheirFiles()
{
    QFETCH(QString, program);
    QFETCH(QString, file);
    QCOMPARE(run(program, {u"-n"_s, file}), QString());
}

void tst_completion::aShell_offers_data()
{
    QTest::addColumn<QString>("shell");
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("expected");
    const auto addRows = [](const char *name, const QStringList &words,
                            const QStringList &expected) {
        for (const char *shell : {"bash", "fish", "zsh"})
            QTest::addRow("%s: %s", shell, name) << QString::fromLatin1(shell) << words << expected;
    };
    const QString old = u"an other.tdb"_s;
    const QStringList machines{u"Kiln line 4"_s, u"Kiln line 5"_s, u"Proof"_s};
    addRows("a command", {u"im"_s}, {u"import"_s});
    addRows("a command behind options", {u"--json"_s, u"--db"_s, old, u"re"_s},
            {u"recover"_s, u"reindex"_s, u"remove"_s, u"rename"_s, u"restore"_s});
    addRows("an option of a command", {u"import"_s, u"--dr"_s}, {u"--dry-run"_s});
    addRows("an option of all commands", {u"import"_s, u"x"_s, u"--js"_s}, {u"--json"_s});
    addRows("no option of another command", {u"list"_s, u"--dr"_s}, {});
    addRows("a value in any case", {u"query"_s, u"--class"_s, u"ink"_s}, {u"Inkjet"_s});
    addRows("yes and no", {u"query"_s, u"--experimental"_s, u""_s}, {u"no"_s, u"yes"_s});
    addRows("a language", {u"list"_s, u"--lang"_s, u"i"_s}, {u"it"_s});
    addRows("an enumeration", {u"enums"_s, u"PrinterC"_s}, {u"PrinterClass"_s});
    addRows("a command to explain", {u"help"_s, u"rest"_s}, {u"restore"_s});
    addRows("machines", {u"show"_s, u""_s}, machines);
    addRows("a machine", {u"show"_s, u"Kiln\u0020line\u0020"_s}, machines.first(2));
    addRows("machines of another database", {u"--db"_s, old, u"remove"_s, u""_s}, {u"Other"_s});
    addRows("a second machine", {u"remove"_s, u"Proof"_s, u"P"_s}, {u"Proof"_s});
    addRows("no new name", {u"rename"_s, u"Proof"_s, u""_s}, {});
    addRows("no number", {u"list"_s, u"--wait"_s, u""_s}, {});
    addRows("nothing behind the last operand", {u"show"_s, u"Proof"_s, u""_s}, {});
    addRows("a file", {u"import"_s, u"mach"_s}, {u"machines.json"_s});
    addRows("a file for an option", {u"--key-file"_s, u"mach"_s}, {u"machines.json"_s});
    addRows("machines to compare", {u"--db"_s, u"Printers.tdb"_s, u"diff"_s, u"Proo"_s},
            {u"Proof"_s});
    addRows("no machine without a database", {u"--db=none"_s, u"show"_s, u""_s}, {});
}

void tst_completion::aShell_offers()
{
    QFETCH(QString, shell);
    QFETCH(QStringList, words);
    QFETCH(QStringList, expected);
    QCOMPARE(offered(shell, words), expected);
    QVERIFY(!QFile::exists(m_folder.path(u"none"_s)));
}

void tst_completion::everyCommand_isOffered()
{
    QFETCH(QString, shell);
    QStringList names = Tool::commandNames();
    names.sort();
    QCOMPARE(offered(shell, {u""_s}), names);
}

void tst_completion::everyOption_isOffered()
{
    QFETCH(QString, shell);
    for (const Tool::Command &command : Tool::commandTable()) {
        const QStringList found = offered(shell, {command.name, u"--"_s});
        for (const Tool::Option &option : command.options + Tool::globalOptions())
            QVERIFY2(found.contains(option.name), qPrintable(command.name + found.join(u' ')));
        QCOMPARE(found.filter(QRegularExpression(u"^--"_s)).size(),
                 command.options.size() + Tool::globalOptions().size());
    }
}

void tst_completion::bash_takesQuotesAndEqualsSigns_data()
{
    QTest::addColumn<QStringList>("words");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("--name=value") << QStringList{u"query"_s, u"--class"_s, u"="_s, u"ink"_s}
                                  << QStringList{u"Inkjet"_s};
    QTest::newRow("--name=") << QStringList{u"query"_s, u"--experimental"_s, u"="_s}
                             << QStringList{u"yes"_s, u"no"_s};
    QTest::newRow("--db= before a machine")
        << QStringList{u"--db"_s, u"="_s, u"'an other.tdb'"_s, u"show"_s, u""_s}
        << QStringList{u"Other"_s};
    QTest::newRow("backslashes") << QStringList{u"--db"_s, u"an\\ other.tdb"_s, u"show"_s, u""_s}
                                 << QStringList{u"Other"_s};
    QTest::newRow("a quote that is open")
        << QStringList{u"show"_s, u"\"Kiln line 4"_s} << QStringList{u"Kiln line 4"_s};
    QTest::newRow("behind two dashes")
        << QStringList{u"show"_s, u"--"_s, u"Pr"_s} << QStringList{u"Proof"_s};
    QTest::newRow("no options behind two dashes")
        << QStringList{u"show"_s, u"--"_s, u"--"_s} << QStringList{};
}

void tst_completion::bash_takesQuotesAndEqualsSigns()
{
    QFETCH(QStringList, words);
    QFETCH(QStringList, expected);
    QCOMPARE(bash(words), expected);
}

QTEST_GUILESS_MAIN(tst_completion)
#include "tst_completion.moc"
