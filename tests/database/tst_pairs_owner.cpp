// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Pairs.h"

using namespace Support;

/// Every pair of operations back to back in the owner's thread, in the background.
class tst_pairs_owner : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() const
    {
        figure(
            u"%1 runs of pairs of operations, in one thread: 0 hung, 0 edits lost"_s.arg(m_runs));
    }
    void pair_neitherHangsNorLosesAnEdit_data();
    void pair_neitherHangsNorLosesAnEdit();

private:
    int m_runs = 0;
};

void tst_pairs_owner::pair_neitherHangsNorLosesAnEdit_data()
{
    addPairs([](Operation, Operation) { return true; });
}

void tst_pairs_owner::pair_neitherHangsNorLosesAnEdit()
{
    QFETCH(Operation, first);
    QFETCH(Operation, second);
    QFETCH(bool, isWarm);
    const Watchdog watchdog(QTest::currentDataTag(), pairLimit());
    const bool keepsFirst = isCommit(first) || (!isLoad(first) && !isLoad(second));
    for (int i = pairRounds(first, second); i > 0; --i) {
        ++m_runs;
        Subject subject;
        isWarm ? makePoolWarm() : makePoolCold();
        const VPrinterDriver firstEdit = subject.edit();
        subject.run(first);
        const VPrinterDriver secondEdit = subject.edit();
        subject.run(second);
        subject.database().waitForFinished();
        QCOMPARE(subject.database().contains(firstEdit.dataId()), keepsFirst);
        // A commit that has not begun takes an edit behind it along, or not.
        if (first != Operation::Commit || !isLoad(second))
            QCOMPARE(subject.database().contains(secondEdit.dataId()), !isLoad(second));
        QVERIFY(subject.endsInAgreement());
    }
}

QTEST_GUILESS_MAIN(tst_pairs_owner)
#include "tst_pairs_owner.moc"
