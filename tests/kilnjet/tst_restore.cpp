// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// restore: the database holds what the backup holds, or is as it was.

#include "support/Limits.h"
#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::printers;
using Support::ToolFolder;
using Support::ToolRun;

class tst_restore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void afterwards_theDatabaseHoldsTheBackupsMachines();
    void merge_removesNothing();
    void theDatabase_holdsWhatTheLibraryRestores_data();
    void theDatabase_holdsWhatTheLibraryRestores();
    void dryRun_saysTheSameAndChangesNoByte_data();
    void dryRun_saysTheSameAndChangesNoByte();
    void aMissingDatabase_isCreated();
    void aFolder_isSearchedForTheDatabasesName();
    void aBadBackup_changesNothing_data();
    void aBadBackup_changesNothing();
    void aDamagedBackup_isOnlyMerged_data();
    void aDamagedBackup_isOnlyMerged();
    void aBackupWithoutMachines_mustBeMeant();
    void anotherKey_mustBeMeant_data();
    void anotherKey_mustBeMeant();
    void theDatabaseItself_isRefused();
    void aDamagedDatabase_isLeftAsItIs();
    void aFullDisk_changesNothing();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    QStringList names() const
    {
        Support::VPrintersDb database(path(u"Printers.tdb"_s), QString());
        database.init(false);
        return Support::namesIn(database);
    }

    std::unique_ptr<ToolFolder> m_folder;
};

void tst_restore::init()
{
    m_folder = std::make_unique<ToolFolder>();
    QVERIFY(Support::makeFile(path(u"Printers.tdb"_s), printers({u"A"_s, u"B"_s, u"C"_s})));
    // B has another name in the backup, A is missing, D is new.
    QVERIFY(Support::makeFile(path(u"b.tdb"_s),
                              printers({u"C"_s, u"D"_s})
                                  + QList{Support::renamed(Support::printer(u"B"_s), u"B2"_s)}));
}

void tst_restore::afterwards_theDatabaseHoldsTheBackupsMachines()
{
    const QByteArray backup = m_folder->read(u"b.tdb"_s);
    const ToolRun run = m_folder->run({u"restore"_s, u"b.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    const auto name = [&run](QLatin1StringView what) {
        const QJsonArray machines = run.object()[what].toArray();
        return machines.size() == 1 ? machines[0]["name"_L1].toString() : u"not one"_s;
    };
    QCOMPARE(name("added"_L1), u"D"_s);
    QCOMPARE(name("replaced"_L1), u"B2"_s);
    QCOMPARE(name("removed"_L1), u"A"_s);
    QCOMPARE(name("unchanged"_L1), u"C"_s);
    QCOMPARE(run.object()["dryRun"_L1].toBool(), false);
    QCOMPARE(names(), QStringList({u"B2"_s, u"C"_s, u"D"_s}));
    QCOMPARE(m_folder->read(u"b.tdb"_s), backup);
    VERIFY_CODE(m_folder->run({u"verify"_s}), 0);
}

void tst_restore::merge_removesNothing()
{
    const ToolRun run = m_folder->run({u"restore"_s, u"b.tdb"_s, u"--merge"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.text().endsWith(u"Printers.tdb: 1 added, 1 replaced, 0 removed, 1 unchanged\n"_s),
             run.out.constData());
    QCOMPARE(names(), QStringList({u"A"_s, u"B2"_s, u"C"_s, u"D"_s}));
}

void tst_restore::theDatabase_holdsWhatTheLibraryRestores_data()
{
    QTest::addColumn<bool>("merge");
    QTest::newRow("in its place") << false;
    QTest::newRow("beside it") << true;
}

void tst_restore::theDatabase_holdsWhatTheLibraryRestores()
{
    QFETCH(bool, merge);
    QVERIFY(QFile::copy(path(u"Printers.tdb"_s), path(u"theirs.tdb"_s)));
    VERIFY_CODE(m_folder->run(QStringList{u"restore"_s, u"b.tdb"_s}
                              + (merge ? QStringList{u"--merge"_s} : QStringList())),
                0);
    Support::VPrintersDb database(path(u"theirs.tdb"_s), QString());
    database.init(false);
    QVERIFY(database.restore(path(u"."_s), u"b.tdb"_s, merge));
    QCOMPARE(Support::stored(path(u"Printers.tdb"_s)), Support::stored(path(u"theirs.tdb"_s)));
}

void tst_restore::dryRun_saysTheSameAndChangesNoByte_data()
{
    theDatabase_holdsWhatTheLibraryRestores_data();
}

void tst_restore::dryRun_saysTheSameAndChangesNoByte()
{
    QFETCH(bool, merge);
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    const QByteArray backup = m_folder->read(u"b.tdb"_s);
    const QStringList command = QStringList{u"restore"_s, u"b.tdb"_s, u"--json"_s}
        + (merge ? QStringList{u"--merge"_s} : QStringList());
    const ToolRun dry = m_folder->run(command + QStringList{u"--dry-run"_s});
    VERIFY_CODE(dry, 0);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
    QCOMPARE(m_folder->read(u"b.tdb"_s), backup);
    QJsonObject expected = m_folder->run(command).object();
    expected.insert("dryRun"_L1, true);
    QCOMPARE(dry.object(), expected);
}

void tst_restore::aMissingDatabase_isCreated()
{
    QVERIFY(QFile::remove(path(u"Printers.tdb"_s)));
    VERIFY_CODE(m_folder->run({u"restore"_s, u"b.tdb"_s, u"--dry-run"_s}), 0);
    QVERIFY(!QFile::exists(path(u"Printers.tdb"_s)));
    VERIFY_CODE(m_folder->run({u"restore"_s, u"b.tdb"_s}), 0);
    QCOMPARE(names(), QStringList({u"B2"_s, u"C"_s, u"D"_s}));
}

void tst_restore::aFolder_isSearchedForTheDatabasesName()
{
    QVERIFY(QDir(path(u"."_s)).mkdir(u"usb"_s));
    const ToolRun missing = m_folder->run({u"restore"_s, u"usb"_s, u"--json"_s});
    VERIFY_CODE(missing, 3);
    QCOMPARE(missing.error()["where"_L1].toString(), u"usb/Printers.tdb"_s);
    QVERIFY(QFile::copy(path(u"b.tdb"_s), path(u"usb/Printers.tdb"_s)));
    VERIFY_CODE(m_folder->run({u"restore"_s, u"usb"_s}), 0);
    QCOMPARE(names(), QStringList({u"B2"_s, u"C"_s, u"D"_s}));
}

void tst_restore::aBadBackup_changesNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("why");
    const QByteArray sound = Support::bytesWith(printers({u"A"_s}));
    QTest::newRow("missing") << QByteArray() << 3 << u"there is no such file"_s;
    QTest::newRow("empty") << QByteArray("") << 3 << u"the file is empty"_s;
    QTest::newRow("torn while it was made") << sound.first(20) << 3 << u"the file is empty"_s;
    QTest::newRow("something else")
        << QByteArray("dear diary\n") << 4 << u"the file is no printers database"_s;
    QTest::newRow("damaged in both headers") << QByteArray(sound).replace("format=2", "format=3")
                                             << 4 << u"both copies of its header are damaged"_s;
    QTest::newRow("of a newer format") << QByteArray(sound).replace("vdbtext\t1\t", "vdbtext\t2\t")
                                       << 4 << u"a newer program wrote it"_s;
}

void tst_restore::aBadBackup_changesNothing()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, why);
    if (!bytes.isNull())
        m_folder->write(u"a.tdb"_s, bytes);
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    for (const QStringList &more :
         {QStringList(), {u"--merge"_s}, {u"--dry-run"_s}, {u"--allow-empty"_s}}) {
        const ToolRun run =
            m_folder->run(QStringList{u"restore"_s, u"a.tdb"_s, u"--json"_s} + more);
        VERIFY_CODE(run, code);
        QCOMPARE(run.error()["where"_L1].toString(), u"a.tdb"_s);
        QCOMPARE(run.error()["what"_L1].toString(), u"cannot read the backup"_s);
        QCOMPARE(run.error()["why"_L1].toString(), why);
        QVERIFY(!run.error()["hint"_L1].toString().isEmpty());
        QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
        QCOMPARE(m_folder->read(u"a.tdb"_s), bytes);
        QCOMPARE(QFile::exists(path(u"a.tdb"_s)), !bytes.isNull());
    }
}

void tst_restore::aDamagedBackup_isOnlyMerged_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::addColumn<QStringList>("merged");
    QTest::newRow("a record that does not match its sum")
        << QByteArray("\"name\":\"D\"") << QByteArray("\"name\":\"E\"")
        << QStringList({u"A"_s, u"B2"_s, u"C"_s});
    QTest::newRow("bytes that may have been a record")
        << QByteArray("\n+") << QByteArray("\ngarbage\n+")
        << QStringList({u"A"_s, u"B2"_s, u"C"_s, u"D"_s});
}

void tst_restore::aDamagedBackup_isOnlyMerged()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    QFETCH(QStringList, merged);
    QByteArray bytes = m_folder->read(u"b.tdb"_s);
    bytes.replace(bytes.indexOf(before), before.size(), after);
    m_folder->write(u"b.tdb"_s, bytes);
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    const ToolRun run = m_folder->run({u"restore"_s, u"b.tdb"_s});
    VERIFY_CODE(run, 4);
    QVERIFY2(run.messages().contains(u"b.tdb: nothing was restored: "_s), run.err.constData());
    QVERIFY2(run.messages().contains(u"hint: --merge takes what is sound"_s), run.err.constData());
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
    VERIFY_CODE(m_folder->run({u"restore"_s, u"b.tdb"_s, u"--merge"_s}), 0);
    QCOMPARE(names(), merged);
}

void tst_restore::aBackupWithoutMachines_mustBeMeant()
{
    QVERIFY(Support::makeFile(path(u"none.tdb"_s), {}));
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    for (const QStringList &more : {QStringList(), {u"--dry-run"_s}}) {
        const ToolRun run = m_folder->run(QStringList{u"restore"_s, u"none.tdb"_s} + more);
        VERIFY_CODE(run, 1);
        QVERIFY2(run.messages().contains(u"hint: --allow-empty"_s), run.err.constData());
    }
    VERIFY_CODE(m_folder->run({u"restore"_s, u"none.tdb"_s, u"--merge"_s}), 0);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
    VERIFY_CODE(m_folder->run({u"restore"_s, u"none.tdb"_s, u"--allow-empty"_s}), 0);
    QCOMPARE(names(), QStringList());
    // Where there is nothing to lose there is nothing to refuse.
    VERIFY_CODE(m_folder->run({u"restore"_s, u"none.tdb"_s}), 0);
}

void tst_restore::anotherKey_mustBeMeant_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("why");
    QTest::newRow("another key") << u"another"_s << u"it belongs to another key"_s;
    QTest::newRow("no key") << QString() << u"it has no key"_s;
}

void tst_restore::anotherKey_mustBeMeant()
{
    QFETCH(QString, key);
    QFETCH(QString, why);
    m_folder->write(u"key"_s, QByteArray("secret"));
    QVERIFY(Support::makeFile(path(u"k.tdb"_s), printers({u"A"_s}), u"secret"_s));
    QVERIFY(Support::makeFile(path(u"a.tdb"_s), printers({u"Z"_s}), key));
    const QStringList command{u"--db=k.tdb"_s, u"--key-file=key"_s, u"restore"_s, u"a.tdb"_s};
    const ToolRun run = m_folder->run(command);
    VERIFY_CODE(run, 5);
    QVERIFY2(run.messages().contains(why), run.err.constData());
    QVERIFY2(run.messages().contains(u"--any-key takes it all the same"_s), run.err.constData());
    const ToolRun meant = m_folder->run(command + QStringList{u"--any-key"_s});
    VERIFY_CODE(meant, 0);
    QVERIFY2(meant.messages().contains(u"only its sums were checked"_s), meant.err.constData());
    // What was taken in is signed like the rest.
    VERIFY_CODE(m_folder->run({u"verify"_s, u"k.tdb"_s, u"--key-file=key"_s}), 0);
}

void tst_restore::theDatabaseItself_isRefused()
{
    for (const QString &source : {u"Printers.tdb"_s, u"."_s, u"./Printers.tdb"_s}) {
        const ToolRun run = m_folder->run({u"restore"_s, source});
        VERIFY_CODE(run, 2);
        QVERIFY2(run.messages().contains(u"this is the database itself"_s), run.err.constData());
    }
}

void tst_restore::aDamagedDatabase_isLeftAsItIs()
{
    const QByteArray damaged = m_folder->read(u"Printers.tdb"_s).replace("format=2", "format=3");
    m_folder->write(u"Printers.tdb"_s, damaged);
    const ToolRun run = m_folder->run({u"restore"_s, u"b.tdb"_s});
    VERIFY_CODE(run, 4);
    QVERIFY2(run.messages().contains(u"'kilnjet recover Printers.tdb NEW'"_s), run.err.constData());
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), damaged);
}

void tst_restore::aFullDisk_changesNothing()
{
#ifdef Q_OS_UNIX
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    const ToolRun run = Support::runOnAFullDisk(*m_folder, database.size() + 100,
                                                {u"restore"_s, u"b.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, 3);
    QCOMPARE(run.error()["what"_L1].toString(), u"cannot write the changes"_s);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
#else
    QSKIP("files cannot be limited in size");
#endif
}

QTEST_GUILESS_MAIN(tst_restore)
#include "tst_restore.moc"
