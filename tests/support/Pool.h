// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QThreadPool>

#include <semaphore>
#include <thread>
#include <utility>

namespace Support {

/// The global pool without threads: the next task has to start one.
inline void makePoolCold()
{
    QThreadPool::globalInstance()->waitForDone();
}

/// The global pool with an idle thread.
inline void makePoolWarm()
{
    QThreadPool *pool = QThreadPool::globalInstance();
    pool->start([] {});
    while (pool->activeThreadCount() > 0)
        std::this_thread::yield();
}

/// Occupies every thread of the global pool, reduced to one, until it is destroyed.
class SaturatedPool
{
public:
    SaturatedPool()
    {
        m_pool->waitForDone();
        m_pool->setMaxThreadCount(1);
        m_pool->start([this] {
            m_started.release();
            m_end.acquire();
            m_ended.release();
        });
        m_started.acquire();
    }
    Q_DISABLE_COPY_MOVE(SaturatedPool)
    ~SaturatedPool()
    {
        release();
        m_ended.acquire();
        m_pool->waitForDone();
        m_pool->setMaxThreadCount(m_threads);
    }

    /// Gives the thread back.
    void release()
    {
        if (!std::exchange(m_isReleased, true))
            m_end.release();
    }

private:
    QThreadPool *const m_pool = QThreadPool::globalInstance();
    const int m_threads = m_pool->maxThreadCount();
    std::binary_semaphore m_started{0};
    std::binary_semaphore m_end{0};
    std::binary_semaphore m_ended{0};
    bool m_isReleased = false;
};

} // namespace Support
