// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace Support;

/// Files and folders that cannot be used, or have unusual names.
class tst_paths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unusable_isRefusedAndLeftAlone_data();
    void unusable_isRefusedAndLeftAlone();
    void readOnlyFile_isReadAndKeepsItsBytes();
    void readOnlyFolder_stillTakesCommits();
    void name_mayBeAnything_data();
    void name_mayBeAnything();
    void figures();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QStringList entries() const;

    std::optional<QTemporaryDir> m_folder;
    std::optional<Watchdog> m_watchdog;
    int m_refused = 0;
    int m_names = 0;
};

namespace {

constexpr uid_t kNobody = 65534;

/// Takes root's privilege to ignore permissions away from the process, and gives it back.
class Unprivileged
{
public:
    Unprivileged()
    {
        if (m_isRoot)
            m_isDone = ::setegid(kNobody) == 0 && ::seteuid(kNobody) == 0;
    }
    Q_DISABLE_COPY_MOVE(Unprivileged)
    ~Unprivileged()
    {
        if (m_isRoot && (::seteuid(0) != 0 || ::setegid(0) != 0))
            std::abort();
    }
    bool isDone() const { return m_isDone; }

private:
    const bool m_isRoot = ::geteuid() == 0;
    bool m_isDone = true;
};

[[nodiscard]] bool setMode(const QString &path, mode_t mode)
{
    return ::chmod(QFile::encodeName(path).constData(), mode) == 0;
}

} // namespace

void tst_paths::init()
{
    m_watchdog.emplace("unusual paths");
    m_folder.emplace();
    QVERIFY(setMode(m_folder->path(), 0777));
}

void tst_paths::cleanup()
{
    QVERIFY(setMode(m_folder->path(), 0777));
    m_folder.reset();
    m_watchdog.reset();
}

/// What the folder holds, and of what kind it is.
QStringList tst_paths::entries() const
{
    QStringList found;
    for (const QFileInfo &info :
         QDir(m_folder->path())
             .entryInfoList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot))
        found.append(
            u"%1 %2 %3"_s.arg(info.fileName()).arg(info.size()).arg(int(info.permissions())));
    return found;
}

void tst_paths::unusable_isRefusedAndLeftAlone_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder that is missing") << u"missing/Printers.tdb"_s;
    QTest::newRow("a folder") << u"folder"_s;
    QTest::newRow("a folder, with a slash") << u"folder/"_s;
    QTest::newRow("a file as a folder") << u"text/Printers.tdb"_s;
    QTest::newRow("a pipe that nobody writes to") << u"pipe"_s;
    QTest::newRow("a link to itself") << u"loop"_s;
    QTest::newRow("a link to nowhere") << u"nowhere"_s;
    QTest::newRow("a device") << u"null"_s;
    QTest::newRow("a file that may not be read") << u"unreadable"_s;
    QTest::newRow("a missing file where none may be made") << u"closed/Printers.tdb"_s;
    QTest::newRow("a file of other content") << u"text"_s;
    QTest::newRow("a name of 256 bytes") << QString(256, u'n');
    QTest::newRow("a path of 5 000 bytes") << u"folder/"_s.repeated(714);
}

void tst_paths::unusable_isRefusedAndLeftAlone()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(u"folder"_s));
    QVERIFY(QDir(m_folder->path()).mkdir(u"closed"_s));
    QVERIFY(setMode(path(u"closed"_s), 0555));
    QVERIFY(writeBytes(path(u"text"_s), "not ours\n"));
    QVERIFY(setMode(path(u"text"_s), 0666));
    QVERIFY(makeFile(path(u"unreadable"_s), {printer(u"A"_s)}));
    QVERIFY(setMode(path(u"unreadable"_s), 0));
    QCOMPARE(::mkfifo(QFile::encodeName(path(u"pipe"_s)).constData(), 0666), 0);
    QVERIFY(QFile::link(path(u"loop"_s), path(u"loop"_s)));
    QVERIFY(QFile::link(path(u"gone/Printers.tdb"_s), path(u"nowhere"_s)));
    QVERIFY(QFile::link(u"/dev/null"_s, path(u"null"_s)));
    const QStringList before = entries();
    {
        const Unprivileged unprivileged;
        QVERIFY(unprivileged.isDone());
        VPrintersDb database(path(name), QString());
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.init(false);
        QVERIFY(database.isNull());
        QCOMPARE(errors.size(), 1);
        database.insert(printer(u"B"_s));
        database.commit();
        QCOMPARE(errors.size(), 2);
        QVERIFY(database.isDirty());
        QVERIFY(!database.purge());
        QVERIFY(!database.reindex());
        QVERIFY(!database.restore(m_folder->path(), name, true));
    }
    QCOMPARE(entries(), before);
    QCOMPARE(bytesOf(path(u"text"_s)), "not ours\n");
    ++m_refused;
}

void tst_paths::readOnlyFile_isReadAndKeepsItsBytes()
{
    const QString file = path(u"Printers.tdb"_s);
    QVERIFY(makeFile(file, {printer(u"A"_s)}));
    QVERIFY(setMode(file, 0444));
    const QByteArray before = bytesOf(file);
    VPrintersDb database(file, QString());
    {
        const Unprivileged unprivileged;
        QVERIFY(unprivileged.isDone());
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.init(false);
        QVERIFY(database.isReady());
        QCOMPARE(database.count(), 1);
        database.insert(printer(u"B"_s));
        database.commit();
        QCOMPARE(errors.size(), 1);
        QVERIFY(database.isDirty());
        QVERIFY(!database.purge());
        QCOMPARE(bytesOf(file), before);
    }
    QVERIFY(setMode(file, 0666));
    database.commit();
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(file), storedFrom(printers({u"A"_s, u"B"_s})));
}

// A commit needs nothing but the file; a purge needs room for another one beside it.
void tst_paths::readOnlyFolder_stillTakesCommits()
{
    const QString file = path(u"Printers.tdb"_s);
    QVERIFY(makeFile(file, {printer(u"A"_s)}));
    QVERIFY(setMode(file, 0666));
    QVERIFY(setMode(m_folder->path(), 0555));
    const Unprivileged unprivileged;
    QVERIFY(unprivileged.isDone());
    VPrintersDb database(file, QString());
    database.init(false);
    database.insert(printer(u"B"_s));
    database.commit();
    QVERIFY(!database.isDirty());
    QVERIFY(!database.purge());
    QCOMPARE(stored(file), storedFrom(printers({u"A"_s, u"B"_s})));
    database.insert(printer(u"C"_s));
    database.commit();
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(file), storedFrom(printers({u"A"_s, u"B"_s, u"C"_s})));
}

void tst_paths::name_mayBeAnything_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = {u"Línea 1 nave norte"_s,
                               u"Станок №7"_s,
                               u"打印机"_s,
                               u"プリンター"_s,
                               u"프린터"_s,
                               u"طابعة"_s,
                               u"מדפסת"_s,
                               u"เครื่องพิมพ์"_s,
                               u"मुद्रक"_s,
                               u"Εκτυπωτής"_s,
                               u"İstanbul ığüş"_s,
                               u"e\u0301 and é"_s,
                               u"🏭 \U00020000"_s,
                               u" spaces  inside "_s,
                               u"-rf"_s,
                               u"two\nlines"_s,
                               u"tab\tand \\ and :"_s,
                               u"%1 100% $HOME *"_s,
                               u"\"quoted\" 'too'"_s,
                               u"..tdb"_s};
    for (const QString &name : names)
        QTest::newRow(name.toUtf8().constData()) << name;
    QTest::newRow("255 bytes of one letter") << QString(255, u'n');
    QTest::newRow("255 bytes of three a letter") << QString(85, u'打');
}

void tst_paths::name_mayBeAnything()
{
    QFETCH(QString, name);
    const QString folder = path(name);
    QVERIFY(QDir().mkdir(folder));
    const QString file = folder + u'/' + name;
    QVERIFY(makeFile(file, printers({u"A"_s, u"B"_s})));
    VPrintersDb database(file, QString());
    database.init(false);
    database.remove(printer(u"B"_s));
    database.commit();
    QVERIFY(database.purge());
    QVERIFY(database.reindex());
    QCOMPARE(stored(file), storedFrom({printer(u"A"_s)}));
    QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    QVERIFY(database.backup(folder, u"Copy.tdb"_s));
    VPrintersDb other(path(u"Other.tdb"_s), QString());
    other.init(false);
    QVERIFY(other.restore(folder, name, false));
    QCOMPARE(stored(path(u"Other.tdb"_s)), storedFrom({printer(u"A"_s)}));
    ++m_names;
}

void tst_paths::figures()
{
    figure(u"%1 unusable places refused and left alone, %2 names of all scripts and lengths used"_s
               .arg(m_refused)
               .arg(m_names));
}

QTEST_GUILESS_MAIN(tst_paths)
#include "tst_paths.moc"
