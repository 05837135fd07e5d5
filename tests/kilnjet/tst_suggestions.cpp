// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// A slip of a finger is answered by what was probably meant, wherever it happens.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_suggestions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aSlip_isAnswered_data();
    void aSlip_isAnswered();

private:
    Support::ToolFolder m_folder;
};

void tst_suggestions::initTestCase()
{
    const QString file = m_folder.write(u"machines.json"_s, printerJson(u"Line"_s));
    VERIFY_CODE(m_folder.run({u"import"_s, file}), 0);
    QVERIFY(QDir(m_folder.path(u"."_s)).mkdir(u"stick"_s));
    VERIFY_CODE(m_folder.run({u"backup"_s, u"stick"_s}), 0);
}

void tst_suggestions::aSlip_isAnswered_data()
{
    QTest::addColumn<QString>("meant");
    const auto addRow = [](const char *line, const QString &meant) {
        QTest::newRow(line) << meant;
    };
    addRow("lsit", u"list"_s);
    addRow("help exprot", u"export"_s);
    addRow("list --jsn", u"--json"_s);
    addRow("query --chanel Cyan", u"--channel"_s);
    addRow("query --channel Cian", u"Cyan"_s);
    addRow("query --class Inkjt", u"Inkjet"_s);
    addRow("query --elaboration BilevelStandrad", u"BilevelStandard"_s);
    addRow("query --levels Binry", u"Binary"_s);
    addRow("enums PrinterClas", u"PrinterClass"_s);
    addRow("enums Chan", u"Channel"_s);
    addRow("val", u"validate"_s);
    addRow("show Lien", u"Line"_s);
    addRow("remove Lin", u"Line"_s);
    addRow("export Lines", u"Line"_s);
    addRow("import machine.json", u"machines.json"_s);
    addRow("validate ./machines.jsn", u"./machines.json"_s);
    addRow("--db Printer.tdb list", u"Printers.tdb"_s);
    addRow("verify printers.tdb", u"Printers.tdb"_s);
    addRow("diff Printers.tdb machine.json", u"machines.json"_s);
    addRow("restore stick/Printer.tdb", u"stick/Printers.tdb"_s);
    addRow("recover Printers.tbd rescued.tdb", u"Printers.tdb"_s);
    addRow("--key-file machine.json list", u"machines.json"_s);
}

void tst_suggestions::aSlip_isAnswered()
{
    QFETCH(QString, meant);
    const QString line = QString::fromLatin1(QTest::currentDataTag());
    const ToolRun run = m_folder.run(line.split(u' '));
    QVERIFY(run.code != 0);
    QVERIFY2(run.messages().contains(u"; hint: did you mean '%1'?"_s.arg(meant)),
             run.err.constData());
}

QTEST_GUILESS_MAIN(tst_suggestions)
#include "tst_suggestions.moc"
