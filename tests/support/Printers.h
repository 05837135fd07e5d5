// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Drivers.h"

#include <kilnjet/VPrintersDb.h>
#include <vcommon/VDBIterator.h>
#include <vcommon/VDBText.h>

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QMap>

// A small vocabulary for tests of the printers database.

namespace Support {

using namespace Qt::StringLiterals;
using Norvane::Kilnjet::VPrintersDb;

/// A valid driver; the content id depends on the name only.
inline VPrinterDriver printer(const QString &name)
{
    const QUuid space = QUuid(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);
    VPrinterDriver driver(QUuid::createUuidV5(space, name));
    driver.setName(name);
    driver.setMaximumFaces(4);
    VElaborationDriver child = elaboration(QUuid::createUuidV5(space, name + u"/child"_s));
    driver.insert(&child, false);
    return driver;
}

inline QList<VPrinterDriver> printers(const QStringList &names)
{
    QList<VPrinterDriver> drivers;
    for (const QString &name : names)
        drivers.append(printer(name));
    return drivers;
}

/// The same driver, by its content id, under another name.
inline VPrinterDriver renamed(VPrinterDriver driver, const QString &name)
{
    driver.setName(name);
    return driver;
}

/// An invalid driver with the content id of `printer(name)`.
inline VPrinterDriver invalidPrinter(const QString &name)
{
    VPrinterDriver driver = printer(name);
    driver.remove(QUuid(), false);
    return driver;
}

inline QString idText(const VPrinterDriver &driver)
{
    return driver.dataId().toString(QUuid::WithBraces);
}

inline QString jsonText(const VPrinterDriver &driver)
{
    return QString::fromUtf8(QJsonDocument(driver.toJsonObject()).toJson(QJsonDocument::Compact));
}

/// What a database's file holds: the "driver" text under each "id".
using Stored = QMap<QString, QString>;

/// Reads a file without a VPrintersDb.
inline Stored stored(QIODevice *device, const QString &key = {})
{
    using namespace Norvane::Database;
    Stored found;
    VDBText store;
    store.setKey(key, u""_s);
    if (!store.open(device))
        return {{u"cannot be opened"_s, store.errorString()}};
    VDBRecord first;
    VDBRecord last;
    store.first(first);
    store.last(last);
    VDBIterator end(store, last);
    ++end;
    for (VDBIterator it(store, first); it != end; ++it)
        found.insert((*it).search(u"id"_s).value().toString(),
                     (*it).search(u"driver"_s).value().toString());
    store.close();
    return found;
}

inline Stored stored(const QString &path, const QString &key = {})
{
    QFile file(path);
    return stored(&file, key);
}

inline Stored stored(QByteArray bytes, const QString &key = {})
{
    QBuffer buffer(&bytes);
    return stored(&buffer, key);
}

/// What a file should hold after these were written.
inline Stored storedFrom(const QList<VPrinterDriver> &drivers)
{
    Stored expected;
    for (const VPrinterDriver &driver : drivers)
        expected.insert(idText(driver), jsonText(driver));
    return expected;
}

/// Makes a database file that holds these; false when that failed.
[[nodiscard]] inline bool makeFile(const QString &path, const QList<VPrinterDriver> &drivers,
                                   const QString &key = {})
{
    VPrintersDb database(path, key);
    database.init(false);
    database.insert(drivers);
    database.commit();
    return !database.isNull() && !database.isDirty();
}

/// The bytes of such a file.
inline QByteArray bytesWith(const QList<VPrinterDriver> &drivers, const QString &key = {})
{
    QBuffer buffer;
    VPrintersDb database(&buffer, key);
    database.init(false);
    database.insert(drivers);
    database.commit();
    return buffer.data();
}

[[nodiscard]] inline bool writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The names of the entries, sorted.
inline QStringList namesIn(VPrintersDb &database)
{
    QStringList names;
    for (const VPrinterDriver &driver : database.values())
        names.append(driver.name());
    names.sort();
    return names;
}

} // namespace Support
