// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Seed.h"
#include "support/Watchdog.h"

#include <QtTest/QTest>

#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>

#include <atomic>
#include <thread>
#include <vector>

using namespace Support;

/// Many threads on one database, and many databases on one file.
class tst_threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomOperations_endInADatabaseEqualToItsFile_data();
    void randomOperations_endInADatabaseEqualToItsFile();
    void databasesOnOneFile_loseNoEdit();
    void edits_fromManyThreadsAreAllThere();
    void queries_seeTheOldContentOrTheNew();

private:
    QString path(const QString &name) const { return m_dir.filePath(name); }
    void doRandomThings(VPrintersDb &database, quint32 seed) const;

    QTemporaryDir m_dir;
};

// Persistent and volatile entries have names of their own, since an entry that was both in turn may
// by the rules end up in the file alone.
void tst_threads::doRandomThings(VPrintersDb &database, quint32 seed) const
{
    QRandomGenerator random(seed);
    const auto name = [&](const char *kind) {
        return QString::fromLatin1(kind) + QString::number(random.bounded(8));
    };
    for (int i = 0; i < 60; ++i) {
        switch (random.bounded(16)) {
        case 0:
            database.commit();
            break;
        case 1:
            database.purge();
            break;
        case 2:
            database.reindex();
            break;
        case 3:
            database.backup(m_dir.path(), u"to.tdb"_s);
            break;
        case 4:
            database.restore(m_dir.path(), u"to.tdb"_s, random.bounded(2) == 0);
            break;
        case 5:
            database.waitForFinished();
            break;
        case 6:
        case 7:
            database.replaceVolatile(printers({name("volatile "), name("volatile ")}));
            break;
        case 8:
        case 9:
        case 10:
            database.removes(printers({name("persistent "), name("persistent ")}));
            break;
        case 11:
            database.createUniqueName(printer(name("persistent ")), QString());
            break;
        default:
            database.insert(renamed(printer(name("persistent ")), QString::number(i)));
            break;
        }
    }
}

void tst_threads::randomOperations_endInADatabaseEqualToItsFile_data()
{
    QTest::addColumn<bool>("background");
    QTest::newRow("in the background") << true;
    QTest::newRow("in the callers' threads") << false;
}

void tst_threads::randomOperations_endInADatabaseEqualToItsFile()
{
    QFETCH(bool, background);
    const Watchdog watchdog(QTest::currentDataTag());
    const quint32 first = seed();
    VPrintersDb database(path(u"threads.tdb"_s), u"key"_s);
    database.init(background);
    std::atomic<int> running = 8;
    std::vector<std::thread> threads;
    for (quint32 i = 0; i < 8; ++i) {
        threads.emplace_back([&, i] {
            doRandomThings(database, first + i);
            --running;
        });
    }
    while (running > 0) {
        QCoreApplication::processEvents();
        database.init(background);
    }
    for (std::thread &thread : threads)
        thread.join();
    database.commit();
    database.waitForFinished();
    QVERIFY(!database.isDirty());
    QList<VPrinterDriver> persistent;
    for (const VPrinterDriver &driver : database.values()) {
        if (!database.isVolatile(driver.dataId()))
            persistent += driver;
    }
    QCOMPARE(stored(path(u"threads.tdb"_s), u"key"_s), storedFrom(persistent));
}

void tst_threads::databasesOnOneFile_loseNoEdit()
{
    const Watchdog watchdog("many databases on one file");
    // Which of them creates the file is left to chance.
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            VPrintersDb database(path(u"shared.tdb"_s), QString());
            database.init(true);
            for (int n = 0; n < 10; ++n) {
                database.insert(printer(u"%1/%2"_s.arg(i).arg(n)));
                database.commit();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(stored(path(u"shared.tdb"_s)).size(), 40);
}

void tst_threads::edits_fromManyThreadsAreAllThere()
{
    const Watchdog watchdog("edits from many threads");
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(true);
    std::vector<std::thread> threads;
    threads.reserve(8);
    for (int i = 0; i < 8; ++i) {
        threads.emplace_back([&, i] {
            for (int n = 0; n < 25; ++n) {
                database.insert(printer(u"%1/%2"_s.arg(i).arg(n)));
                if (n % 5 == 0)
                    database.commit();
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(database.count(), 200);
    database.commit();
    database.waitForFinished();
    QCOMPARE(stored(buffer.data()), storedFrom(database.values()));
}

// A load replaces the content in one step.
void tst_threads::queries_seeTheOldContentOrTheNew()
{
    const Watchdog watchdog("queries beside loads");
    QVERIFY(makeFile(path(u"queries.tdb"_s), printers({u"A"_s, u"B"_s, u"C"_s})));
    VPrintersDb database(path(u"queries.tdb"_s), QString());
    std::atomic<bool> isDone = false;
    std::atomic<bool> isWhole = true;
    std::thread reader([&] {
        while (!isDone) {
            const qsizetype count = database.values().size();
            if (count != 0 && count != 3)
                isWhole = false;
        }
    });
    for (int i = 0; i < 50; ++i)
        database.init(true);
    database.waitForFinished();
    isDone = true;
    reader.join();
    QVERIFY(isWhole);
    QCOMPARE(database.count(), 3);
}

QTEST_GUILESS_MAIN(tst_threads)
#include "tst_threads.moc"
