// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Pairs.h"

#include <QtCore/QTimer>

using namespace Support;

/// Every operation between the commits of one to ten timers, in the background.
class tst_pairs_timers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanupTestCase() const
    {
        figure(u"%1 runs of operations beside one to ten commit timers: 0 hung, 0 edits lost"_s.arg(
            m_runs));
    }
    void timers_neitherHangNorLoseAnEdit_data();
    void timers_neitherHangNorLoseAnEdit();

private:
    int m_runs = 0;
};

namespace {

/// What the passing of their interval does, all at once.
void fireTimers(VPrintersDb &database)
{
    for (QTimer *timer : database.findChildren<QTimer *>()) {
        timer->stop();
        QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
    }
}

} // namespace

void tst_pairs_timers::timers_neitherHangNorLoseAnEdit_data()
{
    QTest::addColumn<Operation>("operation");
    QTest::addColumn<int>("timers");
    QTest::addColumn<bool>("isWarm");
    for (const Operation operation : kOperations) {
        for (int timers = 1; timers <= 10; ++timers) {
            for (const bool isWarm : {true, false})
                QTest::addRow("%d timers, %s, %s", timers, nameOf(operation),
                              isWarm ? "idle threads" : "new threads")
                    << operation << timers << isWarm;
        }
    }
}

void tst_pairs_timers::timers_neitherHangNorLoseAnEdit()
{
    QFETCH(Operation, operation);
    QFETCH(int, timers);
    QFETCH(bool, isWarm);
    const Watchdog watchdog(QTest::currentDataTag(), pairLimit());
    for (int i = rounds(2, 200); i > 0; --i) {
        ++m_runs;
        Subject subject;
        for (int n = 1; n < timers; ++n)
            subject.database().init(true);
        subject.database().waitForFinished();
        QCoreApplication::processEvents(); // Each load has its timer made here.
        QCOMPARE(subject.database().findChildren<QTimer *>().size(), timers);
        isWarm ? makePoolWarm() : makePoolCold();
        const VPrinterDriver firstEdit = subject.edit();
        fireTimers(subject.database());
        subject.run(operation);
        const VPrinterDriver secondEdit = subject.edit();
        fireTimers(subject.database());
        QCoreApplication::processEvents();
        subject.database().waitForFinished();
        QVERIFY(subject.database().contains(firstEdit.dataId()));
        QVERIFY(subject.database().contains(secondEdit.dataId()));
        QVERIFY(subject.endsInAgreement());
    }
}

QTEST_GUILESS_MAIN(tst_pairs_timers)
#include "tst_pairs_timers.moc"
