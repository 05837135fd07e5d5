// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DbLock.h"

// A distribution's Qt is not instrumented: ThreadSanitizer sees no order between two holders of a
// QRecursiveMutex unless it is told.
#if defined(__SANITIZE_THREAD__)
#define KILNJET_TSAN
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KILNJET_TSAN
#endif
#endif
#if defined(KILNJET_TSAN)
#include <sanitizer/tsan_interface.h>
#endif

namespace Norvane::Kilnjet {

namespace {

void noteAcquired([[maybe_unused]] DbLock *lock)
{
#if defined(KILNJET_TSAN)
    __tsan_acquire(lock);
#endif
}

void noteReleased([[maybe_unused]] DbLock *lock)
{
#if defined(KILNJET_TSAN)
    __tsan_release(lock);
#endif
}

} // namespace

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
