// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QReadLocker>
#include <QtCore/QReadWriteLock>
#include <QtCore/QWriteLocker>

namespace Norvane {

/// Functions by key, registered by several libraries that come and go independently.
///
/// The same function may be registered many times and stays until it was removed as often; another
/// one under its key replaces it.
/// Threads: every operation from any thread.
template<typename Key, typename Function>
class FunctionRegistry
{
public:
    void insert(const Key &key, Function function)
    {
        const QWriteLocker locker(&m_lock);
        Entry &entry = m_entries[key];
        entry = {function, entry.function == function ? entry.count + 1 : 1};
    }
    void remove(const Key &key, Function function)
    {
        const QWriteLocker locker(&m_lock);
        const auto entry = m_entries.find(key);
        if (entry != m_entries.end() && entry->function == function && --entry->count == 0)
            m_entries.erase(entry);
    }
    /// The function under `key`, or null.
    Function find(const Key &key) const
    {
        const QReadLocker locker(&m_lock);
        return m_entries.value(key).function;
    }
    QList<Key> keys() const
    {
        const QReadLocker locker(&m_lock);
        return m_entries.keys();
    }

private:
    struct Entry
    {
        Function function = nullptr;
        int count = 0;
    };

    mutable QReadWriteLock m_lock;
    QMap<Key, Entry> m_entries; ///< Under m_lock.
};

} // namespace Norvane
