// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Support;

namespace {

/// A file that may refuse to be opened.
class StuckFile : public QFile
{
public:
    using QFile::QFile;

    bool open(OpenMode mode) override { return !isStuck && QFile::open(mode); }

    bool isStuck = false;
};

/// A file that somebody replaces each time that it has just been opened.
class ElusiveFile : public QFile
{
public:
    using QFile::QFile;

    bool open(OpenMode mode) override
    {
        const QString other = fileName() + u".other"_s;
        if (!isElusive)
            return QFile::open(mode);
        return QFile::open(mode) && QFile::copy(fileName(), other) && QFile::remove(fileName())
            && QFile::rename(other, fileName());
    }

    bool isElusive = true;
};

/// A file of a class of the host's own.
class OwnFile : public QFile
{
    Q_OBJECT

public:
    using QFile::QFile;
};

} // namespace

/// Files as a host may hand them over: open already, without a name, or gone in between.
class tst_VDBTextOpenFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void anOpenFile_isUsedAndLeftAsItWasFound();
    void anOpenFile_thatWasReplacedIsOpenedAnew();
    void anOpenFile_thatWasReplacedAndCannotBeOpenedAnewIsAnError();
    void anOpenFile_isPurgedAndStaysInUse();
    void anOpenFile_thatCannotBeOpenedAnewAfterAPurgeTakesNothingMore();
    void anOpenFile_thatIsReplacedRightAfterAPurgeTakesNothingMore();
    void aFile_thatIsReplacedEachTimeCountsAsLocked();
    void aFile_withoutANameNeedsNone();
    void aFile_ofAnotherClassIsAFile();
    void anOpenFile_thatTheHostClosesTakesNothingMore();
    void anOpenFile_thatTheHostDeletesIsForgotten();
    void aClosedFile_onlyTellsTheName();
    void whatIsNoName_isRefusedInSilence();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
};

void tst_VDBTextOpenFiles::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(u"a.tdb"_s);
    QFile file(m_path);
    VDBText store;
    QVERIFY(createStore(store, &file));
    QVERIFY(store.insert(record(u"A"_s, u"1"_s)));
    store.close();
}

void tst_VDBTextOpenFiles::anOpenFile_isUsedAndLeftAsItWasFound()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.seek(3));
    QVERIFY(commit(&file, {{u"B"_s, u"2"_s}}));
    QVERIFY(file.isOpen());
    QCOMPARE(file.pos(), 3);
    QFile other(m_path);
    QVERIFY(commit(&other, {{u"C"_s, u"3"_s}})); // The lock was given back.
    QCOMPARE(readStore(&file).sound.size(), 3);
}

void tst_VDBTextOpenFiles::anOpenFile_thatWasReplacedIsOpenedAnew()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QFile other(m_path);
    VDBText purging;
    purging.setKey({}, toWrite());
    QVERIFY(purging.open(&other));
    QVERIFY(purging.purge());
    purging.close();
    QVERIFY(commit(&file, {{u"B"_s, u"2"_s}}));
    QVERIFY(file.isOpen());
    QCOMPARE(readStore(&other).sound.size(), 2);
}

void tst_VDBTextOpenFiles::anOpenFile_thatWasReplacedAndCannotBeOpenedAnewIsAnError()
{
    StuckFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(QFile::copy(m_path, m_path + u".other"_s));
    QVERIFY(QFile::remove(m_path));
    QVERIFY(QFile::rename(m_path + u".other"_s, m_path));
    file.isStuck = true;
    VDBText store;
    QVERIFY(!store.open(&file));
    QCOMPARE(store.status(), VDBStatus::Io);
    file.isStuck = false;
    QVERIFY(store.open(&file));
}

void tst_VDBTextOpenFiles::anOpenFile_isPurgedAndStaysInUse()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(commit(&file, {{u"A"_s, u"2"_s}}));
    const qint64 size = file.size();
    const QIODevice::OpenMode mode = file.openMode();
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    QVERIFY(store.purge());
    QVERIFY(QFileInfo(m_path).size() < size);
    QVERIFY(store.insert(record(u"B"_s, u"2"_s)));
    store.close();
    QVERIFY(store.wasDurable());

    QCOMPARE(file.openMode(), mode);
    QFile other(m_path);
    QVERIFY(commit(&other, {{u"C"_s, u"3"_s}})); // The lock was given back.
    QVERIFY(other.open(QIODevice::ReadOnly));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), other.readAll()); // It is the new file that the host has now.
    other.close();
    QCOMPARE(readStore(&file).sound,
             (QMap<QString, QString>{{u"A"_s, u"2"_s}, {u"B"_s, u"2"_s}, {u"C"_s, u"3"_s}}));
}

void tst_VDBTextOpenFiles::anOpenFile_thatCannotBeOpenedAnewAfterAPurgeTakesNothingMore()
{
    StuckFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    file.isStuck = true;
    QVERIFY(!store.purge());
    QCOMPARE(store.status(), VDBStatus::Io);
    QVERIFY(!store.insert(record(u"B"_s, u"2"_s)));

    QFile other(m_path);
    QVERIFY(commit(&other, {{u"C"_s, u"3"_s}})); // Nobody holds its lock.
    store.close();
    QCOMPARE(readStore(&other).sound, (QMap<QString, QString>{{u"A"_s, u"1"_s}, {u"C"_s, u"3"_s}}));
}

void tst_VDBTextOpenFiles::anOpenFile_thatIsReplacedRightAfterAPurgeTakesNothingMore()
{
    ElusiveFile file(m_path);
    file.isElusive = false;
    QVERIFY(file.open(QIODevice::ReadWrite));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    file.isElusive = true;
    QVERIFY(!store.purge());
    QCOMPARE(store.status(), VDBStatus::Io);
    QCOMPARE(store.errorString(), u"another process has replaced the file"_s);
    QVERIFY(!store.insert(record(u"B"_s, u"2"_s)));
    store.close();

    QFile other(m_path);
    QCOMPARE(readStore(&other).sound, (QMap<QString, QString>{{u"A"_s, u"1"_s}}));
}

void tst_VDBTextOpenFiles::aFile_thatIsReplacedEachTimeCountsAsLocked()
{
    ElusiveFile file(m_path);
    VDBText store;
    store.setLockTimeout(std::chrono::milliseconds(0));
    QVERIFY(!store.open(&file));
    QCOMPARE(store.status(), VDBStatus::Locked);
    QVERIFY(!file.isOpen());
    QFile plain(m_path);
    QCOMPARE(readStore(&plain).sound.size(), 1);
}

void tst_VDBTextOpenFiles::aFile_withoutANameNeedsNone()
{
    QFile named(m_path);
    QVERIFY(named.open(QIODevice::ReadWrite));
    QFile file;
    QVERIFY(file.open(named.handle(), QIODevice::ReadWrite));
    QVERIFY(commit(&file, {{u"A"_s, u"2"_s}, {u"B"_s, u"2"_s}}));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    const qint64 size = file.size();
    QVERIFY(store.purge()); // In its place: there is no name to give another file.
    store.close();
    QVERIFY(file.size() < size);
    QCOMPARE(readStore(&named).sound, (QMap<QString, QString>{{u"A"_s, u"2"_s}, {u"B"_s, u"2"_s}}));
}

void tst_VDBTextOpenFiles::aFile_ofAnotherClassIsAFile()
{
    OwnFile file(m_path);
    QVERIFY(commit(&file, {{u"B"_s, u"2"_s}}));
    QVERIFY(commit(&file, {{u"C"_s, u"3"_s}}));
    QVERIFY(!file.isOpen());
    QCOMPARE(readStore(&file).sound.size(), 3);
}

void tst_VDBTextOpenFiles::anOpenFile_thatTheHostClosesTakesNothingMore()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite));
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&file));
    QVERIFY(store.insert(record(u"B"_s, u"2"_s)));
    file.close();
    store.close();
    QVERIFY(!store.wasDurable());
    QVERIFY(!file.isOpen());
    QCOMPARE(readStore(&file).sound.size(), 1);
}

void tst_VDBTextOpenFiles::anOpenFile_thatTheHostDeletesIsForgotten()
{
    VDBText store;
    auto file = std::make_unique<QFile>(m_path);
    QVERIFY(file->open(QIODevice::ReadWrite));
    QVERIFY(store.open(file.get()));
    file.reset();
    QVERIFY(!store.isOpen());
    QByteArray bytes = storeWith({{{u"X"_s, u"1"_s}}});
    QBuffer buffer(&bytes);
    QVERIFY(store.open(&buffer));
    QVERIFY(store.contains(u"X"_s));
    store.close();
    QFile other(m_path);
    QVERIFY(commit(&other, {{u"B"_s, u"2"_s}})); // Nobody holds its lock.
}

// Whatever the host does with it meanwhile.
void tst_VDBTextOpenFiles::aClosedFile_onlyTellsTheName()
{
    VDBText store;
    store.setKey({}, toWrite());
    auto file = std::make_unique<QFile>(m_path);
    QVERIFY(store.open(file.get()));
    QVERIFY(!file->isOpen());
    QVERIFY(file->open(QIODevice::ReadOnly));
    QVERIFY(store.insert(record(u"B"_s, u"2"_s)));
    QVERIFY(store.purge());
    QVERIFY(file->isOpen());
    file->setFileName(m_path + u".other"_s);
    file.reset();
    QVERIFY(store.isOpen());
    QVERIFY(store.insert(record(u"C"_s, u"3"_s)));
    store.close();
    QVERIFY(store.wasDurable());
    QFile other(m_path);
    QCOMPARE(readStore(&other).sound.size(), 3);
}

// Qt would print that there is none; the system would take the other to end at its NUL.
void tst_VDBTextOpenFiles::whatIsNoName_isRefusedInSilence()
{
    QTest::failOnWarning(QRegularExpression(u".*"_s));
    for (const QString &name : {QString(), m_path + QChar(QChar::Null) + u"more"_s}) {
        QFile file(name);
        VDBText store;
        QVERIFY(!store.open(&file));
        QCOMPARE(store.status(), VDBStatus::NotFound);
        QVERIFY(!createStore(store, &file));
        QCOMPARE(store.status(), VDBStatus::Io);
        QVERIFY(!store.errorString().isEmpty());
    }
}

QTEST_GUILESS_MAIN(tst_VDBTextOpenFiles)
#include "tst_VDBTextOpenFiles.moc"
