// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "KeyValueStore.h"

#include <QtCore/QMap>

namespace Bench {

/// A JSON file that is held in memory as a whole and written anew by each change. An element is
/// {"id": "{...}", "driver": {...}}.
class JsonFile : public KeyValueStore
{
public:
    enum Shape
    {
        Lines, ///< One element a line.
        Array, ///< The same between brackets, with commas.
    };

    explicit JsonFile(Shape shape)
        : m_shape(shape)
    { }

    bool open(const QString &folder) override;
    void close() override { m_texts.clear(); }
    bool holdsItsFiles() const override { return false; }
    bool readAll(const Visitor &visit) override;
    QByteArray read(const QByteArray &key) override { return m_texts.value(key); }
    bool write(const QList<Change> &changes) override;
    bool compact() override { return true; }

    /// The file, when the store is open.
    QString path() const { return m_path; }

private:
    Shape m_shape;
    QString m_path;
    QMap<QByteArray, QByteArray> m_texts;
};

} // namespace Bench
