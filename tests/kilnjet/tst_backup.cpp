// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// backup: the copy holds what the database holds, and neither the database nor an older copy is
// ever harmed.

#include "support/Limits.h"
#include "support/Printers.h"
#include "support/RawRecords.h"
#include "support/Tool.h"

#include "CopyCheck.h"
#include "Progress.h"

#include <QtTest/QTest>

#include <filesystem>

using namespace Qt::StringLiterals;
using Support::printers;
using Support::ToolFolder;
using Support::ToolRun;

class tst_backup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aNewCopy_holdsWhatTheDatabaseHolds();
    void aFolder_getsACopyCalledLikeTheDatabase();
    void theCopy_holdsWhatTheLibraryCopies();
    void anOlderCopy_keepsWhatTheDatabaseNoLongerHas();
    void replace_keepsNothingOfAnOlderCopy();
    void whatHasNotChanged_isNotWrittenAgain();
    void theDatabase_isOnlyRead_data();
    void theDatabase_isOnlyRead();
    void recordsThatCannotBeRead_areAFinding();
    void whatIsNotOurs_isLeftAsItIs_data();
    void whatIsNotOurs_isLeftAsItIs();
    void theDatabaseItself_isRefused_data();
    void theDatabaseItself_isRefused();
    void aMissingFolder_isNamed();
    void aFullDisk_harmsNothing_data();
    void aFullDisk_harmsNothing();
    void theCopy_isSignedWithTheKey();
    void verification_seesEveryDifference();

private:
    QString path(const QString &name) const { return m_folder->path(name); }
    QStringList files() const
    {
        return QDir(path(u"."_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<ToolFolder> m_folder;
};

void tst_backup::init()
{
    m_folder = std::make_unique<ToolFolder>();
    QVERIFY(Support::makeFile(path(u"Printers.tdb"_s), printers({u"A"_s, u"B"_s, u"C"_s})));
}

void tst_backup::aNewCopy_holdsWhatTheDatabaseHolds()
{
    const ToolRun text = m_folder->run({u"backup"_s, u"a.tdb"_s, u"--verify"_s});
    VERIFY_CODE(text, 0);
    QCOMPARE(text.err, QByteArray());
    QCOMPARE(text.text(), u"a.tdb: 3 machines (3 added, 0 replaced, 0 unchanged), verified\n"_s);
    QCOMPARE(Support::stored(path(u"a.tdb"_s)), Support::stored(path(u"Printers.tdb"_s)));
    const ToolRun json = m_folder->run({u"backup"_s, u"b.tdb"_s, u"--json"_s});
    VERIFY_CODE(json, 0);
    QCOMPARE(json.object()["file"_L1].toString(), u"b.tdb"_s);
    QCOMPARE(json.object()["machines"_L1].toInt(), 3);
    QCOMPARE(json.object()["added"_L1].toArray().size(), 3);
    QCOMPARE(json.object()["verified"_L1].toBool(), false);
    QCOMPARE(files(), QStringList({u"a.tdb"_s, u"b.tdb"_s, u"Printers.tdb"_s}));
}

void tst_backup::aFolder_getsACopyCalledLikeTheDatabase()
{
    QVERIFY(QDir(path(u"."_s)).mkdir(u"usb"_s));
    QVERIFY(QFile::copy(path(u"Printers.tdb"_s), path(u"plant.tdb"_s)));
    for (const QString &folder : {u"usb"_s, u"usb/"_s}) {
        VERIFY_CODE(m_folder->run({u"--db=plant.tdb"_s, u"backup"_s, folder, u"--verify"_s}), 0);
        QCOMPARE(QDir(path(u"usb"_s)).entryList(QDir::Files), QStringList{u"plant.tdb"_s});
    }
}

void tst_backup::theCopy_holdsWhatTheLibraryCopies()
{
    QVERIFY(Support::makeFile(path(u"ours.tdb"_s), printers({u"B"_s, u"Z"_s})));
    QVERIFY(QFile::copy(path(u"ours.tdb"_s), path(u"theirs.tdb"_s)));
    VERIFY_CODE(m_folder->run({u"backup"_s, u"ours.tdb"_s}), 0);
    Support::VPrintersDb database(path(u"Printers.tdb"_s), QString());
    database.init(false);
    QVERIFY(database.backup(path(u"."_s), u"theirs.tdb"_s));
    QCOMPARE(Support::stored(path(u"ours.tdb"_s)), Support::stored(path(u"theirs.tdb"_s)));
}

void tst_backup::anOlderCopy_keepsWhatTheDatabaseNoLongerHas()
{
    VERIFY_CODE(m_folder->run({u"backup"_s, u"a.tdb"_s}), 0);
    VERIFY_CODE(m_folder->run({u"remove"_s, u"C"_s}), 0);
    VERIFY_CODE(m_folder->run({u"rename"_s, u"A"_s, u"A2"_s}), 0);
    const ToolRun run = m_folder->run({u"backup"_s, u"a.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.object()["replaced"_L1][0]["name"_L1].toString(), u"A2"_s);
    QCOMPARE(run.object()["unchanged"_L1].toArray().size(), 1);
    QCOMPARE(run.object()["extra"_L1][0]["name"_L1].toString(), u"C"_s);
    QVERIFY2(run.messages().contains(u"1 machine of an older copy kept"_s), run.err.constData());
    QCOMPARE(Support::stored(path(u"a.tdb"_s)).size(), 3);
    // So it is not equal to the database.
    const ToolRun verified = m_folder->run({u"backup"_s, u"a.tdb"_s, u"--verify"_s, u"--json"_s});
    VERIFY_CODE(verified, 3);
    QCOMPARE(verified.out, QByteArray());
    QCOMPARE(verified.error()["where"_L1].toString(), u"a.tdb"_s);
    QCOMPARE(verified.error()["why"_L1].toString(), u"1 machine more than in the database"_s);
    QCOMPARE(verified.error()["extra"_L1][0]["name"_L1].toString(), u"C"_s);
    QVERIFY(verified.error()["hint"_L1].toString().contains(u"--replace"_s));
}

void tst_backup::replace_keepsNothingOfAnOlderCopy()
{
    QVERIFY(Support::makeFile(path(u"a.tdb"_s), printers({u"Y"_s, u"Z"_s})));
    QVERIFY(QFile::link(path(u"a.tdb"_s), path(u"link.tdb"_s)));
    QVERIFY(QFile::setPermissions(path(u"a.tdb"_s), QFile::ReadOwner | QFile::WriteOwner));
    const QStringList before = files();
    const ToolRun run = m_folder->run({u"backup"_s, u"link.tdb"_s, u"--replace"_s, u"--verify"_s});
    VERIFY_CODE(run, 0);
    QCOMPARE(run.err, QByteArray());
    QCOMPARE(Support::stored(path(u"a.tdb"_s)), Support::stored(path(u"Printers.tdb"_s)));
    QVERIFY(QFileInfo(path(u"link.tdb"_s)).isSymLink());
    QVERIFY(!(QFile::permissions(path(u"a.tdb"_s)) & QFile::ReadOther));
    QCOMPARE(files(), before);
}

void tst_backup::whatHasNotChanged_isNotWrittenAgain()
{
    VERIFY_CODE(m_folder->run({u"backup"_s, u"a.tdb"_s}), 0);
    const QByteArray before = m_folder->read(u"a.tdb"_s);
    const ToolRun run = m_folder->run({u"backup"_s, u"a.tdb"_s, u"--verify"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.text().contains(u"(0 added, 0 replaced, 3 unchanged)"_s), run.out.constData());
    QCOMPARE(m_folder->read(u"a.tdb"_s), before);
}

void tst_backup::theDatabase_isOnlyRead_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray sound = Support::bytesWith(printers({u"A"_s, u"B"_s}));
    QTest::newRow("sound") << sound;
    QTest::newRow("twice in one file") << sound + sound;
    QTest::newRow("without its seal") << sound.chopped(2);
    QTest::newRow("with a batch that was never completed") << sound + "+\t10\t";
    QTest::newRow("with garbage") << QByteArray(sound).replace("\n+", "\ngarbage\n+");
}

void tst_backup::theDatabase_isOnlyRead()
{
    QFETCH(QByteArray, bytes);
    m_folder->write(u"Printers.tdb"_s, bytes);
    const QDateTime past(QDate(2020, 1, 1), QTime(12, 0));
    QFile file(path(u"Printers.tdb"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(past, QFileDevice::FileModificationTime));
    file.close();
    VERIFY_CODE(m_folder->run({u"backup"_s, u"a.tdb"_s, u"--verify"_s}), 0);
    QCOMPARE(m_folder->read(u"Printers.tdb"_s), bytes);
    QCOMPARE(QFileInfo(file).lastModified(), past);
}

void tst_backup::recordsThatCannotBeRead_areAFinding()
{
    Support::flipByte(path(u"Printers.tdb"_s),
                      m_folder->read(u"Printers.tdb"_s).indexOf("\"name\":\"B\"") + 8);
    const ToolRun run = m_folder->run({u"backup"_s, u"a.tdb"_s, u"--verify"_s});
    VERIFY_CODE(run, 1);
    QVERIFY2(run.messages().contains(u"1 record left out, because it cannot be read"_s),
             run.err.constData());
    QVERIFY2(run.text().startsWith(u"a.tdb: 2 machines"_s), run.out.constData());
    QCOMPARE(Support::stored(path(u"a.tdb"_s)).size(), 2);
}

void tst_backup::whatIsNotOurs_isLeftAsItIs_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("why");
    const QByteArray sound = Support::bytesWith(printers({u"A"_s}));
    QTest::newRow("something else")
        << QByteArray("dear diary\n") << 4 << u"the file is no printers database"_s;
    QTest::newRow("of a newer format") << QByteArray(sound).replace("vdbtext\t1\t", "vdbtext\t2\t")
                                       << 4 << u"a newer program wrote it"_s;
    QTest::newRow("damaged in both headers") << QByteArray(sound).replace("format=2", "format=3")
                                             << 4 << u"both copies of its header are damaged"_s;
    QTest::newRow("of another key")
        << Support::bytesWith(printers({u"A"_s}), u"key"_s) << 5 << u"changing it takes its key"_s;
}

void tst_backup::whatIsNotOurs_isLeftAsItIs()
{
    QFETCH(QByteArray, bytes);
    QFETCH(int, code);
    QFETCH(QString, why);
    m_folder->write(u"a.tdb"_s, bytes);
    const QStringList before = files();
    for (const QStringList &more : {QStringList(), {u"--replace"_s}, {u"--verify"_s}}) {
        const ToolRun run = m_folder->run(QStringList{u"backup"_s, u"a.tdb"_s, u"--json"_s} + more);
        VERIFY_CODE(run, code);
        QCOMPARE(run.error()["where"_L1].toString(), u"a.tdb"_s);
        QCOMPARE(run.error()["what"_L1].toString(), u"cannot copy over this file"_s);
        QCOMPARE(run.error()["why"_L1].toString(), why);
        QVERIFY(!run.error()["hint"_L1].toString().isEmpty());
        QCOMPARE(m_folder->read(u"a.tdb"_s), bytes);
        QCOMPARE(files(), before);
    }
}

void tst_backup::theDatabaseItself_isRefused_data()
{
    QTest::addColumn<QString>("destination");
    QTest::newRow("by its name") << u"Printers.tdb"_s;
    QTest::newRow("by another path") << u"./Printers.tdb"_s;
    QTest::newRow("by its folder") << u"."_s;
    QTest::newRow("by a symbolic link") << u"symbolic"_s;
    QTest::newRow("by a hard link") << u"hard"_s;
}

void tst_backup::theDatabaseItself_isRefused()
{
    QFETCH(QString, destination);
    const auto native = [this](const QString &name) {
        return std::filesystem::path(path(name).toStdString());
    };
    std::filesystem::create_symlink(native(u"Printers.tdb"_s), native(u"symbolic"_s));
    std::filesystem::create_hard_link(native(u"Printers.tdb"_s), native(u"hard"_s));
    const QByteArray before = m_folder->read(u"Printers.tdb"_s);
    for (const QStringList &more : {QStringList(), {u"--replace"_s}}) {
        const ToolRun run = m_folder->run(QStringList{u"backup"_s, destination} + more);
        VERIFY_CODE(run, 2);
        QVERIFY2(run.messages().contains(u"this is the database itself"_s), run.err.constData());
        QCOMPARE(m_folder->read(u"Printers.tdb"_s), before);
    }
}

void tst_backup::aMissingFolder_isNamed()
{
    const ToolRun run = m_folder->run({u"backup"_s, u"usb/a.tdb"_s, u"--json"_s});
    VERIFY_CODE(run, 3);
    QCOMPARE(run.error()["where"_L1].toString(), u"usb/a.tdb"_s);
    QCOMPARE(
        run.error()["why"_L1].toString(),
        u"there is no folder '%1'"_s.arg(QFileInfo(path(u"."_s)).canonicalFilePath() + u"/usb"_s));
    QCOMPARE(files(), QStringList{u"Printers.tdb"_s});
}

void tst_backup::aFullDisk_harmsNothing_data()
{
    QTest::addColumn<bool>("isThereOne");
    QTest::addColumn<QStringList>("options");
    QTest::newRow("where there is no copy") << false << QStringList();
    QTest::newRow("where an older copy stands") << true << QStringList();
    QTest::newRow("where an older copy is replaced") << true << QStringList{u"--replace"_s};
}

void tst_backup::aFullDisk_harmsNothing()
{
#ifdef Q_OS_UNIX
    QFETCH(bool, isThereOne);
    QFETCH(QStringList, options);
    if (isThereOne)
        QVERIFY(Support::makeFile(path(u"a.tdb"_s), printers({u"Z"_s})));
    const QByteArray copy = m_folder->read(u"a.tdb"_s);
    const QByteArray database = m_folder->read(u"Printers.tdb"_s);
    const QStringList before = files();
    const qint64 header = Support::bytesWith({}).size();
    for (const qint64 room : {qint64(0), header - 1, header, header + copy.size() / 2,
                              std::max(qint64(copy.size()), header) + 1}) {
        const ToolRun run = Support::runOnAFullDisk(
            *m_folder, room, QStringList{u"backup"_s, u"a.tdb"_s, u"--json"_s} + options);
        VERIFY_CODE(run, 3);
        QCOMPARE(run.out, QByteArray());
        QCOMPARE(run.error()["where"_L1].toString(), u"a.tdb"_s);
        QCOMPARE(m_folder->read(u"a.tdb"_s), copy);
        QCOMPARE(m_folder->read(u"Printers.tdb"_s), database);
        QCOMPARE(files(), before);
    }
#else
    QSKIP("files cannot be limited in size");
#endif
}

void tst_backup::theCopy_isSignedWithTheKey()
{
    m_folder->write(u"key"_s, QByteArray("secret"));
    QVERIFY(Support::makeFile(path(u"k.tdb"_s), printers({u"A"_s}), u"secret"_s));
    VERIFY_CODE(m_folder->run({u"--db=k.tdb"_s, u"--key-file=key"_s, u"backup"_s, u"signed.tdb"_s,
                               u"--verify"_s}),
                0);
    VERIFY_CODE(m_folder->run({u"verify"_s, u"signed.tdb"_s, u"--key-file=key"_s}), 0);
    const ToolRun run =
        m_folder->run({u"--db=k.tdb"_s, u"backup"_s, u"plain.tdb"_s, u"--verify"_s});
    VERIFY_CODE(run, 0);
    QVERIFY2(run.messages().contains(u"the copy is not signed, because no key was given"_s),
             run.err.constData());
    VERIFY_CODE(m_folder->run({u"verify"_s, u"plain.tdb"_s, u"--key-file=key"_s}), 5);
}

void tst_backup::verification_seesEveryDifference()
{
    using namespace Norvane::Kilnjet::Tool;
    const StoreSettings copy{path(u"Printers.tdb"_s), QString(), {}};
    Console console(Console::Format::Json);
    Progress progress(console, QString());
    verifyCopy(printers({u"A"_s, u"B"_s, u"C"_s}), copy, progress);
    const auto whyNot = [&](const QList<Support::VPrinterDriver> &machines) {
        try {
            verifyCopy(machines, copy, progress);
        } catch (const Failure &failure) {
            return failure.code == ExitCode::Io ? failure.why : u"another code"_s;
        }
        return u"equal"_s;
    };
    QCOMPARE(whyNot(printers({u"A"_s, u"B"_s, u"C"_s, u"D"_s})), u"1 machine missing"_s);
    QCOMPARE(whyNot(printers({u"A"_s})), u"2 machines more than in the database"_s);
    QCOMPARE(whyNot(printers({u"A"_s, u"B"_s})
                    + QList{Support::renamed(Support::printer(u"C"_s), u"c"_s)}),
             u"1 machine different"_s);
    QVERIFY(Support::writeRaw(copy.path, u"X"_s, QVariant(u"{}"_s)));
    QCOMPARE(whyNot(printers({u"A"_s, u"B"_s, u"C"_s})), u"1 record that cannot be read"_s);
}

QTEST_GUILESS_MAIN(tst_backup)
#include "tst_backup.moc"
