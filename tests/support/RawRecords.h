// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDBText.h>

#include <QtCore/QFile>

// Records as another program might write them into a printers database: any fields, any text.

namespace Support {

using namespace Qt::StringLiterals;

/// Writes a record with these two fields, those that are not null, as one batch; false when that
/// failed.
[[nodiscard]] inline bool writeRaw(const QString &path, const QString &id, const QVariant &driver,
                                   const QString &key = {})
{
    using namespace Norvane::Database;
    QFile file(path);
    VDBText store;
    store.setKey(key, QString());
    if (!store.open(&file))
        return false;
    VDBRecord record;
    record.insert(u"id"_s, id);
    if (driver.isValid())
        record.insert(u"driver"_s, driver);
    const bool taken = store.insert(record);
    store.close();
    return taken && store.wasDurable();
}

/// Changes the byte at `offset` of a file.
inline void flipByte(const QString &path, qint64 offset)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.seek(offset))
        return;
    const char byte = file.peek(1).at(0);
    const char flipped[] = {char(byte ^ 0x01)};
    file.write(flipped, 1);
}

} // namespace Support
