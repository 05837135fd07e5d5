// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// show: one machine, found by its id, the first digits of its id, or its name.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_show : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aMachine_isFound_data();
    void aMachine_isFound();
    void whatIsNoMachine_isAnswered_data();
    void whatIsNoMachine_isAnswered();
    void json_isTheRecordUnderItsId();
    void theSheet_saysEverything();
    void theSheet_showsAllSamples();

private:
    Support::ToolFolder m_folder;
};

void tst_show::initTestCase()
{
    QJsonArray records{printerJson(u"Kiln line 4"_s), printerJson(u"Kiln line 5"_s),
                       printerJson(u"Ofen"_s), printerJson(u"OFEN"_s)};
    // The same name twice.
    records.append(Support::with(printerJson(u"Twin"_s), u"/name"_s, u"Kiln line 5"_s));
    // A name that looks like the first digits of an id.
    const QString digits = Support::idOfPrinterJson(u"Ofen"_s).mid(1, 6);
    records.append(Support::with(printerJson(u"Digits"_s), u"/name"_s, digits));
    VERIFY_CODE(m_folder.run({u"import"_s, m_folder.write(u"in.json"_s, records)}), 0);
}

void tst_show::aMachine_isFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("machine");
    const QString id = Support::idOfPrinterJson(u"Kiln line 4"_s);
    QTest::newRow("its id") << id << u"Kiln line 4"_s;
    QTest::newRow("its id without braces") << id.mid(1, 36) << u"Kiln line 4"_s;
    QTest::newRow("its id in capitals") << id.toUpper() << u"Kiln line 4"_s;
    QTest::newRow("the first digits of its id") << id.mid(1, 8) << u"Kiln line 4"_s;
    QTest::newRow("digits behind a brace") << id.left(9) << u"Kiln line 4"_s;
    QTest::newRow("digits across a dash") << id.mid(1, 12) << u"Kiln line 4"_s;
    QTest::newRow("its name") << u"Kiln line 4"_s << u"Kiln line 4"_s;
    QTest::newRow("its name in another case") << u"KILN LINE 4"_s << u"Kiln line 4"_s;
    QTest::newRow("the exact name before others") << u"OFEN"_s << u"OFEN"_s;
    QTest::newRow("a name before an id")
        << Support::idOfPrinterJson(u"Ofen"_s).mid(1, 6) << u"Digits"_s;
}

void tst_show::aMachine_isFound()
{
    QFETCH(QString, text);
    QFETCH(QString, machine);
    const ToolRun run = m_folder.run({u"show"_s, u"--json"_s, text});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.object()["id"_L1].toString(), Support::idOfPrinterJson(machine));
}

void tst_show::whatIsNoMachine_isAnswered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("hint");
    QTest::newRow("an unknown name")
        << u"Press"_s << u"there is no such machine"_s << u"'kilnjet list' shows the machines"_s;
    QTest::newRow("a misspelt name")
        << u"Klin line 4"_s << u"there is no such machine"_s << u"did you mean 'Kiln line 4'?"_s;
    QTest::newRow("a part of a name")
        << u"line 4"_s << u"there is no such machine"_s << u"did you mean 'Kiln line 4'?"_s;
    QTest::newRow("an empty name") << u""_s << u"there is no such machine"_s << QString();
    QTest::newRow("an unknown id") << u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s
                                   << u"there is no such machine"_s << QString();
    QTest::newRow("three digits of an id") << Support::idOfPrinterJson(u"Kiln line 4"_s).mid(1, 3)
                                           << u"there is no such machine"_s << QString();
    QTest::newRow("a name that fits two")
        << u"ofen"_s << u"this fits 2 machines"_s << u"use the id"_s;
    QTest::newRow("a name that two have")
        << u"Kiln line 5"_s << u"this fits 2 machines"_s << u"use the id"_s;
}

void tst_show::whatIsNoMachine_isAnswered()
{
    QFETCH(QString, text);
    QFETCH(QString, what);
    QFETCH(QString, hint);
    const ToolRun run = m_folder.run({u"show"_s, u"--json"_s, text});
    VERIFY_CODE(run, 1);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.error()["code"_L1].toInt(), 1);
    QCOMPARE(run.error()["where"_L1].toString(), text);
    QCOMPARE(run.error()["what"_L1].toString(), what);
    QVERIFY2(run.error()["hint"_L1].toString().contains(hint), run.err.constData());
    const bool isAmbiguous = what.contains(u"fits"_s);
    QCOMPARE(run.error()["candidates"_L1].toArray().size(), isAmbiguous ? 2 : 0);
}

void tst_show::json_isTheRecordUnderItsId()
{
    const ToolRun run = m_folder.run({u"show"_s, u"Kiln line 4"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.object(),
             QJsonObject({{u"id"_s, Support::idOfPrinterJson(u"Kiln line 4"_s)},
                          {u"driver"_s, printerJson(u"Kiln line 4"_s)}}));
}

void tst_show::theSheet_saysEverything()
{
    const ToolRun run = m_folder.run({u"show"_s, u"Kiln line 4"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    const QString device = printerJson(u"Kiln line 4"_s)["deviceId"_L1].toString();
    const QString expected = u"Kiln line 4\n"
                             "  made for a test\n"
                             "\n"
                             "  Id                  %1\n"
                             "  Device id           %2\n"
                             "  Class               Inkjet\n"
                             "  Faces mode          Basic\n"
                             "  Most faces          4 faces\n"
                             "  Largest image       9007199254740993 bytes (8.00 PiB)\n"
                             "  File compression    Rle, Lzw\n"
                             "  File protection     None\n"
                             "  Elaborates online   yes\n"
                             "  Linearises online   no\n"
                             "  Experimental        no\n"
                             "  Icon                1 image\n"
                             "  Format version      1.2.1\n"
                             "  Date                2026-11-21T09:30:00.000Z\n"
                             "\n"
                             "  print unit 'Kiln line 4/unit'\n"
                             "    made for a test\n"
                             "    Free resolution     vertical\n"
                             "    Channels            3 bars\n"
                             "       1  Cyan\n"
                             "       2  Brown\n"
                             "       3  Black\n"
                             "\n"
                             "  Bilevel elaborations (2 levels)\n"
                             "\n"
                             "    'Kiln line 4/way', preferred\n"
                             "      made for a test\n"
                             "      Type                BilevelStandard\n"
                             "      Levels              Binary\n"
                             "      Resolutions         400 x 360 DPI\n"
                             "      Scroll ratios       1, 0.5\n"
                             "      Magnification       0.5x to 2x\n"_s;
    QCOMPARE(run.text(), expected.arg(Support::idOfPrinterJson(u"Kiln line 4"_s), device));
}

void tst_show::theSheet_showsAllSamples()
{
    const QDir samples(QStringLiteral(CATALOGUE));
    for (const QString &name : samples.entryList({u"*.json"_s})) {
        const Support::ToolFolder folder;
        VERIFY_CODE(folder.run({u"import"_s, samples.filePath(name)}), 0);
        const ToolRun list = folder.run({u"list"_s, u"--json"_s});
        VERIFY_CODE(list, 0);
        const QString id = list.array().at(0)["id"_L1].toString();
        const ToolRun run = folder.run({u"show"_s, id});
        VERIFY_CODE(run, 0);
        QVERIFY(run.text().contains(u"  Id                  "_s + id));
    }
}

QTEST_GUILESS_MAIN(tst_show)
#include "tst_show.moc"
