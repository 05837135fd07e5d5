// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "VDBFormat.h"

#include <vcore/VBytes.h>

#include <QtCore/QLocale>
#include <QtCore/QSharedData>
#include <QtCore/QVariant>

namespace Norvane::Database {

/// The name that a stored locale goes by: "en-US".
QString cultureName(const QLocale &locale);
/// The locale of that name, which writes numbers without group separators.
QLocale cultureLocale(const QString &name);

/// The content of a record, and where a store found it.
///
/// What a store found stays in the bytes of the file, and a field is decoded whenever it is asked
/// for: nothing is changed by asking, so copies that share this may live on different threads.
class VDBRecordData : public QSharedData
{
public:
    struct Field
    {
        QString key;
        QVariant value;
        QByteArray utf8; ///< The value instead, when it was given so.
        bool isUtf8 = false;

        QVariant variant() const;
    };

    /// The field `key`, to be given a value; it is appended when there is none.
    Field &field(const QString &key);
    /// The fields, wherever they are.
    QList<Field> decoded() const;
    /// The fields as a payload, with the culture in front if it is kept.
    QByteArray encoded(const QString &culture) const;

    VBytes payload; ///< The fields as they stand in the file, until one of them is changed.
    qsizetype lastFieldAt = 0; ///< Where the last field of the payload begins.
    QList<Field> fields; ///< Empty while there is a payload.
    bool isSigned = false; ///< The content is still what a matching signature was found for.
    qint64 line = 0;
    qint64 offset = -1;
    qsizetype ordinal = -1; ///< Its place among the store's live records.
};

} // namespace Norvane::Database
