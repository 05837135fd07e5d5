// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Results.h"
#include "stores/Contender.h"

#include <ctime>

namespace Bench {

/// Measures from its making on.
class Stopwatch
{
public:
    explicit Stopwatch(Contender &contender)
        : m_contender(contender)
    {
        m_contender.takeStoreTime();
        m_cpu = cpuMs();
        m_wall = Clock::now();
    }

    Sample stop() const
    {
        Sample sample;
        sample.wall = ms(Clock::now() - m_wall);
        sample.cpu = cpuMs() - m_cpu;
        if (const auto time = m_contender.takeStoreTime())
            sample.store = ms(*time);
        return sample;
    }

private:
    static double ms(Clock::duration duration)
    {
        return std::chrono::duration<double, std::milli>(duration).count();
    }

    static double cpuMs()
    {
        timespec now{};
        clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
        return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
    }

    Contender &m_contender;
    double m_cpu = 0;
    Clock::time_point m_wall;
};

} // namespace Bench
