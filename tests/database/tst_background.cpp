// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Pool.h"
#include "support/Printers.h"
#include "support/Watchdog.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QTimer>

#include <atomic>
#include <memory>

using namespace Support;

namespace {

/// Appends the threads from which a signal comes.
void recordThreads(VPrintersDb &database, void (VPrintersDb::*signal)(), QList<QThread *> &threads)
{
    QObject::connect(
        &database, signal, &database, [&] { threads += QThread::currentThread(); },
        Qt::DirectConnection);
}

} // namespace

/// Loads and commits on the thread pool.
class tst_background : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_watchdog = std::make_unique<Watchdog>(QTest::currentTestFunction());
        m_buffer = std::make_unique<QBuffer>();
        m_database = std::make_unique<VPrintersDb>(m_buffer.get(), QString());
    }
    void cleanup()
    {
        m_database.reset();
        m_buffer.reset();
        m_watchdog.reset();
    }

    void init_returnsAtOnceAndIsReadyWhenLoaded();
    void init_emitsInitializedOnAPoolThread_data();
    void init_emitsInitializedOnAPoolThread();
    void ready_comesInTheOwnersThreadAndIsTrue();
    void job_isDoneWhenItSaysSo();
    void failure_isReportedFromThePool();
    void commit_writesOnAPoolThread();
    void commit_behindALoadLosesNoEdit();
    void edit_waitsForALoadThatWasAskedForBefore();
    void commit_behindAnUnclaimedCommitIsServedByIt();
    void commit_behindARunningCommitWritesWhatCameSince();
    void init_inTheForegroundEndsBackgroundWork();
    void waiting_inTheOnlyPoolThreadDoesTheWork();
    void waiting_onASaturatedPoolDoesTheWork();
    void destruction_onASaturatedPoolWritesEverything();
    void clearedPool_isNotWaitedForForever();
    void clearedPool_isReplacedByTheNextJob();
    void waiting_insideASlotOfTheJobReturns();
    void destructionSlot_mayAskForACommit();

private:
    std::unique_ptr<Watchdog> m_watchdog;
    std::unique_ptr<QBuffer> m_buffer;
    std::unique_ptr<VPrintersDb> m_database;
};

void tst_background::init_returnsAtOnceAndIsReadyWhenLoaded()
{
    SaturatedPool pool;
    QSignalSpy loads(m_database.get(), &VPrintersDb::initialized);
    m_database->init(true);
    QVERIFY(!m_database->isReady());
    QVERIFY(!m_database->isNull());
    QVERIFY(loads.isEmpty());
    QVERIFY(m_buffer->data().isEmpty());
    pool.release();
    m_database->waitForFinished();
    QVERIFY(m_database->isReady());
    QCOMPARE(loads.size(), 1);
}

void tst_background::init_emitsInitializedOnAPoolThread_data()
{
    QTest::addColumn<bool>("isWarm");
    QTest::newRow("with an idle thread") << true;
    QTest::newRow("with a new thread") << false;
}

void tst_background::init_emitsInitializedOnAPoolThread()
{
    QFETCH(bool, isWarm);
    isWarm ? makePoolWarm() : makePoolCold();
    QList<QThread *> threads;
    recordThreads(*m_database, &VPrintersDb::initialized, threads);
    m_database->init(true);
    m_database->waitForFinished();
    QCOMPARE(threads.size(), 1);
    QVERIFY(threads.first() != QThread::currentThread());
    QVERIFY(QThreadPool::globalInstance()->contains(threads.first()));
}

void tst_background::ready_comesInTheOwnersThreadAndIsTrue()
{
    QList<QThread *> threads;
    recordThreads(*m_database, &VPrintersDb::ready, threads);
    bool wasReady = false;
    connect(m_database.get(), &VPrintersDb::ready, this, [&] { wasReady = m_database->isReady(); });
    QSignalSpy readies(m_database.get(), &VPrintersDb::ready);
    m_database->init(true);
    QVERIFY(readies.wait());
    QCOMPARE(threads, QList<QThread *>{QThread::currentThread()});
    QVERIFY(wasReady);
    QCOMPARE(m_database->findChildren<QTimer *>().size(), 1);
}

void tst_background::job_isDoneWhenItSaysSo()
{
    std::atomic<int> readies = 0;
    for (const auto signal : {&VPrintersDb::initialized, &VPrintersDb::committed})
        connect(
            m_database.get(), signal, this, [&] { readies += m_database->isReady() ? 1 : 0; },
            Qt::DirectConnection);
    m_database->init(true);
    m_database->insert(printer(u"A"_s));
    QCOMPARE(readies, 1);
    m_database->commit();
    m_database->waitForFinished();
    QCOMPARE(readies, 2);
}

void tst_background::failure_isReportedFromThePool()
{
    VPrintersDb database(static_cast<QIODevice *>(nullptr), QString());
    QSignalSpy readies(&database, &VPrintersDb::ready);
    QList<QThread *> threads;
    recordThreads(database, &VPrintersDb::error, threads);
    database.init(true);
    database.waitForFinished();
    QVERIFY(database.isNull());
    QVERIFY(!database.isReady());
    QCOMPARE(threads.size(), 1);
    QVERIFY(threads.first() != QThread::currentThread());
    QCoreApplication::processEvents();
    QVERIFY(readies.isEmpty());
}

void tst_background::commit_writesOnAPoolThread()
{
    QList<QThread *> threads;
    recordThreads(*m_database, &VPrintersDb::committed, threads);
    m_database->init(true);
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    m_database->waitForFinished();
    QVERIFY(!m_database->isDirty());
    QCOMPARE(threads.size(), 1);
    QVERIFY(threads.first() != QThread::currentThread());
    QCOMPARE(stored(m_buffer->data()), storedFrom({printer(u"A"_s)}));
}

void tst_background::commit_behindALoadLosesNoEdit()
{
    for (int i = 0; i < 50; ++i) {
        i % 2 == 0 ? makePoolWarm() : makePoolCold();
        m_database->init(true);
        m_database->insert(printer(QString::number(i)));
        m_database->commit();
    }
    m_database->waitForFinished();
    QCOMPARE(m_database->count(), 50);
    QCOMPARE(stored(m_buffer->data()), storedFrom(m_database->values()));
}

void tst_background::edit_waitsForALoadThatWasAskedForBefore()
{
    m_database->init(false);
    m_database->insert(printer(u"in the file"_s));
    m_database->commit();
    const SaturatedPool pool;
    m_database->init(true);
    QVERIFY(m_database->insert(printer(u"new"_s)));
    QVERIFY(m_database->isReady());
    QCOMPARE(namesIn(*m_database), QStringList({u"in the file"_s, u"new"_s}));
    m_database->init(true);
    QVERIFY(m_database->remove(printer(u"in the file"_s)));
    m_database->init(true);
    QVERIFY(m_database->clear());
    m_database->waitForFinished();
    QCOMPARE(m_database->count(), 0);
}

void tst_background::commit_behindAnUnclaimedCommitIsServedByIt()
{
    m_database->init(true);
    m_database->waitForFinished();
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    SaturatedPool pool;
    for (const VPrinterDriver &driver : printers({u"A"_s, u"B"_s, u"C"_s})) {
        m_database->insert(driver);
        m_database->commit();
        QVERIFY(!m_database->isReady());
    }
    pool.release();
    m_database->waitForFinished();
    QCOMPARE(commits.size(), 1);
    QCOMPARE(stored(m_buffer->data()), storedFrom(printers({u"A"_s, u"B"_s, u"C"_s})));
}

void tst_background::commit_behindARunningCommitWritesWhatCameSince()
{
    m_database->init(true);
    m_database->insert(printer(u"A"_s));
    std::atomic<int> commits = 0;
    connect(
        m_database.get(), &VPrintersDb::committed, this,
        [&] {
            if (++commits > 1)
                return;
            m_database->insert(printer(u"B"_s));
            m_database->commit();
        },
        Qt::DirectConnection);
    m_database->commit();
    m_database->waitForFinished();
    // The first commit is done, so the second one has been asked for.
    m_database->waitForFinished();
    QCOMPARE(commits, 2);
    QVERIFY(!m_database->isDirty());
    QCOMPARE(stored(m_buffer->data()), storedFrom(printers({u"A"_s, u"B"_s})));
}

void tst_background::init_inTheForegroundEndsBackgroundWork()
{
    m_database->init(true);
    m_database->init(false);
    QVERIFY(m_database->isReady());
    QList<QThread *> threads;
    recordThreads(*m_database, &VPrintersDb::committed, threads);
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    QCOMPARE(threads, QList<QThread *>{QThread::currentThread()});
}

void tst_background::waiting_inTheOnlyPoolThreadDoesTheWork()
{
    QThreadPool *pool = QThreadPool::globalInstance();
    const int threads = pool->maxThreadCount();
    pool->waitForDone();
    pool->setMaxThreadCount(1);
    // Also what tells ThreadSanitizer, which does not know the pool, of the order of things.
    std::atomic<VPrintersDb *> database = m_database.get();
    std::atomic<bool> wasReady = false;
    pool->start([&] {
        database.load()->init(true);
        database.load()->waitForFinished();
        wasReady = database.load()->isReady();
    });
    pool->waitForDone();
    pool->setMaxThreadCount(threads);
    QVERIFY(wasReady);
}

void tst_background::waiting_onASaturatedPoolDoesTheWork()
{
    const SaturatedPool pool;
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    m_database->init(true);
    m_database->waitForFinished();
    QVERIFY(m_database->isReady());
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    m_database->waitForFinished();
    QCOMPARE(commits.size(), 1);
    QCOMPARE(stored(m_buffer->data()), storedFrom({printer(u"A"_s)}));
}

void tst_background::destruction_onASaturatedPoolWritesEverything()
{
    // The runner starts when the database is gone.
    const SaturatedPool pool;
    m_database->init(true);
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    m_database->insert(printer(u"B"_s));
    m_database.reset();
    QCOMPARE(stored(m_buffer->data()), storedFrom(printers({u"A"_s, u"B"_s})));
}

void tst_background::clearedPool_isNotWaitedForForever()
{
    SaturatedPool pool;
    m_database->init(true);
    QThreadPool::globalInstance()->clear();
    pool.release();
    m_database->waitForFinished();
    QVERIFY(m_database->isReady());
}

void tst_background::clearedPool_isReplacedByTheNextJob()
{
    SaturatedPool pool;
    QSignalSpy readies(m_database.get(), &VPrintersDb::ready);
    m_database->init(true);
    QThreadPool::globalInstance()->clear();
    QVERIFY(!m_database->isReady());
    m_database->commit();
    pool.release();
    QVERIFY(readies.wait());
}

void tst_background::waiting_insideASlotOfTheJobReturns()
{
    bool hasReturned = false;
    connect(
        m_database.get(), &VPrintersDb::initialized, this,
        [&] {
            m_database->waitForFinished();
            hasReturned = true;
        },
        Qt::DirectConnection);
    m_database->init(true);
    m_database->waitForFinished();
    QVERIFY(hasReturned);
}

void tst_background::destructionSlot_mayAskForACommit()
{
    m_database->init(true);
    m_database->insert(printer(u"A"_s));
    int commits = 0;
    VPrintersDb *database = m_database.get();
    connect(
        database, &VPrintersDb::committed, this,
        [&, database] {
            ++commits;
            database->commit();
        },
        Qt::DirectConnection);
    m_database.reset();
    // Whatever the pool has been given runs now.
    makePoolCold();
    QCOMPARE(commits, 1);
    QCOMPARE(stored(m_buffer->data()), storedFrom({printer(u"A"_s)}));
}

QTEST_GUILESS_MAIN(tst_background)
#include "tst_background.moc"
