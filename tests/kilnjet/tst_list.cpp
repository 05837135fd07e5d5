// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// list: the machines in a table for people and as JSON.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;

class tst_list : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void machines_areOrderedByName();
    void columns_areAlignedUnderWideNames();
    void json_hasASummaryOfEachMachine();
    void namesThatSteerATerminal_areEscaped();
    void anEmptyDatabase_hasOnlyHeadings();

private:
    void import(const QJsonArray &records);

    std::unique_ptr<Support::ToolFolder> m_folder;
};

void tst_list::init()
{
    m_folder = std::make_unique<Support::ToolFolder>();
}

void tst_list::import(const QJsonArray &records)
{
    VERIFY_CODE(m_folder->run({u"import"_s, m_folder->write(u"in.json"_s, records)}), 0);
}

void tst_list::machines_areOrderedByName()
{
    import({printerJson(u"b"_s), printerJson(u"C"_s), printerJson(u"a"_s), printerJson(u"B"_s)});
    QStringList names;
    for (const QJsonValue &machine : m_folder->run({u"list"_s, u"--json"_s}).array())
        names.append(machine["name"_L1].toString());
    names[1] = names[1].toLower();
    names[2] = names[2].toLower();
    QCOMPARE(names, QStringList({u"a"_s, u"b"_s, u"b"_s, u"C"_s}));
}

void tst_list::columns_areAlignedUnderWideNames()
{
    import({printerJson(u"Kiln line 4"_s), printerJson(u"八通道喷墨机"_s)});
    const ToolRun run = m_folder->run({u"list"_s});
    VERIFY_CODE(run, 0);
    const QStringList lines = run.text().split(u'\n');
    QCOMPARE(lines.size(), 4);
    const auto id = [](const QString &name) { return Support::idOfPrinterJson(name).mid(1, 36); };
    QCOMPARE(lines.at(0), u"NAME          CLASS   FACES  MAX  CHILDREN  ID"_s);
    QCOMPARE(lines.at(1), u"Kiln line 4   Inkjet  Basic    4         2  "_s + id(u"Kiln line 4"_s));
    QCOMPARE(lines.at(2),
             u"八通道喷墨机  Inkjet  Basic    4         2  "_s + id(u"八通道喷墨机"_s));
}

void tst_list::json_hasASummaryOfEachMachine()
{
    import({printerJson(u"A"_s)});
    const ToolRun run = m_folder->run({u"list"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    const QJsonObject expected{{u"id"_s, Support::idOfPrinterJson(u"A"_s)},
                               {u"deviceId"_s, printerJson(u"A"_s)["deviceId"_L1]},
                               {u"name"_s, u"A"_s},
                               {u"printerClass"_s, u"Inkjet"_s},
                               {u"facesMode"_s, u"Basic"_s},
                               {u"maximumFaces"_s, 4},
                               {u"experimental"_s, false},
                               {u"children"_s, 2},
                               {u"version"_s, u"1.2.1"_s}};
    QCOMPARE(run.array(), QJsonArray{expected});
}

void tst_list::namesThatSteerATerminal_areEscaped()
{
    const QString name = u"\u001b[2J\u009b\u007fA\n\u202e"_s;
    import({Support::with(printerJson(u"A"_s), u"/name"_s, name)});
    const ToolRun text = m_folder->run({u"list"_s});
    VERIFY_CODE(text, 0);
    QVERIFY(text.text().contains(u"\\u001b[2J\\u009b\\u007fA\\u000a\\u202e"_s));
    QCOMPARE(text.text().count(u'\n'), 2);

    const ToolRun json = m_folder->run({u"list"_s, u"--json"_s});
    QCOMPARE(json.array()[0]["name"_L1].toString(), name);
    for (const QByteArray &bytes : {QByteArray("\x1b"), QByteArray("\x7f"), QByteArray("\xc2\x9b")})
        QVERIFY(!json.out.contains(bytes));
}

void tst_list::anEmptyDatabase_hasOnlyHeadings()
{
    import({});
    QCOMPARE(m_folder->run({u"list"_s}).text(), u"NAME  CLASS  FACES  MAX  CHILDREN  ID\n"_s);
}

QTEST_GUILESS_MAIN(tst_list)
#include "tst_list.moc"
