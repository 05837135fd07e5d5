// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// enums: the enumerations and the names of their values.

#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::ToolRun;

class tst_enums : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAName_allAreListed();
    void withAName_itsValuesAreListed();
    void flags_areShownAsBitsToo();
    void aliases_areNamed();
    void theName_isFoundInAnyCase();
    void anUnknownName_isAnsweredWithTheNearest();
    void noDatabase_isNeeded();

private:
    Support::ToolFolder m_folder;
};

void tst_enums::withoutAName_allAreListed()
{
    const ToolRun json = m_folder.run({u"enums"_s, u"--json"_s});
    VERIFY_CODE(json, 0);
    const ToolRun text = m_folder.run({u"enums"_s});
    VERIFY_CODE(text, 0);
    QMap<QString, int> counts;
    for (const QJsonValue &entry : json.array()) {
        counts.insert(entry["name"_L1].toString(), entry["count"_L1].toInt());
        QVERIFY(text.text().contains(u'\n' + entry["name"_L1].toString()));
    }
    QCOMPARE(counts.value(u"PrinterClass"_s), 6);
    QCOMPARE(counts.value(u"ElaborationType"_s), 84);
    QCOMPARE(counts.value(u"Channel"_s), 81);
    QCOMPARE(counts.value(u"ChannelV100Sort"_s), 114);
    QCOMPARE(counts.value(u"LevelManagement"_s), 12);
}

void tst_enums::withAName_itsValuesAreListed()
{
    QCOMPARE(m_folder.run({u"enums"_s, u"PrinterFacesMode"_s}).text(),
             u"NUMBER  NAME\n     0  None\n     1  Basic\n     2  Advanced\n"_s);
    const ToolRun run = m_folder.run({u"enums"_s, u"PrinterFacesMode"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    const auto value = [](int number, const QString &name) {
        return QJsonObject{{u"number"_s, number}, {u"name"_s, name}, {u"aliases"_s, QJsonArray()}};
    };
    QCOMPARE(run.object(),
             QJsonObject({{u"name"_s, u"PrinterFacesMode"_s},
                          {u"flags"_s, false},
                          {u"values"_s,
                           QJsonArray{value(0, u"None"_s), value(1, u"Basic"_s),
                                      value(2, u"Advanced"_s)}}}));
}

void tst_enums::flags_areShownAsBitsToo()
{
    const ToolRun run = m_folder.run({u"enums"_s, u"PrinterFileCompression"_s});
    QVERIFY2(run.text().contains(u"4104 (0x1008)  Lz4Online\n"_s), run.out.constData());
}

void tst_enums::aliases_areNamed()
{
    const ToolRun text = m_folder.run({u"enums"_s, u"OperatingSystemType"_s});
    QVERIFY2(text.text().contains(u"  macOS (also read: OSX)\n"_s), text.out.constData());
    const ToolRun json = m_folder.run({u"enums"_s, u"OperatingSystemType"_s, u"--json"_s});
    QCOMPARE(json.object()["values"_L1][1]["aliases"_L1].toArray(), QJsonArray{u"OSX"_s});
}

void tst_enums::theName_isFoundInAnyCase()
{
    QCOMPARE(m_folder.run({u"enums"_s, u"printerclass"_s}).out,
             m_folder.run({u"enums"_s, u"PrinterClass"_s}).out);
}

void tst_enums::anUnknownName_isAnsweredWithTheNearest()
{
    const ToolRun near = m_folder.run({u"enums"_s, u"PrinterClas"_s});
    VERIFY_CODE(near, 1);
    QVERIFY2(near.messages().contains(u"did you mean 'PrinterClass'?"_s), near.err.constData());
    const ToolRun far = m_folder.run({u"enums"_s, u"Teapot"_s});
    VERIFY_CODE(far, 1);
    QVERIFY2(far.messages().contains(u"'kilnjet enums' lists them"_s), far.err.constData());
}

void tst_enums::noDatabase_isNeeded()
{
    VERIFY_CODE(m_folder.run({u"--db=nowhere/x.tdb"_s, u"enums"_s}), 0);
}

QTEST_GUILESS_MAIN(tst_enums)
#include "tst_enums.moc"
