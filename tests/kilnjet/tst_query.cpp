// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// query: the machines that meet every condition.

#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printerJson;
using Support::ToolRun;
using Support::with;

class tst_query : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void machines_meetEveryCondition_data();
    void machines_meetEveryCondition();
    void conditionsThatMakeNoSense_areRefused_data();
    void conditionsThatMakeNoSense_areRefused();
    void output_isThatOfList();
    void nothingFound_isAnEmptyList();
    void noByteChanges();

private:
    Support::ToolFolder m_folder;
};

namespace {

QJsonObject unit(const QString &name, const QJsonArray &channels)
{
    return with(Support::printUnitJson(name), u"/config/channels"_s, channels);
}

QJsonObject method(const QString &name, const QString &type, const QString &levels, double x,
                   double y, const QString &unit = u"DPI"_s)
{
    const QJsonObject resolution{{u"x"_s, x}, {u"y"_s, y}, {u"unit"_s, unit}};
    QJsonObject record = Support::elaborationJson(name);
    record = with(record, u"/config/elaborationType"_s, type);
    record = with(record, u"/config/levelManagementList"_s, QJsonArray{levels});
    return with(record, u"/config/resolutionList"_s, QJsonArray{resolution});
}

} // namespace

void tst_query::initTestCase()
{
    // Inkjet, elaborates online; cyan, brown, black; bilevel, binary, 400 x 360 DPI.
    const QJsonObject inkjet = printerJson(u"Inkjet"_s);
    QJsonObject twin = with(printerJson(u"Twin"_s), u"/config/onlineElaboration"_s, false);
    twin = with(twin, u"/children"_s,
                QJsonArray{unit(u"Colours"_s, {u"Cyan"_s, u"Yellow"_s}),
                           unit(u"Effects"_s, {u"Sinker"_s}),
                           method(u"Fine"_s, u"BilevelStandard"_s, u"Binary"_s, 600, 600),
                           method(u"Fast"_s, u"OctalevelNearest"_s, u"OctaGrayscale"_s, 400, 400)});
    QJsonObject laser = with(printerJson(u"Laser"_s), u"/config/printerClass"_s, u"Engraver"_s);
    laser = with(laser, u"/description"_s, u"Gräbt in Glas"_s);
    laser = with(laser, u"/config/onlineLinearization"_s, true);
    laser = with(laser, u"/config/experimental"_s, true);
    laser = with(laser, u"/children"_s,
                 QJsonArray{method(u"Tief"_s, u"Grayscale_8"_s, u"None"_s, 15.5, 16, u"PPMM"_s)});
    VERIFY_CODE(m_folder.run({u"import"_s, u"-"_s},
                             QJsonDocument(QJsonArray{inkjet, twin, laser}).toJson()),
                0);
}

void tst_query::machines_meetEveryCondition_data()
{
    QTest::addColumn<QStringList>("conditions");
    QTest::addColumn<QString>("names");
    const auto addRow = [](const char *name, const QStringList &conditions, const QString &names) {
        QTest::newRow(name) << conditions << names;
    };
    addRow("no condition", {}, u"Inkjet Laser Twin"_s);
    addRow("a class", {u"--class"_s, u"Inkjet"_s}, u"Inkjet Twin"_s);
    addRow("a class in another case", {u"--class=engraver"_s}, u"Laser"_s);
    addRow("a class without machines", {u"--class=Plotter"_s}, u""_s);
    addRow("a channel", {u"--channel=Cyan"_s}, u"Inkjet Twin"_s);
    addRow("two channels of two units", {u"--channel=Sinker"_s, u"--channel=Cyan"_s}, u"Twin"_s);
    addRow("two channels of two machines", {u"--channel=Brown"_s, u"--channel=Sinker"_s}, u""_s);
    addRow("an elaboration", {u"--elaboration=BilevelStandard"_s}, u"Inkjet Twin"_s);
    addRow("a level management", {u"--levels=OctaGrayscale"_s}, u"Twin"_s);
    addRow("a level management whose number is 0", {u"--levels=None"_s}, u"Laser"_s);
    addRow("a resolution", {u"--resolution=400x360DPI"_s}, u"Inkjet"_s);
    addRow("a resolution in DPI without saying so", {u"--resolution=400x360"_s}, u"Inkjet"_s);
    addRow("the same in both directions", {u"--resolution=600"_s}, u"Twin"_s);
    addRow("both directions and a unit", {u"--resolution=400dpi"_s}, u"Twin"_s);
    addRow("a resolution as show writes it", {u"--resolution=15.5 x 16 PPMM"_s}, u"Laser"_s);
    addRow("another unit", {u"--resolution=400x360PPM"_s}, u""_s);
    addRow("the directions swapped", {u"--resolution=360x400"_s}, u""_s);
    addRow("one elaboration of type and resolution",
           {u"--elaboration=BilevelStandard"_s, u"--resolution=600"_s}, u"Twin"_s);
    addRow("type and resolution of two elaborations",
           {u"--elaboration=BilevelStandard"_s, u"--resolution=400x400"_s}, u""_s);
    addRow("online elaboration", {u"--online-elaboration=yes"_s}, u"Inkjet Laser"_s);
    addRow("no online elaboration", {u"--online-elaboration=no"_s}, u"Twin"_s);
    addRow("online linearisation", {u"--online-linearization=yes"_s}, u"Laser"_s);
    addRow("experimental", {u"--experimental=yes"_s}, u"Laser"_s);
    addRow("not experimental", {u"--experimental=no"_s}, u"Inkjet Twin"_s);
    addRow("a word of a name", {u"--text=win"_s}, u"Twin"_s);
    addRow("a word of a description in another case", {u"--text=GRÄBT"_s}, u"Laser"_s);
    addRow("a word of a child's name", {u"--text=effects"_s}, u"Twin"_s);
    addRow("words of several places", {u"--text=  fast   colours "_s}, u"Twin"_s);
    addRow("words of two machines", {u"--text=Glas Twin"_s}, u""_s);
    addRow("everything together",
           {u"--class=Inkjet"_s, u"--channel=Yellow"_s, u"--elaboration=OctalevelNearest"_s,
            u"--levels=OctaGrayscale"_s, u"--resolution=400"_s, u"--online-elaboration=no"_s,
            u"--online-linearization=no"_s, u"--experimental=no"_s, u"--text=twin"_s},
           u"Twin"_s);
}

void tst_query::machines_meetEveryCondition()
{
    QFETCH(QStringList, conditions);
    QFETCH(QString, names);
    const ToolRun run = m_folder.run(QStringList{u"query"_s, u"--json"_s} + conditions);
    VERIFY_CODE(run, names.isEmpty() ? 1 : 0);
    QCOMPARE(run.err, QByteArray());
    QStringList found;
    for (const QJsonValue &machine : run.array())
        found.append(machine["name"_L1].toString());
    QCOMPARE(found.join(u' '), names);
}

void tst_query::conditionsThatMakeNoSense_areRefused_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("what");
    QTest::addColumn<QString>("hint");
    const auto addRow = [](const char *name, const QString &condition, const QString &what,
                           const QString &hint) {
        QTest::newRow(name) << condition << what << hint;
    };
    addRow("a misspelt class", u"--class=Inkjt"_s, u"'Inkjt' is no value of PrinterClass"_s,
           u"did you mean 'Inkjet'?"_s);
    addRow("a misspelt channel", u"--channel=Cian"_s, u"'Cian' is no value of Channel"_s,
           u"did you mean 'Cyan'?"_s);
    addRow("a misspelt elaboration", u"--elaboration=BilevelStandart"_s,
           u"is no value of ElaborationType"_s, u"did you mean 'BilevelStandard'?"_s);
    addRow("a misspelt level management", u"--levels=Binery"_s,
           u"'Binery' is no value of LevelManagement"_s, u"did you mean 'Binary'?"_s);
    addRow("a name like no other", u"--class=Teapot"_s, u"'Teapot' is no value"_s,
           u"'kilnjet enums PrinterClass' lists them"_s);
    addRow("a number for a name", u"--class=0"_s, u"'0' is no value of PrinterClass"_s, u""_s);
    addRow("no name", u"--channel="_s, u"'' is no value of Channel"_s, u""_s);
    addRow("an unknown unit", u"--resolution=400x400DPY"_s, u"'DPY' is no value"_s,
           u"did you mean 'DPI'?"_s);
    addRow("no number", u"--resolution=fine"_s, u"'fine' is no resolution"_s, u"400x360DPI"_s);
    addRow("a number below zero", u"--resolution=-400"_s, u"'-400' is no resolution"_s, u""_s);
    addRow("three directions", u"--resolution=1x2x3"_s, u"'1x2x3' is no resolution"_s, u""_s);
    addRow("neither yes nor no", u"--experimental=maybe"_s, u"'maybe' is neither yes nor no"_s,
           u""_s);
    addRow("no words", u"--text= "_s, u"there is no word to look for"_s, u""_s);
}

void tst_query::conditionsThatMakeNoSense_areRefused()
{
    QFETCH(QString, condition);
    QFETCH(QString, what);
    QFETCH(QString, hint);
    const ToolRun run = m_folder.run({u"query"_s, u"--json"_s, condition});
    VERIFY_CODE(run, 2);
    QCOMPARE(run.out, QByteArray());
    QCOMPARE(run.error()["where"_L1].toString(), condition.section(u'=', 0, 0));
    QVERIFY2(run.error()["what"_L1].toString().contains(what), run.err.constData());
    QVERIFY2(run.error()["hint"_L1].toString().contains(hint), run.err.constData());
}

void tst_query::output_isThatOfList()
{
    QCOMPARE(m_folder.run({u"query"_s}).out, m_folder.run({u"list"_s}).out);
    const QStringList json{u"query"_s, u"--json"_s};
    QCOMPARE(m_folder.run(json).out, m_folder.run({u"list"_s, u"--json"_s}).out);
}

void tst_query::nothingFound_isAnEmptyList()
{
    const ToolRun text = m_folder.run({u"query"_s, u"--class=Plotter"_s});
    VERIFY_CODE(text, 1);
    QCOMPARE(text.text(), u"NAME  CLASS  FACES  MAX  CHILDREN  ID\n"_s);
    const ToolRun json = m_folder.run({u"query"_s, u"--class=Plotter"_s, u"--json"_s});
    VERIFY_CODE(json, 1);
    QCOMPARE(json.out.simplified(), QByteArray("[ ]"));
}

void tst_query::noByteChanges()
{
    const QByteArray before = m_folder.read(u"Printers.tdb"_s);
    QVERIFY(!before.isEmpty());
    VERIFY_CODE(m_folder.run({u"query"_s, u"--text=laser"_s}), 0);
    QCOMPARE(m_folder.read(u"Printers.tdb"_s), before);
    QCOMPARE(QDir(m_folder.path(QString())).entryList(QDir::Files), QStringList{u"Printers.tdb"_s});
}

QTEST_GUILESS_MAIN(tst_query)
#include "tst_query.moc"
