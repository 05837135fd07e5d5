// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DbLock.h"

#include "HappensBefore.h"

namespace Norvane::Kilnjet {

DbLock::DbLock()
    : m_mutex(new QRecursiveMutex)
{ }

void DbLock::lock()
{
    m_mutex->lock();
    noteAcquired(this);
    if (m_depth++ == 0)
        m_holder = std::this_thread::get_id();
}

void DbLock::unlock()
{
    if (--m_depth == 0)
        m_holder = std::thread::id();
    noteReleased(this);
    m_mutex->unlock();
}

bool DbLock::isHeldHere() const
{
    return m_holder == std::this_thread::get_id();
}

} // namespace Norvane::Kilnjet
