// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "DbJobs.h"
#include "DriverMap.h"

#include <kilnjet/VPrinterDriver.h>
#include <vcommon/VDBText.h>

#include <QtCore/QSet>

#include <atomic>
#include <memory>
#include <mutex>

namespace Norvane::Kilnjet {

class VPrintersDbPrivate
{
public:
    using Guard = std::unique_lock<DbLock>;

    /// The lock.
    Guard locked() const { return Guard(jobs->lock()); }
    /// The lock, for an edit: a load that was asked for before must not sweep it away afterwards.
    Guard lockedAfterLoads() const
    {
        jobs->waitForLoads();
        return locked();
    }
    /// The lock, with every job done that was scheduled before.
    Guard lockedAfterJobs() const
    {
        jobs->wait();
        Guard guard = locked();
        jobs->runPending();
        return guard;
    }
    /// Prepares the store for an access that only reads, or for one that may write.
    void setKeyToRead() { store.setKey(key, QString(0, Qt::Uninitialized)); }
    void setKeyToWrite() { store.setKey(key, QString()); }
    /// The entry under `id`, or an empty driver.
    VPrinterDriver value(const QUuid &id) const
    {
        const VPrinterDriver *const found = drivers.find(id);
        return found != nullptr ? *found : VPrinterDriver(QUuid());
    }

    // Under the lock.
    Database::VDBText store;
    DriverMap drivers;
    QSet<QUuid> dirtyIds;
    QSet<QUuid> volatileIds;
    QString key;
    QIODevice *device = nullptr;

    // Without it.
    std::shared_ptr<DbJobs> jobs;
    std::atomic<bool> background = false;
    std::atomic<bool> null = false;
};

} // namespace Norvane::Kilnjet
