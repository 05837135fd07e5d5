// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// reindex: the whole file is read and loaded, and no byte of it changes.

#include "support/Printers.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::ToolRun;

class tst_reindex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsAndMachines_areCounted();
    void noByte_changes_data();
    void noByte_changes();
    void aFileThatCannotBeUsed_isExplained();
};

void tst_reindex::recordsAndMachines_areCounted()
{
    const Support::ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s, u"B"_s})));
    const ToolRun text = folder.run({u"reindex"_s});
    VERIFY_CODE(text, 0);
    QCOMPARE(text.text(), u"Printers.tdb: 2 records, 2 machines\n"_s);
    const ToolRun json = folder.run({u"reindex"_s, u"--json"_s});
    QCOMPARE(json.object(),
             QJsonObject({{u"file"_s, u"Printers.tdb"_s}, {u"records"_s, 2}, {u"machines"_s, 2}}));
}

void tst_reindex::noByte_changes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray sound = Support::bytesWith(Support::printers({u"A"_s, u"B"_s}));
    QTest::newRow("sound") << sound;
    QTest::newRow("keyed, without the key")
        << Support::bytesWith(Support::printers({u"A"_s}), u"key"_s);
    QTest::newRow("without its seal") << sound.chopped(2);
    QTest::newRow("with a batch that was never completed") << sound + "+\t10\t";
    QTest::newRow("with garbage") << QByteArray(sound).replace("\n+", "\ngarbage\n+");
}

void tst_reindex::noByte_changes()
{
    QFETCH(QByteArray, bytes);
    const Support::ToolFolder folder;
    folder.write(u"Printers.tdb"_s, bytes);
    VERIFY_CODE(folder.run({u"reindex"_s}), 0);
    QCOMPARE(folder.read(u"Printers.tdb"_s), bytes);
}

void tst_reindex::aFileThatCannotBeUsed_isExplained()
{
    const Support::ToolFolder folder;
    const ToolRun missing = folder.run({u"reindex"_s, u"--json"_s});
    VERIFY_CODE(missing, 3);
    QCOMPARE(missing.error()["why"_L1].toString(), u"there is no such file"_s);
    folder.write(u"Printers.tdb"_s, QByteArray("dear diary\n"));
    VERIFY_CODE(folder.run({u"reindex"_s}), 4);
    QCOMPARE(folder.read(u"Printers.tdb"_s), QByteArray("dear diary\n"));
}

QTEST_GUILESS_MAIN(tst_reindex)
#include "tst_reindex.moc"
