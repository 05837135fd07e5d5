// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// What each command answers when its database cannot be used, and that such a file stays as it is.

#include "support/Printers.h"
#include "support/RecordJson.h"
#include "support/Tool.h"

#include <QtTest/QTest>

using namespace Qt::StringLiterals;
using Support::ToolFolder;
using Support::ToolRun;

class tst_failures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aDatabaseThatCannotBeUsed_isExplained_data();
    void aDatabaseThatCannotBeUsed_isExplained();
    void readingCommands_changeNoByte_data();
    void readingCommands_changeNoByte();
    void editing_needsTheKey();
    void theKeyFile_mustHoldAKey_data();
    void theKeyFile_mustHoldAKey();
    void aLockedDatabase_isReported();
    void readers_doNotWaitForEachOther();
    void import_makesADatabaseOfNothing_data();
    void import_makesADatabaseOfNothing();
    void import_explainsWhyNothingWasMade();

private:
    static QList<QStringList> readingCommands();
    static QList<QStringList> editingCommands();
};

QList<QStringList> tst_failures::readingCommands()
{
    return {{u"list"_s},   {u"show"_s, u"A"_s},   {u"export"_s},
            {u"verify"_s}, {u"export"_s, u"A"_s}, {u"reindex"_s}};
}

QList<QStringList> tst_failures::editingCommands()
{
    return {{u"remove"_s, u"A"_s}, {u"rename"_s, u"A"_s, u"B"_s}, {u"purge"_s}};
}

void tst_failures::aDatabaseThatCannotBeUsed_isExplained_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("why");
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"a.tdb"_s), Support::printers({u"A"_s})));
    QVERIFY(
        Support::makeFile(folder.path(u"k.tdb"_s), Support::printers({u"A"_s}), u"another key"_s));
    const QByteArray sound = folder.read(u"a.tdb"_s);
    QByteArray newer = sound;
    newer.replace("vdbtext\t1\t", "vdbtext\t2\t");
    QByteArray damaged = sound;
    damaged.replace("format=2", "format=3");

    QTest::newRow("missing") << QByteArray() << 3 << u"there is no such file"_s;
    QTest::newRow("empty") << QByteArray("") << 3 << u"the file is empty"_s;
    QTest::newRow("torn while it was made") << sound.first(20) << 3 << u"the file is empty"_s;
    QTest::newRow("something else")
        << QByteArray("[1, 2, 3]\n") << 4 << u"the file is no printers database"_s;
    QTest::newRow("NULs") << QByteArray(4096, '\0') << 4 << u"the file is no printers database"_s;
    QTest::newRow("damaged in both headers")
        << damaged << 4 << u"both copies of its header are damaged"_s;
    QTest::newRow("of a newer format") << newer << 4 << u"a newer program wrote it"_s;
    QTest::newRow("without a key") << sound << 5 << u"it has no key"_s;
    QTest::newRow("of another key")
        << folder.read(u"k.tdb"_s) << 5 << u"it belongs to another key"_s;
}

void tst_failures::aDatabaseThatCannotBeUsed_isExplained()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, why);
    const ToolFolder folder;
    const QString key = folder.write(u"key"_s, QByteArray("a key\n"));
    if (!bytes.isNull())
        folder.write(u"Printers.tdb"_s, bytes);
    QList<QStringList> commands = readingCommands() + editingCommands();
    if (code != 3)
        commands.append({u"import"_s, folder.write(u"in.json"_s, Support::printerJson(u"B"_s))});
    for (const QStringList &command : commands) {
        const ToolRun run = folder.run(QStringList{u"--key-file"_s, key, u"--json"_s} + command);
        VERIFY_CODE(run, code);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.error()["code"_L1].toInt(), code);
        QCOMPARE(run.error()["where"_L1].toString(), u"Printers.tdb"_s);
        QCOMPARE(run.error()["what"_L1].toString(), u"cannot open the database"_s);
        QCOMPARE(run.error()["why"_L1].toString(), why);
        QVERIFY(!run.error()["hint"_L1].toString().isEmpty());
        QCOMPARE(folder.read(u"Printers.tdb"_s), bytes);
        QCOMPARE(QFile::exists(folder.path(u"Printers.tdb"_s)), !bytes.isNull());
    }
}

void tst_failures::readingCommands_changeNoByte_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"a.tdb"_s), Support::printers({u"A"_s, u"B"_s})));
    QVERIFY(
        Support::makeFile(folder.path(u"k.tdb"_s), Support::printers({u"A"_s, u"B"_s}), u"key"_s));
    const QByteArray sound = folder.read(u"a.tdb"_s);
    QTest::newRow("sound") << sound;
    QTest::newRow("keyed, without the key") << folder.read(u"k.tdb"_s);
    QTest::newRow("without its seal") << sound.chopped(2);
    QTest::newRow("with a batch that was never completed") << sound + "+\t10\t";
    QTest::newRow("with a damaged record")
        << QByteArray(sound).replace("\"name\":\"B\"", "\"name\":\"C\"");
    QTest::newRow("with garbage") << QByteArray(sound).replace("\n+", "\ngarbage\n+");
}

void tst_failures::readingCommands_changeNoByte()
{
    QFETCH(QByteArray, bytes);
    const ToolFolder folder;
    folder.write(u"Printers.tdb"_s, bytes);
    const QString path = folder.path(u"Printers.tdb"_s);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    const QDateTime past(QDate(2020, 1, 1), QTime(12, 0));
    QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    file.close();
    for (const QStringList &command :
         readingCommands() + QList<QStringList>{{u"validate"_s, u"Printers.tdb"_s}}) {
        const ToolRun run = folder.run(command);
        QVERIFY2(run.code == 0 || command.first() == "verify"_L1
                     || command.first() == "validate"_L1,
                 run.err.constData());
        QCOMPARE(folder.read(u"Printers.tdb"_s), bytes);
        QCOMPARE(QFileInfo(path).lastModified(), past);
    }
    QCOMPARE(QDir(folder.path(u"."_s)).entryList(QDir::Files), QStringList{u"Printers.tdb"_s});
}

void tst_failures::editing_needsTheKey()
{
    const ToolFolder folder;
    const QString record = folder.write(u"in.json"_s, Support::printerJson(u"A"_s));
    folder.write(u"key"_s, QByteArray("a key\r\n"));
    VERIFY_CODE(folder.run({u"import"_s, record, u"--key-file=key"_s}), 0);
    VERIFY_CODE(folder.run({u"verify"_s, u"--key-file=key"_s}), 0);
    VERIFY_CODE(folder.run({u"list"_s}), 0);
    const QByteArray before = folder.read(u"Printers.tdb"_s);
    for (const QStringList &command :
         editingCommands() + QList<QStringList>{{u"import"_s, record}}) {
        const ToolRun run = folder.run(command);
        VERIFY_CODE(run, 5);
        QVERIFY2(run.messages().contains(u"changing it takes its key; hint: --key-file"_s),
                 run.err.constData());
        QCOMPARE(folder.read(u"Printers.tdb"_s), before);
    }
    // One line end at its end is no part of a key, whatever the system's line ends are.
    folder.write(u"key"_s, QByteArray("a key"));
    VERIFY_CODE(folder.run({u"rename"_s, u"A"_s, u"B"_s, u"--key-file=key"_s}), 0);
    folder.write(u"key"_s, QByteArray("a key\n\n"));
    VERIFY_CODE(folder.run({u"rename"_s, u"B"_s, u"C"_s, u"--key-file=key"_s}), 5);
}

void tst_failures::theKeyFile_mustHoldAKey_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::newRow("missing") << QByteArray() << 3;
    QTest::newRow("empty") << QByteArray("") << 2;
    QTest::newRow("a line end") << QByteArray("\n") << 2;
    QTest::newRow("not UTF-8") << QByteArray("k\xFFy") << 2;
}

void tst_failures::theKeyFile_mustHoldAKey()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    const ToolFolder folder;
    if (!bytes.isNull())
        folder.write(u"key"_s, bytes);
    const ToolRun run = folder.run({u"--key-file=key"_s, u"list"_s, u"--json"_s});
    VERIFY_CODE(run, code);
    QCOMPARE(run.error()["where"_L1].toString(), u"key"_s);
    VERIFY_CODE(folder.run({u"--key-file=."_s, u"list"_s}), 3);
}

void tst_failures::aLockedDatabase_isReported()
{
    using namespace Norvane::Database;
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s})));
    const QString record = folder.write(u"in.json"_s, Support::printerJson(u"B"_s));
    QFile file(folder.path(u"Printers.tdb"_s));
    VDBText writer;
    writer.setKey(QString(), QString());
    QVERIFY(writer.open(&file));
    for (const QStringList &command : readingCommands() + editingCommands()
             + QList<QStringList>{{u"import"_s, record}, {u"validate"_s, u"Printers.tdb"_s}}) {
        const ToolRun run = folder.run(QStringList{u"--wait=0"_s, u"--json"_s} + command);
        VERIFY_CODE(run, 6);
        QCOMPARE(run.error()["why"_L1].toString(), u"another process holds it"_s);
    }
    writer.close();
    VERIFY_CODE(folder.run({u"--wait=0"_s, u"list"_s}), 0);
}

void tst_failures::readers_doNotWaitForEachOther()
{
    using namespace Norvane::Database;
    const ToolFolder folder;
    QVERIFY(Support::makeFile(folder.path(u"Printers.tdb"_s), Support::printers({u"A"_s})));
    QFile file(folder.path(u"Printers.tdb"_s));
    VDBText reader;
    reader.setKey(QString(), u""_s);
    QVERIFY(reader.open(&file));
    for (const QStringList &command : readingCommands())
        VERIFY_CODE(folder.run(QStringList{u"--wait=0"_s} + command), 0);
    VERIFY_CODE(folder.run({u"--wait=0"_s, u"remove"_s, u"A"_s}), 6);
}

void tst_failures::import_makesADatabaseOfNothing_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("a missing file") << QByteArray();
    QTest::newRow("an empty file") << QByteArray("");
    QTest::newRow("a file torn while it was made") << QByteArray("vdbtext\t1\tkey=");
}

void tst_failures::import_makesADatabaseOfNothing()
{
    QFETCH(QByteArray, bytes);
    const ToolFolder folder;
    if (!bytes.isNull())
        folder.write(u"Printers.tdb"_s, bytes);
    const QString record = folder.write(u"in.json"_s, Support::printerJson(u"A"_s));
    VERIFY_CODE(folder.run({u"import"_s, u"--dry-run"_s, record}), 0);
    QCOMPARE(folder.read(u"Printers.tdb"_s), bytes);
    VERIFY_CODE(folder.run({u"import"_s, record}), 0);
    QCOMPARE(folder.run({u"list"_s, u"--json"_s}).array().size(), 1);
    VERIFY_CODE(folder.run({u"verify"_s}), 0);
}

void tst_failures::import_explainsWhyNothingWasMade()
{
    const ToolFolder folder;
    const QString record = folder.write(u"in.json"_s, Support::printerJson(u"A"_s));
    const ToolRun nowhere = folder.run({u"--db=nowhere/a.tdb"_s, u"import"_s, record});
    VERIFY_CODE(nowhere, 3);
    QVERIFY2(nowhere.messages().contains(u"cannot create the database: there is no folder"_s),
             nowhere.err.constData());
    for (const QString &path : {u"."_s, u"/dev/null"_s}) {
        for (const QString &command : {u"import"_s, u"list"_s}) {
            const QStringList operands = command == "list"_L1 ? QStringList() : QStringList{record};
            VERIFY_CODE(folder.run(QStringList{u"--db"_s, path, command} + operands), 3);
        }
    }
}

QTEST_GUILESS_MAIN(tst_failures)
#include "tst_failures.moc"
