// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "DbLock.h"

#include <QtCore/qglobal.h>

#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

namespace Norvane::Kilnjet {

/// The background jobs of one database: a queue, and a runner on the global thread pool.
///
/// A job is claimed only by a thread that holds the database's lock, so one runs at a time, in
/// order, and a thread inside the lock never waits for another: what is unclaimed it runs itself.
/// Shared by the database and its runner, which the pool may start when the database is long gone.
/// docs/waiting.md explains why it is so.
///
/// Threads: any.
class DbJobs : public std::enable_shared_from_this<DbJobs>
{
public:
    enum class Job
    {
        Load,
        Commit
    };
    using Work = std::function<void(Job job)>;

    /// `work` runs a job; it is called inside the lock.
    explicit DbJobs(Work work);
    Q_DISABLE_COPY_MOVE(DbJobs)

    /// The database's lock.
    DbLock &lock() { return m_lock; }

    /// Queues a job. Not another commit behind one that nobody has claimed: that one has not yet
    /// looked at what there is to write.
    void schedule(Job job);
    /// Returns when every job scheduled so far is done, but those of the calling thread itself.
    void wait();
    /// Likewise, for the loads only.
    void waitForLoads();
    /// Runs what is unclaimed. The caller holds the lock.
    void runPending();
    /// The job that runs has its result in memory and in the file; all that is left is to say so.
    void noteResult();
    /// True when no job is queued and none is without its result.
    bool isIdle() const;
    /// Refuses every job from now on.
    void close();

private:
    using Ticket = quint64;
    struct Pending
    {
        Ticket ticket = 0;
        Job job = Job::Load;
    };
    enum class Runner
    {
        None,
        Queued,
        Running
    };
    class RunnerTask;

    void waitFor(Ticket last);
    bool isDone(Ticket last) const;
    bool hasUnclaimedCommit() const;
    bool runNext(Ticket last);
    void runUpTo(Ticket last);
    bool startRunner();
    void run();
    bool endRunnerIfIdle();
    bool isStarved() const;

    DbLock m_lock;
    const Work m_work;

    mutable std::mutex m_mutex; // the innermost lock: nothing is called inside it
    std::condition_variable m_progress;
    // Under m_mutex.
    std::deque<Pending> m_pending;
    std::vector<Ticket> m_running; // the outermost first: a slot of a job may run the next ones
    Ticket m_last = 0;
    Ticket m_lastLoad = 0;
    Runner m_runner = Runner::None;
    bool m_resultMissing = false;
    bool m_closed = false;
};

} // namespace Norvane::Kilnjet
