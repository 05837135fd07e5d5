// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IMetadata.h>
#include <vcore/VPointer.h>

#include <QtCore/QHash>
#include <QtCore/QList>

#include <algorithm>
#include <memory>
#include <vector>

namespace Norvane::Interfaces {

/// An object that carries metadata entries, one a key.
///
/// Entries handed over with ownership, and the clones of the others, are deleted with the object or
/// when they are replaced or cleared. Copying an object through this interface copies no entry: the
/// class that derives from it says which entries travel, with copyMetadata().
/// Threads: one at a time. Failures: bool results; nothing throws.
class VCORE_EXPORT IMetadatable
{
public:
    /// An object without entries.
    IMetadatable() = default;
    /// An object without entries: none is copied.
    IMetadatable(const IMetadatable &) { }
    /// Keeps this object's entries and copies none.
    IMetadatable &operator=(const IMetadatable &) { return *this; }
    virtual ~IMetadatable();

    /// Drops and deletes every entry, then reports key 0 to onMetadataChanged().
    virtual void clearMetadata()
    {
        m_entries.clear();
        m_owned.clear();
        onMetadataChanged(0);
    }

    /// How many entries there are.
    virtual int metadataCount() const { return int(m_entries.size()); }

    /// The entries in ascending key order; they stay this object's.
    virtual QList<IMetadata *> metadataList() const
    {
        if (m_entries.isEmpty())
            return {}; // The usual case, for which an empty QHash would allocate.
        QList<IMetadata *> list = m_entries.values();
        std::sort(list.begin(), list.end(),
                  [](const IMetadata *a, const IMetadata *b) { return a->key() < b->key(); });
        return list;
    }

    /// The entry under `key`, which stays this object's; null when there is none.
    virtual IMetadata *metadata(quint64 key) const { return m_entries.value(key, nullptr); }

    /// Inserts clones of the entries whose flags share no bit with `excludedFlags`.
    virtual void copyMetadata(const QList<IMetadata *> &list, MetadataFlags excludedFlags)
    {
        for (IMetadata *entry : list) {
            if (entry != nullptr && (entry->flags() & excludedFlags) == MetadataFlags::None
                && acceptMetadata(entry, false))
                insertMetadata(entry, false);
        }
    }

    /// Stores `entry` under its key: itself when `takeOwnership`, else a clone of it.
    ///
    /// False, with the entry still the caller's, when it is null or refused. An entry equal to the
    /// stored one changes nothing and is reported as done; if it was handed over it is kept alive.
    virtual bool insertMetadata(IMetadata *entry, bool takeOwnership)
    {
        if (entry == nullptr || !acceptMetadata(entry, takeOwnership))
            return false;
        IMetadata *const stored = metadata(entry->key());
        if (takeOwnership && !owns(entry))
            m_owned.emplace_back(entry);
        if (stored != nullptr && stored->equalsTo(entry))
            return true;
        IMetadata *added = entry;
        if (!takeOwnership) {
            added = static_cast<IMetadata *>(entry->clone());
            m_owned.emplace_back(added);
        }
        const quint64 key = added->key();
        m_entries.insert(key, added);
        disown(stored);
        onMetadataChanged(key);
        return true;
    }

    /// Drops the entry under `key`; nothing happens when there is none.
    virtual void removeMetadata(quint64 key)
    {
        IMetadata *const stored = m_entries.take(key);
        if (stored == nullptr)
            return;
        disown(stored);
        onMetadataChanged(key);
    }

    /// True when there is an entry under `key`.
    virtual bool containsMetadata(quint64 key) const { return m_entries.contains(key); }

    /// Called after the entry under `key` changed; key 0 after all were cleared. Does nothing here.
    virtual void onMetadataChanged(quint64 key) { Q_UNUSED(key) }

    /// Whether `entry` may be stored. Every entry may, here.
    virtual bool acceptMetadata(IMetadata *entry, bool takeOwnership)
    {
        Q_UNUSED(entry)
        Q_UNUSED(takeOwnership)
        return true;
    }

private:
    auto ownedPosition(const IMetadata *entry)
    {
        return std::find_if(m_owned.begin(), m_owned.end(),
                            [entry](const auto &owned) { return owned.get() == entry; });
    }
    bool owns(const IMetadata *entry) { return ownedPosition(entry) != m_owned.end(); }
    void disown(const IMetadata *entry)
    {
        if (const auto position = ownedPosition(entry); position != m_owned.end())
            m_owned.erase(position);
    }

    QHash<quint64, IMetadata *> m_entries;
    std::vector<VPointer<IMetadata>> m_owned;
};

} // namespace Norvane::Interfaces
