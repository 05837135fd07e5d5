// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>

#include <QtCore/QVariant>

namespace Norvane::Database {

/// The answer to a look-up of one field of a record: whether it is there, and its value.
class VCOMMON_EXPORT VDBField
{
public:
    /// A field that is not there.
    VDBField() = default;
    /// A field that is there, with its value.
    explicit VDBField(const QVariant &value)
        : m_value(value)
        , m_found(true)
    { }

    /// True when the record has the field, even if its value is null.
    bool isFound() const { return m_found; }
    /// The value; a null variant when there is none.
    QVariant value() const { return m_value; }

private:
    QVariant m_value;
    bool m_found = false;
};

} // namespace Norvane::Database
