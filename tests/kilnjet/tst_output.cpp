// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Data on standard output, messages on standard error; what cannot be written is a failure.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::StringLiterals;
using Support::ToolRun;

class tst_output : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void jsonOutput_isJson_data();
    void jsonOutput_isJson();
    void aFullDevice_isAFailure_data();
    void aFullDevice_isAFailure();
    void aClosedPipe_isAQuietFailure();
    void oddFileNames_areEscaped();
    void namesOfAnyScript_areUtf8();
    void aFullDisk_isReportedAndStoresNothing();

private:
    Support::ToolFolder m_folder;
};

void tst_output::initTestCase()
{
    const QJsonArray records{Support::printerJson(u"A"_s), Support::printerJson(u"機械 ١"_s)};
    VERIFY_CODE(m_folder.run({u"import"_s, m_folder.write(u"in.json"_s, records)}), 0);
    VERIFY_CODE(m_folder.run({u"backup"_s, u"copy.tdb"_s}), 0);
}

void tst_output::jsonOutput_isJson_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("import") << QStringList{u"import"_s, u"in.json"_s};
    QTest::newRow("import --dry-run") << QStringList{u"import"_s, u"--dry-run"_s, u"in.json"_s};
    QTest::newRow("list") << QStringList{u"list"_s};
    QTest::newRow("show") << QStringList{u"show"_s, u"A"_s};
    QTest::newRow("export") << QStringList{u"export"_s};
    QTest::newRow("export --output") << QStringList{u"export"_s, u"-o"_s, u"out.json"_s};
    QTest::newRow("rename") << QStringList{u"rename"_s, u"A"_s, u"A"_s};
    QTest::newRow("enums") << QStringList{u"enums"_s};
    QTest::newRow("enums NAME") << QStringList{u"enums"_s, u"Channel"_s};
    QTest::newRow("validate") << QStringList{u"validate"_s, u"in.json"_s, u"Printers.tdb"_s};
    QTest::newRow("verify") << QStringList{u"verify"_s};
    QTest::newRow("backup") << QStringList{u"backup"_s, u"copy.tdb"_s, u"--verify"_s};
    QTest::newRow("restore") << QStringList{u"restore"_s, u"copy.tdb"_s};
    QTest::newRow("purge") << QStringList{u"purge"_s};
    QTest::newRow("reindex") << QStringList{u"reindex"_s};
    QTest::newRow("--version") << QStringList{u"--version"_s};
}

void tst_output::jsonOutput_isJson()
{
    QFETCH(QStringList, arguments);
    const ToolRun run = m_folder.run(arguments + QStringList{u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QJsonParseError error;
    QJsonDocument::fromJson(run.out, &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    // The text for people says the same in other words.
    const ToolRun text = m_folder.run(arguments);
    VERIFY_CODE(text, 0);
    QVERIFY(text.out.endsWith('\n'));
}

void tst_output::aFullDevice_isAFailure_data()
{
    jsonOutput_isJson_data();
    QTest::newRow("--help") << QStringList{u"--help"_s};
}

void tst_output::aFullDevice_isAFailure()
{
#ifndef Q_OS_LINUX
    QSKIP("there is no device that is always full");
#endif
    QFETCH(QStringList, arguments);
    const ToolRun run = m_folder.run(arguments, {}, u"/dev/full"_s);
    VERIFY_CODE(run, 3);
    QVERIFY2(run.messages().startsWith(u"kilnjet: standard output: cannot write: "_s),
             run.err.constData());
}

void tst_output::aClosedPipe_isAQuietFailure()
{
    QProcess tool;
    tool.setWorkingDirectory(m_folder.path(u"."_s));
    QProcess reader;
    tool.setStandardOutputProcess(&reader);
    // The reader is gone before the tool, which waits for its input, writes.
    reader.start(u"true"_s, QStringList());
    tool.start(QStringLiteral(KILNJET_TOOL), {u"validate"_s, u"-"_s});
    QVERIFY(tool.waitForStarted());
    QVERIFY(reader.waitForFinished());
    tool.write("[]");
    tool.closeWriteChannel();
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitStatus(), QProcess::NormalExit);
    QCOMPARE(tool.exitCode(), 3);
    QCOMPARE(tool.readAllStandardError(), QByteArray());
}

void tst_output::oddFileNames_areEscaped()
{
    const QString name = u"a\nb\u001b[2J\u202e.json"_s;
    const ToolRun missing = m_folder.run({u"import"_s, name});
    VERIFY_CODE(missing, 3);
    QVERIFY2(missing.messages().startsWith(u"kilnjet: a\\u000ab\\u001b[2J\\u202e.json: "_s),
             missing.err.constData());
    m_folder.write(name, QByteArray("{"));
    const ToolRun broken = m_folder.run({u"validate"_s, name});
    VERIFY_CODE(broken, 1);
    QVERIFY(!broken.out.contains('\x1b'));
    QCOMPARE(broken.out.count('\n'), 2);
    const ToolRun json = m_folder.run({u"validate"_s, u"--json"_s, name});
    QCOMPARE(json.object()["files"_L1][0]["file"_L1].toString(), name);
}

void tst_output::namesOfAnyScript_areUtf8()
{
    QVERIFY(m_folder.run({u"list"_s}).text().contains(u"\n機械 ١  "_s));
    VERIFY_CODE(m_folder.run({u"show"_s, u"機械 ١"_s}), 0);
    VERIFY_CODE(m_folder.run({u"export"_s, u"-o"_s, u"出力.json"_s}), 0);
    QVERIFY(QFile::exists(m_folder.path(u"出力.json"_s)));
}

// A limit on the size of files is the nearest thing to a full disk that a test can have.
void tst_output::aFullDisk_isReportedAndStoresNothing()
{
#ifdef Q_OS_UNIX
    const QByteArray before = m_folder.read(u"Printers.tdb"_s);
    const QString record = m_folder.write(u"b.json"_s, Support::printerJson(u"B"_s));
    QProcess tool;
    tool.setWorkingDirectory(m_folder.path(u"."_s));
    const rlim_t size = rlim_t(before.size() + 100);
    tool.setChildProcessModifier([size] {
        const rlimit limit{size, size};
        setrlimit(RLIMIT_FSIZE, &limit);
        signal(SIGXFSZ, SIG_IGN);
    });
    tool.start(QStringLiteral(KILNJET_TOOL), {u"--json"_s, u"import"_s, record});
    QVERIFY(tool.waitForFinished());
    QCOMPARE(tool.exitCode(), 3);
    QCOMPARE(tool.readAllStandardOutput(), QByteArray());
    const QJsonObject error =
        QJsonDocument::fromJson(tool.readAllStandardError()).object()["error"_L1].toObject();
    QCOMPARE(error["what"_L1].toString(), u"cannot write the changes"_s);
    QCOMPARE(m_folder.read(u"Printers.tdb"_s), before);
#else
    QSKIP("files cannot be limited in size");
#endif
}

QTEST_GUILESS_MAIN(tst_output)
#include "tst_output.moc"
