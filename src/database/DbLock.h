// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VPointer.h>

#include <QtCore/QRecursiveMutex>

#include <atomic>
#include <thread>

namespace Norvane::Kilnjet {

/// The recursive lock of one database, which knows whether the calling thread holds it.
///
/// Fits the standard guards (std::unique_lock<DbLock>). Every lock waits for as long as it takes.
class DbLock
{
public:
    DbLock();
    Q_DISABLE_COPY_MOVE(DbLock)

    void lock();
    void unlock();
    /// True when the calling thread is inside the lock.
    bool isHeldHere() const;

private:
    VPointer<QRecursiveMutex> m_mutex;
    // Written by the thread inside the lock only.
    std::atomic<std::thread::id> m_holder;
    int m_depth = 0;
};

} // namespace Norvane::Kilnjet
