// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QThreadPool>

#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace Support {

/// Calls `task(0)` to `task(count - 1)`, each on a thread of its own, all at once.
///
/// Standard threads: a thread sanitizer sees them begin and end, which it does not with Qt's.
inline void inThreads(int count, const std::function<void(int)> &task)
{
    std::vector<std::thread> threads;
    threads.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        threads.emplace_back(task, i);
    for (std::thread &thread : threads)
        thread.join();
}

/// Calls `task` on a thread of a Qt pool and waits for its end.
inline void onThePool(const std::function<void()> &task)
{
    // Handed over under a lock, where a thread sanitizer sees it: of the pool's own it sees none.
    static std::mutex mutex;
    static const std::function<void()> *handedOver = nullptr;
    {
        const std::lock_guard lock(mutex);
        handedOver = &task;
    }
    QThreadPool pool;
    pool.start([] {
        const std::lock_guard lock(mutex);
        (*handedOver)();
    });
    pool.waitForDone();
    const std::lock_guard lock(mutex);
    handedOver = nullptr;
}

} // namespace Support
