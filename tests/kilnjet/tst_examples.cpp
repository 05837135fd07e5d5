// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Every example of the help works as it stands there.

#include "Command.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;
using Support::ToolRun;

class tst_examples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anExample_works_data();
    void anExample_works();

private:
    /// Runs a command line of a shell in `folder`, which has the tool on its path.
    ToolRun shell(const QString &line, const QString &folder) const;

    Support::ToolFolder m_folder;
};

ToolRun tst_examples::shell(const QString &line, const QString &folder) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    const QString tools = QFileInfo(QStringLiteral(KILNJET_TOOL)).absolutePath();
    environment.insert(u"PATH"_s, tools + u':' + environment.value(u"PATH"_s));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder);
    process.start(u"/bin/sh"_s, {u"-c"_s, line});
    process.closeWriteChannel();
    const bool ended = process.waitForFinished(120'000);
    return {ended ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

// What the examples speak of: the files, a stick, and two machines called "Kiln line".
void tst_examples::initTestCase()
{
#ifndef Q_OS_UNIX
    QSKIP("the examples are written for a shell");
#endif
    const QString folder = m_folder.path(u"."_s);
    const ToolRun made =
        shell(u"kilnjet import " CATALOGUE "/*.json"
              "&& kilnjet rename 7d762890 'Kiln line 4'"
              "&& kilnjet rename 7bbc43d7 'Kiln line 5'"
              "&& kilnjet export -o machines.json"
              "&& for name in other plant backup; do cp Printers.tdb $name.tdb; done"
              "&& mkdir stick && kilnjet backup stick"_s,
              folder);
    VERIFY_CODE(made, 0);
}

void tst_examples::anExample_works_data()
{
    QTest::addColumn<QString>("line");
    for (const Tool::Command &command : Tool::commandTable()) {
        for (const Tool::Example &example : command.examples)
            QTest::newRow(example.line.data()) << QString(example.line);
    }
}

void tst_examples::anExample_works()
{
    QFETCH(QString, line);
    // Each begins anew.
    const QString copy = QUuid::createUuid().toString(QUuid::Id128);
    VERIFY_CODE(
        shell(u"mkdir %1 && cp -r *.tdb *.json stick %1"_s.arg(copy), m_folder.path(u"."_s)), 0);
    const ToolRun run = shell(u"kilnjet "_s + QString(line).replace(u"/media/usb"_s, u"stick"_s),
                              m_folder.path(copy));
    // Catalogues that differ are no failure.
    const bool isDifferent = line.contains("diff "_L1) && run.code == 1;
    QVERIFY2(run.code == 0 || isDifferent, qPrintable(run.messages()));
    QVERIFY(!run.out.isEmpty());
}

QTEST_GUILESS_MAIN(tst_examples)
#include "tst_examples.moc"
