// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Ctrl-C at any moment leaves what was there before, or what the command makes, nothing between.

#include "support/RecordJson.h"
#include "support/Tool.h"
#include "support/Torture.h"

#include <QtTest/QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolFolder;
using Support::ToolRun;

class tst_interrupt : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void ctrlC_leavesTheOldOrTheNew_data();
    void ctrlC_leavesTheOldOrTheNew();

private:
    void prepare(const ToolFolder &folder) const;

    QMap<QString, QByteArray> m_files;
};

namespace {

QStringList filesIn(const ToolFolder &folder)
{
    return QDir(folder.path(u"."_s)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

/// The machines in each database, as a reader sees them, and every other file.
QMap<QString, QByteArray> contentOf(const ToolFolder &folder)
{
    QMap<QString, QByteArray> content;
    for (const QString &name : filesIn(folder)) {
        const bool isDatabase = name.endsWith(".tdb"_L1);
        content.insert(
            name, isDatabase ? folder.run({u"--db"_s, name, u"export"_s}).out : folder.read(name));
    }
    return content;
}

/// What a killed run may leave beside a file: its successor, not complete yet.
bool isUnfinished(const QString &name)
{
    static const QRegularExpression form(u"\\.(tdb|json)\\.([0-9a-f]{32}|new)$"_s);
    return form.match(name).hasMatch();
}

/// Runs the tool and interrupts it after that time: its exit code, or the number of the signal that
/// ended it, negated.
int interrupt(const ToolFolder &folder, const QStringList &arguments, int milliseconds)
{
    QProcess tool;
    tool.setWorkingDirectory(folder.path(u"."_s));
    // Background jobs of a shell are born without it.
    tool.setChildProcessModifier([] { std::signal(SIGINT, SIG_DFL); });
    tool.start(QStringLiteral(KILNJET_TOOL), arguments);
    tool.waitForStarted();
    if (!tool.waitForFinished(milliseconds))
        ::kill(pid_t(tool.processId()), SIGINT);
    tool.waitForFinished();
    return tool.exitStatus() == QProcess::CrashExit ? -tool.exitCode() : tool.exitCode();
}

} // namespace

void tst_interrupt::initTestCase()
{
    QJsonArray old;
    QJsonArray more;
    for (int i = 0; i < 100; ++i)
        (i < 80 ? old : more).append(printerJson(u"Line %1"_s.arg(i)));
    const ToolFolder folder;
    folder.write(u"more.json"_s, more);
    VERIFY_CODE(folder.run({u"import"_s, folder.write(u"old.json"_s, old)}), 0);
    VERIFY_CODE(folder.run({u"backup"_s, u"copy.tdb"_s}), 0);
    VERIFY_CODE(folder.run({u"--db"_s, u"copy.tdb"_s, u"import"_s, u"more.json"_s}), 0);
    VERIFY_CODE(folder.run({u"rename"_s, u"Line 7"_s, u"Line 8"_s}), 0);
    VERIFY_CODE(folder.run({u"export"_s, u"Line 9"_s, u"-o"_s, u"out.json"_s}), 0);
    for (const QString &name : filesIn(folder))
        m_files.insert(name, folder.read(name));
}

void tst_interrupt::prepare(const ToolFolder &folder) const
{
    for (auto file = m_files.begin(); file != m_files.end(); ++file)
        folder.write(file.key(), file.value());
}

void tst_interrupt::ctrlC_leavesTheOldOrTheNew_data()
{
    QTest::addColumn<QStringList>("arguments");
    const auto addRow = [](const char *line) {
        QTest::newRow(line) << QString::fromLatin1(line).split(u' ');
    };
    addRow("import more.json");
    addRow("--db fresh.tdb import more.json");
    addRow("remove 0000");
    addRow("export -o out.json");
    addRow("backup new.tdb --verify");
    addRow("backup copy.tdb");
    addRow("backup copy.tdb --replace");
    addRow("restore copy.tdb");
    addRow("purge");
    addRow("recover copy.tdb rescued.tdb");
}

void tst_interrupt::ctrlC_leavesTheOldOrTheNew()
{
    QFETCH(QStringList, arguments);
    const ToolFolder whole;
    prepare(whole);
    if (arguments.first() == "remove"_L1) {
        const QString id = whole.run({u"list"_s, u"--json"_s}).array()[0]["id"_L1].toString();
        arguments.last() = id;
    }
    const QMap<QString, QByteArray> before = contentOf(whole);
    QElapsedTimer timer;
    timer.start();
    VERIFY_CODE(whole.run(arguments), 0);
    const qint64 duration = timer.elapsed();
    const QMap<QString, QByteArray> after = contentOf(whole);
    QVERIFY(before != after || arguments.contains(u"purge"_s));

    const int moments = Support::rounds(4, 40);
    for (int moment = 0; moment < moments; ++moment) {
        const ToolFolder folder;
        prepare(folder);
        const int end = interrupt(folder, arguments, int(duration * moment / moments));
        // A shell stops a loop over commands only when the signal is what has ended one.
        QVERIFY2(end == 0 || end == -SIGINT, qPrintable(QString::number(end)));
        const QMap<QString, QByteArray> found = contentOf(folder);
        for (auto file = found.begin(); file != found.end(); ++file) {
            if (isUnfinished(file.key()))
                continue;
            const bool isOld =
                file.value() == before.value(file.key()) && before.contains(file.key());
            const bool isNew =
                file.value() == after.value(file.key()) && after.contains(file.key());
            // A new database without its first batch is what a reader calls empty.
            const bool isEmpty = !before.contains(file.key())
                && file.value() != after.value(file.key()) && file.value().trimmed().size() <= 3
                && end != 0;
            QVERIFY2(isOld || isNew || isEmpty,
                     qPrintable(u"moment %1: "_s.arg(moment) + file.key()));
        }
        for (const QString &name : before.keys())
            QVERIFY2(found.contains(name), qPrintable(name));
        // What is left behind is in nobody's way.
        const ToolRun again = folder.run(arguments);
        QVERIFY2(again.code == 0 || QFile::exists(folder.path(u"rescued.tdb"_s))
                     || arguments.first() == "remove"_L1,
                 again.err.constData());
    }
}

QTEST_GUILESS_MAIN(tst_interrupt)
#include "tst_interrupt.moc"
