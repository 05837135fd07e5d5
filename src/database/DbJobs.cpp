// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DbJobs.h"

#include "HappensBefore.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QRunnable>
#include <QtCore/QScopeGuard>
#include <QtCore/QThreadPool>

#include <algorithm>
#include <chrono>
#include <limits>

namespace Norvane::Kilnjet {

namespace {

// How long a waiting thread trusts that the pool will start the runner, before it looks.
constexpr std::chrono::milliseconds kPatience(50);

constexpr auto kEveryJob = std::numeric_limits<quint64>::max();

/// The pool; null when it is gone. It goes with the application, which a static database outlives,
/// and must not be asked for then.
QThreadPool *threadPool()
{
    return QCoreApplication::closingDown() ? nullptr : QThreadPool::globalInstance();
}

bool poolIsSaturated()
{
    const QThreadPool *pool = threadPool();
    return !pool || pool->activeThreadCount() >= std::max(1, pool->maxThreadCount());
}

} // namespace

/// What the pool owns. When it goes without having come to its end (QThreadPool::clear()), the jobs
/// must hear of it.
class DbJobs::RunnerTask final : public QRunnable
{
public:
    explicit RunnerTask(std::shared_ptr<DbJobs> jobs)
        : m_jobs(std::move(jobs))
    { }
    ~RunnerTask() override
    {
        if (m_ended)
            return;
        const std::lock_guard guard(m_jobs->m_mutex);
        m_jobs->m_runner = Runner::None;
        m_jobs->m_progress.notify_all();
    }

    void run() override
    {
        noteAcquired(this);
        try {
            m_jobs->run();
            m_ended = true;
        } catch (...) {
            // Out of memory. The job is over, its waiters know; there is nobody to pass it on to.
        }
    }

private:
    const std::shared_ptr<DbJobs> m_jobs;
    bool m_ended = false;
};

DbJobs::DbJobs(Work work)
    : m_work(std::move(work))
{ }

void DbJobs::schedule(Job job)
{
    {
        const std::lock_guard guard(m_mutex);
        if (m_closed || (job == Job::Commit && hasUnclaimedCommit()))
            return;
        m_pending.push_back({++m_last, job});
        if (job == Job::Load)
            m_lastLoad = m_last;
    }
    if (!startRunner()) {
        const std::lock_guard databaseGuard(m_lock);
        runPending();
    }
}

void DbJobs::wait()
{
    std::unique_lock guard(m_mutex);
    const Ticket last = m_last;
    guard.unlock();
    waitFor(last);
}

void DbJobs::waitForLoads()
{
    std::unique_lock guard(m_mutex);
    const Ticket last = m_lastLoad;
    const bool done = isDone(last);
    guard.unlock();
    if (!done)
        waitFor(last);
}

void DbJobs::waitFor(Ticket last)
{
    if (m_lock.isHeldHere()) {
        runUpTo(last);
        return;
    }
    std::unique_lock guard(m_mutex);
    while (!isDone(last)) {
        const bool runnerIsLost = m_runner == Runner::None && !m_pending.empty();
        if (!runnerIsLost && m_progress.wait_for(guard, kPatience) == std::cv_status::no_timeout)
            continue;
        guard.unlock();
        if (runnerIsLost ? !startRunner() : isStarved()) {
            const std::lock_guard databaseGuard(m_lock);
            runUpTo(last);
        }
        guard.lock();
    }
}

void DbJobs::runPending()
{
    runUpTo(kEveryJob);
}

void DbJobs::noteResult()
{
    const std::lock_guard guard(m_mutex);
    m_resultMissing = false;
}

bool DbJobs::isIdle() const
{
    const std::lock_guard guard(m_mutex);
    return m_pending.empty() && !m_resultMissing;
}

void DbJobs::close()
{
    const std::lock_guard guard(m_mutex);
    m_closed = true;
}

bool DbJobs::isDone(Ticket last) const
{
    return (m_running.empty() || m_running.front() > last)
        && (m_pending.empty() || m_pending.front().ticket > last);
}

bool DbJobs::hasUnclaimedCommit() const
{
    return std::any_of(m_pending.cbegin(), m_pending.cend(),
                       [](const Pending &pending) { return pending.job == Job::Commit; });
}

void DbJobs::runUpTo(Ticket last)
{
    while (runNext(last)) { }
}

/// Claims and runs the next job, if its ticket is not above `last`. The caller holds the lock.
bool DbJobs::runNext(Ticket last)
{
    std::unique_lock guard(m_mutex);
    if (m_pending.empty() || m_pending.front().ticket > last)
        return false;
    const Pending next = m_pending.front();
    m_pending.pop_front();
    m_running.push_back(next.ticket);
    m_resultMissing = true;
    guard.unlock();
    const auto done = qScopeGuard([this] {
        const std::lock_guard doneGuard(m_mutex);
        m_running.pop_back();
        m_resultMissing = false;
        m_progress.notify_all();
    });
    m_work(next.job);
    return true;
}

/// Gives a runner to the pool, unless there is one. False when there is no pool.
bool DbJobs::startRunner()
{
    QThreadPool *pool = threadPool();
    if (!pool)
        return false;
    {
        const std::lock_guard guard(m_mutex);
        if (m_runner != Runner::None || m_pending.empty())
            return true;
        m_runner = Runner::Queued;
    }
    auto task = std::make_unique<RunnerTask>(shared_from_this());
    noteReleased(task.get());
    pool->start(task.release());
    return true;
}

void DbJobs::run()
{
    {
        const std::lock_guard guard(m_mutex);
        m_runner = Runner::Running;
    }
    while (!endRunnerIfIdle()) {
        const std::lock_guard databaseGuard(m_lock);
        runNext(kEveryJob);
    }
}

bool DbJobs::endRunnerIfIdle()
{
    const std::lock_guard guard(m_mutex);
    if (!m_pending.empty())
        return false;
    m_runner = Runner::None;
    return true;
}

/// True when the runner waits for a thread of a pool that has none to give: its threads may be
/// waiting for the caller.
bool DbJobs::isStarved() const
{
    {
        const std::lock_guard guard(m_mutex);
        if (m_runner != Runner::Queued)
            return false;
    }
    return poolIsSaturated();
}

} // namespace Norvane::Kilnjet
