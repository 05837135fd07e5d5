// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <string>
#include <thread>

namespace Support {

/// Aborts the program, saying what hangs, unless it is destroyed in time.
class Watchdog
{
public:
    explicit Watchdog(std::string what, std::chrono::seconds limit = std::chrono::seconds(60))
        : m_thread([this, what = std::move(what), limit] { guard(what, limit); })
    { }
    Watchdog(const Watchdog &) = delete;
    Watchdog &operator=(const Watchdog &) = delete;
    ~Watchdog()
    {
        {
            const std::lock_guard lock(m_mutex);
            m_isDone = true;
        }
        m_end.notify_one();
        m_thread.join();
    }

private:
    void guard(const std::string &what, std::chrono::seconds limit)
    {
        std::unique_lock lock(m_mutex);
        if (m_end.wait_for(lock, limit, [this] { return m_isDone; }))
            return;
        std::fprintf(stderr, "hangs: %s\n", what.c_str());
        std::abort();
    }

    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isDone = false;
    std::thread m_thread; // last: it uses the members above
};

} // namespace Support
