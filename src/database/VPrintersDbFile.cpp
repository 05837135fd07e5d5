// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// How the database reads and writes its file.

#include <kilnjet/VPrintersDb.h>

#include "DriverRecord.h"
#include "VPrintersDb_p.h"

#include <vcommon/VDBIterator.h>
#include <vcore/VLocale.h>

#include <optional>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

using Database::VDBIterator;
using Database::VDBRecord;
using Database::VDBText;

bool openOrCreate(VDBText &store, QIODevice *device)
{
    if (store.open(device)
        || store.create(device, DriverRecord::idField(),
                        VDBText::WithCulture | VDBText::WithSignature,
                        VLocale(u"en-US"_s, QLocale::OmitGroupSeparator), u"2"_s))
        return true;
    // Another process may have created the file in between.
    return store.status() == Database::VDBStatus::NotEmpty && store.open(device);
}

/// Nothing when the store cannot be read; an unchanged one is not read before it is asked for.
std::optional<QMap<QUuid, VPrinterDriver>> readDrivers(VDBText &store)
{
    VDBRecord first;
    store.first(first);
    if (store.status() != Database::VDBStatus::Ok)
        return std::nullopt;
    VDBRecord last;
    store.last(last);
    VDBIterator end(store, last);
    ++end;
    QMap<QUuid, VPrinterDriver> drivers;
    for (VDBIterator it(store, first); it != end; ++it) {
        if (const auto driver = DriverRecord::toDriver(*it))
            drivers.insert(driver->dataId(), *driver);
    }
    return drivers;
}

void writeDriver(VDBText &store, const QUuid &id, const VPrinterDriver &driver)
{
    const QString text = DriverRecord::textFromId(id);
    if (store.contains(text))
        store.remove(text);
    if (driver.isValid())
        store.insert(DriverRecord::fromDriver(driver));
}

} // namespace

void VPrintersDb::_init()
{
    const auto guard = d->locked();
    d->setKeyToRead();
    std::optional<QMap<QUuid, VPrinterDriver>> loaded;
    if (d->device && openOrCreate(d->store, d->device)) {
        loaded = readDrivers(d->store);
        d->store.close();
    }
    d->null = !loaded;
    if (!loaded) {
        d->jobs->noteResult();
        Q_EMIT error();
        return;
    }
    d->drivers = *std::move(loaded);
    d->jobs->noteResult();
    Q_EMIT initialized();
}

void VPrintersDb::_commit()
{
    const auto guard = d->locked();
    if (!d->device || d->dirtyIds.isEmpty())
        return;
    d->setKeyToWrite();
    if (!d->store.open(d->device)) {
        d->jobs->noteResult();
        Q_EMIT error();
        return;
    }
    for (const QUuid &id : std::as_const(d->dirtyIds))
        writeDriver(d->store, id, d->value(id));
    d->store.close();
    const bool written = d->store.wasDurable();
    if (written)
        d->dirtyIds.clear();
    d->jobs->noteResult();
    if (written)
        Q_EMIT committed();
    else
        Q_EMIT error();
}

} // namespace Norvane::Kilnjet
