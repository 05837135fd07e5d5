// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RandomSteps.h"
#include "support/FolderHistory.h"
#include "support/Seed.h"
#include "support/Torture.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <optional>

using namespace Torture;

namespace {

/// What the file of a database holds; nothing when there is no database yet.
using State = std::optional<Stored>;

State stateOf(const std::optional<QByteArray> &bytes)
{
    if (!bytes)
        return std::nullopt;
    QByteArray copy = *bytes;
    QBuffer buffer(&copy);
    Norvane::Database::VDBText store;
    store.setKey(u"key"_s, u""_s);
    if (!store.open(&buffer) && store.status() == Norvane::Database::VDBStatus::Empty)
        return std::nullopt;
    store.close();
    return stored(copy, u"key"_s);
}

/// A step of a recorded life.
struct Done
{
    int begin; ///< How many moments there were before it, and after it.
    int end;
    State after;
};

} // namespace

/// The power goes while a database works on a real file: creations, commits into filling, purges
/// that put another file in its place.
class tst_power_cut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void powerCut_leavesTheOldStateOrTheNewAndLosesNothingAcknowledged();

private:
    void startAnew();
    void live();
    void liveStep(VPrintersDb &database);
    void cutAndCheck();

    QTemporaryDir m_folder{folderInMemory()};
    const QString m_path = m_folder.filePath(u"Printers.tdb"_s);
    quint32 m_seed = 0;
    QRandomGenerator m_random;
    std::unique_ptr<FolderHistory> m_history;
    std::vector<Done> m_done;
    std::optional<QByteArray> m_found; ///< What the last cut has left, and what it holds.
    State m_state;
    quint32 m_step = 0;
    int m_counts[3] = {}; ///< Cuts that left no database yet, the old state, the new one.
};

// A life is some steps on what an earlier cut has left. It ends in many ways, each of which is
// looked at; the last of them is what the next life begins with.
void tst_power_cut::powerCut_leavesTheOldStateOrTheNewAndLosesNothingAcknowledged()
{
    FileCalls::watch(m_folder.path().toStdString());
    m_seed = seed();
    const int states = rounds(1'000, 20'000);
    constexpr int kStatesOfALife = 20;
    constexpr int kLivesOfAFile = 8;
    for (int i = 0; i < states; ++i) {
        if (i % (kStatesOfALife * kLivesOfAFile) == 0)
            startAnew();
        if (i % kStatesOfALife == 0)
            live();
        cutAndCheck();
        if (QTest::currentTestFailed()) {
            qWarning("state %d of KILNJET_SEED=%u", i, m_seed);
            return;
        }
    }
    figure(u"power of a file cut %1 times in %2 commits and purges: 0 acknowledged lost, 0 torn "
           "(%3 times no database yet, %4 times before a change, %5 times after it)"_s.arg(states)
               .arg(m_step)
               .arg(m_counts[0])
               .arg(m_counts[1])
               .arg(m_counts[2]));
}

void tst_power_cut::startAnew()
{
    m_random.seed(m_seed + m_step);
    m_found.reset();
    m_state.reset();
}

void tst_power_cut::live()
{
    QFile::remove(m_path);
    if (m_found)
        QVERIFY(writeBytes(m_path, *m_found));
    m_history = std::make_unique<FolderHistory>(m_path, m_path + u".new"_s);
    FileCalls::setJudge([this](const FileCall &call) {
        m_history->see(call);
        return FileCallFate();
    });
    m_done = {{-1, 0, m_state}};
    {
        VPrintersDb database(m_path, u"key"_s);
        database.init(false);
        QVERIFY(database.isReady());
        if (!m_state)
            m_done.push_back({0, m_history->moments(), Stored()});
        for (int i = m_random.bounded(6); i >= 0; --i)
            liveStep(database);
    }
    FileCalls::setJudge(nullptr);
}

void tst_power_cut::liveStep(VPrintersDb &database)
{
    const Step step = stepAt(m_seed, m_step++);
    const int begin = m_history->moments();
    QVERIFY(take(database, step));
    m_done.push_back({begin, m_history->moments(), after(*m_done.back().after, step)});
}

void tst_power_cut::cutAndCheck()
{
    const int cut = m_random.bounded(m_history->moments());
    m_found = m_history->afterCut(cut, m_random);
    m_state = stateOf(m_found);
    QList<State> allowed;
    for (const Done &done : m_done) {
        if (done.end <= cut)
            allowed.clear();
        if (done.begin <= cut)
            allowed.append(done.after);
    }
    QVERIFY(allowed.contains(m_state));
    ++m_counts[!m_state ? 0 : m_state == allowed.first() ? 1 : 2];
    // It goes on from there as if nothing had happened.
    const VPrinterDriver added = printer(u"added"_s);
    QBuffer buffer;
    buffer.setData(m_found.value_or(QByteArray()));
    {
        VPrintersDb database(&buffer, u"key"_s);
        database.init(false);
        database.insert(added);
    }
    Stored expected = m_state.value_or(Stored());
    expected.insert(idText(added), jsonText(added));
    QCOMPARE(stored(buffer.data(), u"key"_s), expected);
}

QTEST_GUILESS_MAIN(tst_power_cut)
#include "tst_power_cut.moc"
