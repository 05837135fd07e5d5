// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBFormat.h"

#include <QtCore/QSharedData>
#include <QtCore/QVariant>

namespace Norvane::Database {

/// The content of a record, and where a store found it.
class VDBRecordData : public QSharedData
{
public:
    struct Field
    {
        QString key;
        QVariant value;
    };

    QList<Field> fields;
    bool isSigned = false; ///< The content is still what a matching signature was found for.
    qint64 line = 0;
    qint64 offset = -1;
    qsizetype ordinal = -1; ///< Its place among the store's live records.
};

} // namespace Norvane::Database
