// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Pairs.h"

#include <barrier>
#include <thread>

using namespace Support;

/// Every pair of operations at the same time in two threads, in the background.
class tst_pairs_threads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() const
    {
        figure(
            u"%1 runs of pairs of operations, in two threads: 0 hung, 0 edits lost"_s.arg(m_runs));
    }
    void pair_neitherHangsNorLosesAnEdit_data();
    void pair_neitherHangsNorLosesAnEdit();

private:
    int m_runs = 0;
};

// What only the owner's thread may do runs there, the other operation in a thread of its own.
void tst_pairs_threads::pair_neitherHangsNorLosesAnEdit_data()
{
    addPairs([](Operation first, Operation second) {
        return !isForTheOwner(first) || !isForTheOwner(second);
    });
}

void tst_pairs_threads::pair_neitherHangsNorLosesAnEdit()
{
    QFETCH(Operation, first);
    QFETCH(Operation, second);
    QFETCH(bool, isWarm);
    const Watchdog watchdog(QTest::currentDataTag(), pairLimit());
    const Operation own = isForTheOwner(second) ? second : first;
    const Operation other = isForTheOwner(second) ? first : second;
    for (int i = pairRounds(first, second); i > 0; --i) {
        ++m_runs;
        Subject subject;
        isWarm ? makePoolWarm() : makePoolCold();
        const VPrinterDriver edit = subject.edit();
        // A database must be left alone while it is destroyed.
        if (own == Operation::Destroy && other == second)
            subject.run(own);
        std::barrier start(2);
        std::thread thread([&] {
            start.arrive_and_wait();
            subject.run(other);
        });
        start.arrive_and_wait();
        if (own != Operation::Destroy)
            subject.run(own);
        thread.join();
        if (own == Operation::Destroy && other == first)
            subject.run(own);
        subject.database().waitForFinished();
        if (!isLoad(first) && !isLoad(second))
            QVERIFY(subject.database().contains(edit.dataId()));
        QVERIFY(subject.endsInAgreement());
    }
}

QTEST_GUILESS_MAIN(tst_pairs_threads)
#include "tst_pairs_threads.moc"
