// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What takes its time shows that at a terminal, and only there.

#include "support/Printers.h"
#include "support/Terminal.h"
#include "support/Tool.h"

#include "ProgressLine.h"

#include <QtTest/QTest>

#include <csignal>

using namespace Qt::StringLiterals;
using Norvane::Kilnjet::Tool::ProgressLine;
using Support::Terminal;
using Support::ToolFolder;

using namespace std::chrono_literals;

class tst_progress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStep_showsHowFarItIs();
    void aStepWithoutAnEnd_showsThatItLasts();
    void aLine_goesWhenItsStepEnds();
    void aLine_makesRoomForMessages();
    void aShortStep_showsNothing();
    void aLongLabel_isCut();
    void whoWaitsForAnotherProcess_showsIt();
    void noProgress_isShownWhereNobodyWantsIt_data();
    void noProgress_isShownWhereNobodyWantsIt();
    void anInterruption_leavesEverythingAsItWas_data();
    void anInterruption_leavesEverythingAsItWas();
};

void tst_progress::aStep_showsHowFarItIs()
{
    Terminal terminal;
    ProgressLine line(terminal.screen(), u"doing it"_s, 0ms);
    line.begin(4);
    QVERIFY(terminal.shows("\rdoing it [                    ]   0 %"));
    line.advance();
    QVERIFY(terminal.shows("\rdoing it [#####               ]  25 %"));
    for (int i = 0; i < 3; ++i)
        line.advance();
    QVERIFY(terminal.shows("\rdoing it [####################] 100 %"));
}

void tst_progress::aStepWithoutAnEnd_showsThatItLasts()
{
    Terminal terminal;
    const ProgressLine line(terminal.screen(), u"doing\nit"_s, 0ms);
    QVERIFY(terminal.shows("\rdoing\\u000ait ... "));
}

void tst_progress::aLine_goesWhenItsStepEnds()
{
    Terminal terminal;
    {
        const ProgressLine line(terminal.screen(), u"x"_s, 0ms);
        QVERIFY(terminal.shows("\rx ... "));
    }
    std::fputs("end", terminal.screen());
    std::fflush(terminal.screen());
    QVERIFY(terminal.shows(" \rend"));
}

void tst_progress::aLine_makesRoomForMessages()
{
    Terminal terminal;
    ProgressLine line(terminal.screen(), u"x"_s, 0ms);
    QVERIFY(terminal.shows("\rx ... "));
    line.clear();
    QVERIFY(terminal.shows("     \r"));
    QVERIFY(terminal.shows("\rx ... "));
}

void tst_progress::aShortStep_showsNothing()
{
    Terminal terminal;
    {
        ProgressLine line(terminal.screen(), u"x"_s, 24h);
        line.begin(1);
        line.advance();
        line.clear();
    }
    std::fputs("end", terminal.screen());
    std::fflush(terminal.screen());
    QVERIFY(terminal.shows("end"));
    QCOMPARE(terminal.seen(), QByteArray("end"));
}

void tst_progress::aLongLabel_isCut()
{
    Terminal terminal;
    terminal.setColumns(40);
    ProgressLine line(terminal.screen(), QString(100, u'機'), 0ms);
    line.begin(1);
    QVERIFY(terminal.shows('\r' + u"機機機機機 [                    ]   0 %"_s.toUtf8()));
}

void tst_progress::whoWaitsForAnotherProcess_showsIt()
{
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s})));
    QFile file(folder.path(u"Printers.tdb"_s));
    Norvane::Database::VDBText holder;
    holder.setKey(QString(), QString());
    QVERIFY(holder.open(&file));
    Terminal terminal;
    QProcess tool;
    terminal.start(tool, folder, {u"--wait=300"_s, u"list"_s});
    QVERIFY(terminal.shows("\rloading Printers.tdb ... "));
    holder.close();
    QVERIFY(tool.waitForFinished(120'000));
    QCOMPARE(tool.exitCode(), 0);
    QVERIFY(tool.readAllStandardOutput().contains("A"));
}

void tst_progress::noProgress_isShownWhereNobodyWantsIt_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("to whom it is too much") << u"--quiet"_s;
    QTest::newRow("to a program") << u"--json"_s;
}

// The wait is longer than the time after which others show something.
void tst_progress::noProgress_isShownWhereNobodyWantsIt()
{
    QFETCH(QString, option);
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s})));
    QFile file(folder.path(u"Printers.tdb"_s));
    Norvane::Database::VDBText holder;
    holder.setKey(QString(), QString());
    QVERIFY(holder.open(&file));
    Terminal terminal;
    QProcess tool;
    terminal.start(tool, folder, {u"--wait=1"_s, option, u"list"_s});
    QVERIFY(tool.waitForFinished(120'000));
    QCOMPARE(tool.exitCode(), 6);
    QVERIFY(terminal.shows("another process holds it"));
    QVERIFY(!terminal.seen().contains("loading"));
}

void tst_progress::anInterruption_leavesEverythingAsItWas_data()
{
    QTest::addColumn<QStringList>("command");
    QTest::newRow("of a backup") << QStringList{u"backup"_s, u"held.tdb"_s};
    QTest::newRow("of a backup that replaces")
        << QStringList{u"backup"_s, u"held.tdb"_s, u"--replace"_s};
    QTest::newRow("of a purge") << QStringList{u"--db=held.tdb"_s, u"purge"_s};
    QTest::newRow("of a restore") << QStringList{u"--db=held.tdb"_s, u"restore"_s,
                                                 u"Printers.tdb"_s};
}

void tst_progress::anInterruption_leavesEverythingAsItWas()
{
#ifdef Q_OS_UNIX
    QFETCH(QStringList, command);
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s})));
    QVERIFY(Support::makeFile(folder.path(u"held.tdb"_s), Support::printers({u"B"_s})));
    const QByteArray database = folder.read(u"Printers.tdb"_s);
    const QByteArray held = folder.read(u"held.tdb"_s);
    QFile file(folder.path(u"held.tdb"_s));
    Norvane::Database::VDBText holder;
    holder.setKey(QString(), QString());
    QVERIFY(holder.open(&file));
    Terminal terminal;
    QProcess tool;
    terminal.start(tool, folder, QStringList{u"--wait=300"_s} + command);
    QVERIFY(terminal.shows("held.tdb ... "));
    QCOMPARE(::kill(pid_t(tool.processId()), SIGINT), 0);
    QVERIFY(tool.waitForFinished(120'000));
    QCOMPARE(tool.exitStatus(), QProcess::CrashExit);
    holder.close();
    QCOMPARE(folder.read(u"Printers.tdb"_s), database);
    QCOMPARE(folder.read(u"held.tdb"_s), held);
    QCOMPARE(QDir(folder.path(u"."_s)).entryList(QDir::Files),
             QStringList({u"held.tdb"_s, u"Printers.tdb"_s}));
#else
    QSKIP("interruptions come another way");
#endif
}

QTEST_GUILESS_MAIN(tst_progress)
#include "tst_progress.moc"
