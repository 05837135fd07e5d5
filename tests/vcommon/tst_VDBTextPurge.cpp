// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Seed.h"
#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Support;

namespace {

bool purge(QIODevice *device, const QString &key = {})
{
    VDBText store;
    store.setKey(key, toWrite());
    const bool ok = store.open(device) && store.purge();
    store.close();
    return ok;
}

QByteArray lineOf(const QByteArray &bytes, const QByteArray &part)
{
    const qsizetype at = bytes.indexOf(part);
    const qsizetype begin = bytes.lastIndexOf('\n', at) + 1;
    return bytes.mid(begin, bytes.indexOf('\n', at) - begin);
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_VDBTextPurge : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void purge_dropsWhatIsDeadAndKeepsTheRest();
    void purge_carriesLiveLinesByteForByte();
    void purge_carriesWhatItCannotRead();
    void purge_forgetsADamagedMark();
    void purge_ofALargeStoreKeepsEveryRecord();
    void purge_afterThousandsOfChangesWritesWhatThatOfANewStoreDoes();
    void purge_ofAFileThatWasCutMeanwhileFails();
    void purge_ofAPurgedStoreChangesNothing();
    void purge_swapsTheFileAndKeepsItsPermissions();
    void purge_ofALinkedFileReplacesTheFileNotTheLink();
    void purge_takesThePendingBatchIn();
    void purge_needsAnAccessForWriting();
    void purge_inAFolderThatTakesNoFileFailsAndHarmsNothing();
    void purge_thatFailedLeavesNothingToBeWritten();
    void purge_ofALongLivedStoreWritesWhatThatOfANewOneDoes();
    void reindex_readsTheFileAnew();
    void reindex_ofAFileThatIsNowKeyedNeedsTheKey();
};

void tst_VDBTextPurge::purge_dropsWhatIsDeadAndKeepsTheRest()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"1"_s}, {u"B"_s, u"2"_s}},
                                  {{u"A"_s, u"3"_s}},
                                  {{u"B"_s, QString()}, {u"C"_s, u"4"_s}}});
    const qsizetype size = bytes.size();
    QBuffer buffer(&bytes);
    QVERIFY(purge(&buffer));
    QVERIFY(bytes.size() < size);
    QCOMPARE(readStore(bytes).sound, (QMap<QString, QString>{{u"A"_s, u"3"_s}, {u"C"_s, u"4"_s}}));
    QVERIFY(readStore(bytes).damage.empty());
    QVERIFY(commit(&buffer, {{u"D"_s, u"5"_s}}));
    QCOMPARE(readStore(bytes).sound.size(), 3);
}

void tst_VDBTextPurge::purge_carriesLiveLinesByteForByte()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"one"_s}}, {{u"B"_s, u"two"_s}}}, u"key"_s);
    const QByteArray one = lineOf(bytes, "text=one");
    const QByteArray two = lineOf(bytes, "text=two");
    QBuffer buffer(&bytes);
    QVERIFY(purge(&buffer, u"key"_s));
    QCOMPARE(lineOf(bytes, "text=one"), one);
    QCOMPARE(lineOf(bytes, "text=two"), two);
    QCOMPARE(readStore(bytes, u"key"_s).sound.size(), 2);
}

void tst_VDBTextPurge::purge_carriesWhatItCannotRead()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"one"_s}}, {{u"B"_s, u"two"_s}}});
    bytes.replace("text=one", "text=0ne");
    const QByteArray damaged = lineOf(bytes, "text=0ne");
    bytes += "foreign line\n";
    QBuffer buffer(&bytes);
    for (int i = 0; i < 3; ++i) {
        QVERIFY(purge(&buffer));
        QCOMPARE(bytes.count(damaged + '\n'), 1);
        QCOMPARE(bytes.count("foreign line\n"), 1);
        const Seen seen = readStore(bytes);
        QCOMPARE(seen.sound, (QMap<QString, QString>{{u"B"_s, u"two"_s}}));
        QCOMPARE(seen.damagedRecords, 1);
        QCOMPARE(seen.damage.size(), std::size_t(2));
    }
}

void tst_VDBTextPurge::purge_forgetsADamagedMark()
{
    QByteArray sound = storeWith({{{u"A"_s, u"1"_s}}, {{u"B"_s, u"2"_s}}});
    QByteArray damaged = sound;
    damaged.replace(damaged.indexOf("\n.\n") + 1, 1, "?");
    for (QByteArray *const bytes : {&sound, &damaged}) {
        QBuffer buffer(bytes);
        QVERIFY(purge(&buffer));
    }
    QCOMPARE(damaged, sound);
}

void tst_VDBTextPurge::purge_ofALargeStoreKeepsEveryRecord()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    QBuffer buffer;
    QMap<QString, QString> expected;
    for (QIODevice *const device :
         {static_cast<QIODevice *>(&file), static_cast<QIODevice *>(&buffer)}) {
        VDBText store;
        QVERIFY(createStore(store, device));
        store.close();
        for (int i = 0; i < 8; ++i) {
            const QString text(400'000, QChar(u'a' + i));
            QVERIFY(commit(device, {{u"dead"_s, text}, {QString::number(i), text}}));
            expected.insert(QString::number(i), text);
        }
        QVERIFY(commit(device, {{u"dead"_s, QString()}}));
        QVERIFY(purge(device));
        QVERIFY(readStore(device).sound == expected);
        QVERIFY(readStore(device).damage.empty());
    }
}

// So many that the store forgets what it knew of the dead ones.
void tst_VDBTextPurge::purge_afterThousandsOfChangesWritesWhatThatOfANewStoreDoes()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    QFile copy(folder.filePath(u"copy.tdb"_s));
    QByteArray bytes = storeWith({{{u"damaged"_s, u"alpha"_s}, {u"kept"_s, u"1"_s}}});
    bytes.replace("alpha", "alpho");
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    file.close();
    VDBText store;
    store.setKey({}, toWrite());
    for (int round = 0; round < 3; ++round) {
        QVERIFY(store.open(&file));
        for (int id = 0; id < 600; ++id)
            QVERIFY(store.insert(record(QString::number(id), QString::number(round))));
        store.close();
        QVERIFY(store.wasDurable());
    }
    QVERIFY(file.copy(copy.fileName()));
    QVERIFY(purge(&copy));
    QVERIFY(store.open(&file));
    QVERIFY(store.contains(u"599"_s));
    QVERIFY(store.purge());
    store.close();
    QCOMPARE(contentOf(file.fileName()), contentOf(copy.fileName()));
    QCOMPARE(readStore(&file).sound.size(), 601);
    QCOMPARE(readStore(&file).damagedRecords, 1);
}

void tst_VDBTextPurge::purge_ofAFileThatWasCutMeanwhileFails()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.insert(record(u"A"_s, QString(1000, u'x')));
    store.close();
    QVERIFY(store.open(&file));
    const qint64 size = storeWith({}).size();
    QVERIFY(QFile::resize(file.fileName(), size)); // By somebody who ignores the lock.
    QVERIFY(!store.purge());
    QCOMPARE(store.status(), VDBStatus::Io);
    QCOMPARE(store.errorString(), u"the file has become shorter"_s);
    store.close();
    QCOMPARE(contentOf(file.fileName()).size(), size);
    QVERIFY(!QFile::exists(file.fileName() + u".new"_s));
}

void tst_VDBTextPurge::purge_ofAPurgedStoreChangesNothing()
{
    for (QByteArray bytes : {storeWith({}), storeWith({{{u"A"_s, u"1"_s}}})}) {
        QBuffer buffer(&bytes);
        QVERIFY(purge(&buffer));
        const QByteArray once = bytes;
        QVERIFY(purge(&buffer));
        QCOMPARE(bytes, once);
    }
}

void tst_VDBTextPurge::purge_swapsTheFileAndKeepsItsPermissions()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.insert(record(u"A"_s, u"1"_s));
    store.close();
    const auto permissions = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    QVERIFY(file.setPermissions(permissions));
    // What a crash of an earlier purge left behind is no obstacle.
    QFile left(file.fileName() + u".new"_s);
    QVERIFY(left.open(QIODevice::WriteOnly));
    left.close();
    QVERIFY(store.open(&file));
    QVERIFY(store.purge());
    QVERIFY(store.contains(u"A"_s));
    store.insert(record(u"B"_s, u"2"_s));
    store.close();
    QVERIFY(store.wasDurable());
    QVERIFY(!file.isOpen());
    QVERIFY(!left.exists());
    QCOMPARE(file.permissions() & ~(QFile::ReadUser | QFile::WriteUser), permissions);
    QCOMPARE(readStore(&file).sound.size(), 2);
}

void tst_VDBTextPurge::purge_ofALinkedFileReplacesTheFileNotTheLink()
{
    QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkdir(u"real"_s));
    const QString real = folder.filePath(u"real/a.tdb"_s);
    QFile file(real);
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.close();
    QFile link(folder.filePath(u"link.tdb"_s));
    QVERIFY(QFile::link(real, link.fileName()));
    QVERIFY(commit(&link, {{u"A"_s, u"1"_s}}));
    QVERIFY(commit(&link, {{u"A"_s, u"2"_s}}));
    const QByteArray before = contentOf(real);
    QVERIFY(purge(&link));
    QVERIFY(QFileInfo(link.fileName()).isSymLink());
    QVERIFY(contentOf(real).size() < before.size());
}

void tst_VDBTextPurge::purge_takesThePendingBatchIn()
{
    QBuffer buffer;
    VDBText store;
    QVERIFY(createStore(store, &buffer));
    QVERIFY(store.insert(record(u"A"_s, u"1"_s)));
    QVERIFY(store.purge());
    VDBRecord first;
    store.first(first);
    QCOMPARE(first.search(u"text"_s).value().toString(), u"1"_s);
    store.close();
    QCOMPARE(readStore(&buffer).sound.size(), 1);
}

void tst_VDBTextPurge::purge_needsAnAccessForWriting()
{
    QByteArray bytes = storeWith({});
    QBuffer buffer(&bytes);
    VDBText store;
    QVERIFY(!store.purge());
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    QVERIFY(!store.purge());
}

void tst_VDBTextPurge::purge_inAFolderThatTakesNoFileFailsAndHarmsNothing()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.insert(record(u"A"_s, u"1"_s));
    store.close();
    const QByteArray before = contentOf(file.fileName());
    // A folder in the place of the new file: it can be neither removed nor opened.
    QVERIFY(QDir(folder.path()).mkpath(u"a.tdb.new/inside"_s));
    QVERIFY(store.open(&file));
    QVERIFY(!store.purge());
    QVERIFY(store.isOpen());
    QCOMPARE(contentOf(file.fileName()), before);
    QFile other(file.fileName());
    QVERIFY(commit(&other, {{u"B"_s, u"2"_s}})); // It does not hold the others up.
    QVERIFY(store.open(&file));
    QVERIFY(store.contains(u"B"_s));
}

// The store holds no lock any more, and knows no longer what is in the file.
void tst_VDBTextPurge::purge_thatFailedLeavesNothingToBeWritten()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.insert(record(u"A"_s, u"1"_s));
    store.close();
    const QByteArray before = contentOf(file.fileName());
    const QString obstacle = file.fileName() + u".new"_s;
    QVERIFY(QDir(folder.path()).mkpath(obstacle + u"/inside"_s));
    QVERIFY(store.open(&file));
    QVERIFY(!store.purge());
    QVERIFY(QDir(obstacle).removeRecursively());
    QCOMPARE(store.count(), 1);
    QVERIFY(!store.insert(record(u"B"_s, u"2"_s)));
    QVERIFY(!store.remove(u"A"_s));
    QVERIFY(!store.purge());
    store.close();
    QCOMPARE(contentOf(file.fileName()), before);
    QVERIFY(commit(&file, {{u"B"_s, u"2"_s}}));
    QCOMPARE(readStore(&file).sound.size(), 2);
}

// The one knows its file from its own commits, the other from reading it.
void tst_VDBTextPurge::purge_ofALongLivedStoreWritesWhatThatOfANewOneDoes()
{
    QRandomGenerator random(Support::seed());
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    QFile copy(folder.filePath(u"copy.tdb"_s));
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.close();
    for (int round = 0; round < 300; ++round) {
        QVERIFY(store.open(&file));
        for (int count = random.bounded(1, 40); count > 0; --count) {
            const QString id = QString::number(random.bounded(100));
            if (random.bounded(3) == 0)
                store.remove(id);
            else
                store.insert(record(id, QString(random.bounded(100), u'x')));
        }
        store.close();
        if (random.bounded(10) == 0) {
            // Damage that the store comes to know by reading.
            QByteArray bytes = contentOf(file.fileName());
            bytes[bytes.lastIndexOf("text=") + 4] = '!';
            bytes += "no line end";
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
            file.close();
        }
        if (random.bounded(10) != 0)
            continue;
        copy.remove();
        QVERIFY(file.copy(copy.fileName()));
        QVERIFY(purge(&copy));
        QVERIFY(store.open(&file));
        QVERIFY(store.purge());
        QCOMPARE(contentOf(file.fileName()), contentOf(copy.fileName()));
        const Seen seen = readStore(&copy);
        for (int id = 0; id < 100; ++id)
            QCOMPARE(store.contains(QString::number(id)), seen.sound.contains(QString::number(id)));
        store.close();
    }
}

void tst_VDBTextPurge::reindex_readsTheFileAnew()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"1"_s}}});
    QBuffer buffer(&bytes);
    VDBText store;
    QVERIFY(!store.reindex());
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    bytes = storeWith({{{u"B"_s, u"1"_s}}});
    QVERIFY(store.contains(u"A"_s));
    QVERIFY(store.reindex());
    QVERIFY(!store.contains(u"A"_s));
    QVERIFY(store.contains(u"B"_s));
}

void tst_VDBTextPurge::reindex_ofAFileThatIsNowKeyedNeedsTheKey()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"1"_s}}});
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(store.open(&buffer));
    bytes = storeWith({{{u"A"_s, u"1"_s}}}, u"secret"_s);
    QVERIFY(!store.reindex());
    QCOMPARE(store.status(), VDBStatus::KeyRequired);
}

QTEST_GUILESS_MAIN(tst_VDBTextPurge)
#include "tst_VDBTextPurge.moc"
