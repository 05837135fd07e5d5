// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

// The JSON Schemas of docs/schema/. The tests define DOCS, the folder above them.

namespace Support {

using namespace Qt::StringLiterals;

inline QDir schemaFolder()
{
    return QDir(QStringLiteral(DOCS "/schema"));
}

/// The schema in NAME.schema.json; empty when there is none.
inline QJsonObject schema(const QString &name)
{
    QFile file(schemaFolder().filePath(name + u".schema.json"_s));
    return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                          : QJsonObject();
}

/// The keys of an object, or the strings of an array, in alphabetical order.
inline QStringList sorted(const QJsonValue &value)
{
    QStringList strings = value.toObject().keys();
    const QJsonArray array = value.toArray();
    for (const QJsonValue &element : array)
        strings.append(element.toString());
    strings.sort();
    return strings;
}

/// As sorted(), in one text, which a failing comparison shows whole.
inline QString listed(const QJsonValue &value)
{
    return sorted(value).join(u' ');
}

} // namespace Support
