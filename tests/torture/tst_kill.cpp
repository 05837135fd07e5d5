// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RandomSteps.h"
#include "support/Child.h"
#include "support/Seed.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

using namespace Torture;

namespace {

/// Whether there is nothing yet, or only what a death during the creation leaves.
bool isUnborn(const QString &path)
{
    QFile file(path);
    Norvane::Database::VDBText store;
    store.setKey({}, u""_s);
    return !file.exists()
        || (!store.open(&file) && store.status() == Norvane::Database::VDBStatus::Empty);
}

} // namespace

/// Programs that commit and are killed at random moments.
class tst_kill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kill_losesNothingAcknowledged();

private:
    void killOne();
    void startAnew();
    void check(quint32 acknowledged, int result);

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(u"Printers.tdb"_s);
    quint32 m_seed = 0;
    QRandomGenerator m_random;
    quint32 m_step = 0; ///< The next one to live.
    Stored m_state; ///< What the file held when it was last looked at.
    quint32 m_acknowledged = 0;
    int m_inFlight = 0; ///< Steps that were found done though nobody had said so.
    int m_lost = 0;
    int m_unreadable = 0;
};

// One file goes through all the deaths, but for a new one now and then, whose creation is then
// among what is interrupted.
void tst_kill::kill_losesNothingAcknowledged()
{
    const Watchdog watchdog("killed programs", tortureLimit());
    m_seed = seed();
    m_random.seed(m_seed);
    const int kills = rounds(300, 10'000);
    int killed = 0;
    while (killed < kills && !QTest::currentTestFailed()) {
        if (killed % 50 == 0)
            startAnew();
        killOne();
        ++killed;
    }
    figure(u"killed %1 times, after %2 acknowledged commits and purges: %3 acknowledged lost, "
           "%4 files unreadable (%5 found done unsaid)"_s.arg(killed)
               .arg(m_acknowledged)
               .arg(m_lost)
               .arg(m_unreadable)
               .arg(m_inFlight));
    QCOMPARE(m_lost, 0);
    QCOMPARE(m_unreadable, 0);
}

void tst_kill::startAnew()
{
    QFile::remove(m_path);
    m_step = 0;
    m_state.clear();
}

void tst_kill::killOne()
{
    Child child(QStringLiteral(COMMITTER),
                {m_path, QString::number(m_seed), QString::number(m_step)});
    // One in four dies while it starts, loads, or creates the file.
    const bool isEarly = m_random.bounded(4) == 0;
    if (!isEarly)
        child.readUntil(1 + m_random.bounded(8));
    child.readFor(std::chrono::microseconds(m_random.bounded(isEarly ? 40'000 : 4'000)));
    child.kill();
    const int result = child.wait();
    check(quint32(child.output().size()), result);
}

void tst_kill::check(quint32 acknowledged, int result)
{
    // It ends by itself only when the database has refused something.
    QCOMPARE(result, -SIGKILL);
    m_acknowledged += acknowledged;
    for (const quint32 end = m_step + acknowledged; m_step < end; ++m_step)
        m_state = after(m_state, stepAt(m_seed, m_step));
    if (m_step == 0 && isUnborn(m_path))
        return;
    const Stored next = after(m_state, stepAt(m_seed, m_step));
    const Stored found = stored(m_path);
    if (found == next) {
        m_inFlight += next == m_state ? 0 : 1;
        m_state = next;
        ++m_step;
        return;
    }
    if (found == m_state)
        return;
    ++(found.contains(u"cannot be opened"_s) ? m_unreadable : m_lost);
    m_folder.setAutoRemove(false);
    QFAIL(qPrintable(u"before step %1 of seed %2: see %3"_s.arg(m_step).arg(m_seed).arg(m_path)));
}

QTEST_GUILESS_MAIN(tst_kill)
#include "tst_kill.moc"
