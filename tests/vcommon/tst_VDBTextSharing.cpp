// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <thread>

using namespace Support;
using namespace std::chrono_literals;

class tst_VDBTextSharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writer_keepsOthersOutUntilItCloses();
    void readers_shareTheFile();
    void reader_keepsWritersOut();
    void open_waitsForTheFileAndGoesOn();
    void stores_thatTakeTurnsSeeEachOther();
    void open_afterASwapSeesTheNewFile();
    void writers_inManyThreadsLoseNothing();

private:
    QTemporaryDir m_folder;
    QString m_path;
    int m_count = 0;
};

void tst_VDBTextSharing::init()
{
    m_path = m_folder.filePath(u"%1.tdb"_s.arg(++m_count));
    QFile file(m_path);
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.close();
}

void tst_VDBTextSharing::writer_keepsOthersOutUntilItCloses()
{
    QFile one(m_path);
    QFile two(m_path);
    VDBText writer;
    writer.setKey({}, toWrite());
    QVERIFY(writer.open(&one));
    VDBText other;
    other.setLockTimeout(20ms);
    for (const QString &intent : {toRead(), toWrite()}) {
        other.setKey({}, intent);
        QVERIFY(!other.open(&two));
        QCOMPARE(other.status(), VDBStatus::Locked);
        QVERIFY(!two.isOpen());
    }
    writer.close();
    QVERIFY(other.open(&two));
}

void tst_VDBTextSharing::readers_shareTheFile()
{
    QFile one(m_path);
    QFile two(m_path);
    VDBText first;
    VDBText second;
    second.setLockTimeout(0ms);
    first.setKey({}, toRead());
    second.setKey({}, toRead());
    QVERIFY(first.open(&one));
    QVERIFY(second.open(&two));
}

void tst_VDBTextSharing::reader_keepsWritersOut()
{
    QFile one(m_path);
    QFile two(m_path);
    VDBText reader;
    reader.setKey({}, toRead());
    QVERIFY(reader.open(&one));
    VDBText writer;
    writer.setLockTimeout(0ms);
    writer.setKey({}, toWrite());
    QVERIFY(!writer.open(&two));
    QCOMPARE(writer.status(), VDBStatus::Locked);
}

void tst_VDBTextSharing::open_waitsForTheFileAndGoesOn()
{
    QFile one(m_path);
    VDBText writer;
    writer.setKey({}, toWrite());
    QVERIFY(writer.open(&one));
    writer.insert(record(u"A"_s, u"x"_s));
    bool isCommitted = false;
    std::thread waiting([&] {
        QFile two(m_path);
        isCommitted = commit(&two, {{u"B"_s, u"y"_s}});
    });
    writer.close();
    waiting.join();
    QVERIFY(isCommitted);
    QCOMPARE(readStore(&one).sound.size(), 2);
}

// A batch that is written into filling does not change the size of the file.
void tst_VDBTextSharing::stores_thatTakeTurnsSeeEachOther()
{
    constexpr int kTurns = 3000;
    std::array<VDBText, 2> stores;
    std::array<QFile, 2> files;
    for (std::size_t i = 0; i < 2; ++i) {
        stores[i].setKey({}, toWrite());
        files[i].setFileName(m_path);
    }
    for (int turn = 0; turn < kTurns; ++turn) {
        VDBText &store = stores[std::size_t(turn % 2)];
        QVERIFY(store.open(&files[std::size_t(turn % 2)]));
        QVERIFY(turn == 0 || store.contains(u"turn %1"_s.arg(turn - 1)));
        QVERIFY(!store.contains(u"turn %1"_s.arg(turn - 2)));
        store.remove(u"turn %1"_s.arg(turn - 1));
        store.insert(record(u"turn %1"_s.arg(turn), u"x"_s));
        if (turn % 100 == 99)
            QVERIFY(store.purge());
        store.close();
        QVERIFY(store.wasDurable());
    }
}

void tst_VDBTextSharing::open_afterASwapSeesTheNewFile()
{
    QFile one(m_path);
    VDBText purger;
    purger.setKey({}, toWrite());
    QVERIFY(purger.open(&one));
    purger.insert(record(u"A"_s, u"x"_s));
    bool isCommitted = false;
    std::thread waiting([&] {
        QFile two(m_path);
        isCommitted = commit(&two, {{u"B"_s, u"y"_s}});
    });
    QVERIFY(purger.purge());
    purger.close();
    waiting.join();
    QVERIFY(isCommitted);
    QCOMPARE(readStore(&one).sound.size(), 2);
}

void tst_VDBTextSharing::writers_inManyThreadsLoseNothing()
{
    constexpr int kThreads = 4;
    constexpr int kCommits = 50;
    std::vector<std::thread> threads;
    std::atomic<int> failures = 0;
    for (int thread = 0; thread < kThreads; ++thread) {
        threads.emplace_back([this, thread, &failures] {
            QFile file(m_path);
            VDBText store;
            store.setLockTimeout(60s);
            for (int i = 0; i < kCommits; ++i) {
                store.setKey({}, toWrite());
                if (!store.open(&file)) {
                    ++failures;
                    continue;
                }
                store.insert(record(u"%1-%2"_s.arg(thread).arg(i), u"x"_s));
                if (i % 10 == 5 && !store.purge())
                    ++failures;
                store.close();
                failures += store.wasDurable() ? 0 : 1;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(failures.load(), 0);
    QFile file(m_path);
    const Seen seen = readStore(&file);
    QCOMPARE(seen.sound.size(), kThreads * kCommits);
    QVERIFY(seen.damage.empty());
}

QTEST_GUILESS_MAIN(tst_VDBTextSharing)
#include "tst_VDBTextSharing.moc"
