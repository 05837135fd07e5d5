// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Pairs.h"

using namespace Support;

/// Every pair of operations, the second one from inside a slot that is called directly.
class tst_pairs_slots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() const
    {
        figure(
            u"%1 runs of pairs of operations, one in a slot: 0 hung, 0 edits lost"_s.arg(m_runs));
    }
    void pair_fromASlotOfChanged_data();
    void pair_fromASlotOfChanged();
    void pair_fromASlotOfCommitted_data();
    void pair_fromASlotOfCommitted();

private:
    void runPair(void (VPrintersDb::*signal)());

    int m_runs = 0;
};

// A database must not be destroyed from a slot of its own.
void tst_pairs_slots::pair_fromASlotOfChanged_data()
{
    addPairs([](Operation, Operation second) { return second != Operation::Destroy; });
}

void tst_pairs_slots::pair_fromASlotOfChanged()
{
    runPair(&VPrintersDb::changed);
}

// committed() comes from a pool thread as well, where nothing may be initialised.
void tst_pairs_slots::pair_fromASlotOfCommitted_data()
{
    addPairs([](Operation, Operation second) { return !isForTheOwner(second); });
}

void tst_pairs_slots::pair_fromASlotOfCommitted()
{
    runPair(&VPrintersDb::committed);
}

void tst_pairs_slots::runPair(void (VPrintersDb::*signal)())
{
    QFETCH(Operation, first);
    QFETCH(Operation, second);
    QFETCH(bool, isWarm);
    const Watchdog watchdog(QTest::currentDataTag(), pairLimit());
    for (int i = pairRounds(first, second); i > 0; --i) {
        ++m_runs;
        Subject subject;
        isWarm ? makePoolWarm() : makePoolCold();
        std::atomic<int> calls = 0;
        const auto connectSlot = [&] {
            connect(
                &subject.database(), signal, this,
                [&, database = &subject.database()] {
                    if (++calls == 1)
                        subject.run(second, *database);
                },
                Qt::DirectConnection);
        };
        connectSlot();
        const VPrinterDriver edit = subject.edit();
        subject.run(first);
        if (first == Operation::Destroy)
            connectSlot();
        // Whatever the first operation was, the signal has come after this.
        subject.edit();
        subject.database().commit();
        subject.database().waitForFinished();
        QVERIFY(calls > 0);
        if (!isLoad(first) && !isLoad(second))
            QVERIFY(subject.database().contains(edit.dataId()));
        QVERIFY(subject.endsInAgreement());
    }
}

QTEST_GUILESS_MAIN(tst_pairs_slots)
#include "tst_pairs_slots.moc"
