// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/IVDatabase.h>

namespace Norvane::Database {

/// A forward walk over the records of an open store.
///
/// The end is the iterator on the last record, advanced once. The store must outlive the iterator
/// and stay open.
class VCOMMON_EXPORT VDBIterator
{
public:
    /// The iterator placed on `record`, which `database` gave.
    VDBIterator(IVDatabase &database, const VDBRecord &record)
        : m_database(&database)
        , m_record(record)
    { }

    /// The current record; null at the end.
    VDBRecord &operator*() { return m_record; }
    /// Moves to the next record.
    VDBIterator &operator++()
    {
        m_database->next(m_record);
        return *this;
    }
    /// True when both stand at the same place of the file; all ends are equal.
    bool operator==(const VDBIterator &other) const
    {
        return m_record.offset() == other.m_record.offset();
    }
    /// The contrary of `==`.
    bool operator!=(const VDBIterator &other) const { return !(*this == other); }

private:
    IVDatabase *m_database;
    VDBRecord m_record;
};

} // namespace Norvane::Database
