// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

namespace Norvane::Kilnjet::Tool {

/// The last line of a terminal, rewritten in place while a step lasts: what is being done, and how
/// far it is. It appears when the step has lasted for a while, and goes when the step ends.
///
/// A thread of its own draws it, so that a step which cannot tell how far it is shows all the same
/// that something is going on. begin(), advance() and clear() are for the thread of the step.
class ProgressLine
{
public:
    static constexpr std::chrono::milliseconds kUsualDelay{500};

    /// `screen` is a terminal, open for writing, and outlives the line.
    ProgressLine(std::FILE *screen, const QString &label,
                 std::chrono::milliseconds delay = kUsualDelay);
    Q_DISABLE_COPY_MOVE(ProgressLine)
    ~ProgressLine();

    /// From now on there are `total` things to do, none of which is done.
    void begin(qint64 total);
    /// One more of them is done.
    void advance() { ++m_done; }
    /// Takes the line away for something else to be written; it will come again.
    void clear();

private:
    void run();
    void _draw();
    void _clear();
    QString text() const;

    std::FILE *const m_screen;
    const QString m_label;
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
    const std::chrono::milliseconds m_delay;
    std::atomic<qint64> m_done = 0;
    std::atomic<qint64> m_total = 0;

    // Under the lock.
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isOver = false;
    int m_width = 0; ///< How many columns are drawn at present.

    std::thread m_thread;
};

} // namespace Norvane::Kilnjet::Tool
