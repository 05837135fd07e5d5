// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// How the database reads and writes its file.

#include <kilnjet/VPrintersDb.h>

#include "DriverRecord.h"
#include "VPrintersDb_p.h"

#include <vcore/VLocale.h>
#include <vcore/VParallel.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

using Database::VDBRecord;
using Database::VDBText;

/// From twice so many records on, threads are worth their start.
constexpr std::size_t kRecordsWorthAThread = 32;

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
std::optional<DriverMap> readDrivers(VDBText &store)
{
    const QList<VDBRecord> records = store.values();
    if (store.status() != Database::VDBStatus::Ok)
        return std::nullopt;
    std::vector<DriverMap::Item> read(std::size_t(records.size()));
    parallelFor(read.size(), kRecordsWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            read[i].driver = DriverRecord::toDriver(records.at(qsizetype(i)));
            if (read[i].driver)
                read[i].id = read[i].driver->dataId();
        }
    });
    return DriverMap(std::move(read));
}

/// Puts the drivers under `ids` into the store, and takes those out that are gone or not valid.
void writeDrivers(VDBText &store, const QList<QUuid> &ids, const DriverMap &drivers)
{
    std::vector<VDBRecord> records(std::size_t(ids.size()));
    parallelFor(records.size(), kRecordsWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            const VPrinterDriver *const driver = drivers.find(ids.at(qsizetype(i)));
            if (driver != nullptr && driver->isValid())
                records[i] = DriverRecord::fromDriver(*driver);
        }
    });
    for (std::size_t i = 0; i < records.size(); ++i) {
        const QString id = DriverRecord::textFromId(ids.at(qsizetype(i)));
        if (store.contains(id))
            store.remove(id);
        if (!records[i].isNull())
            store.insert(records[i]);
    }
}

} // namespace

void VPrintersDb::_init()
{
    const auto guard = d->locked();
    d->setKeyToRead();
    std::optional<DriverMap> loaded;
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
    // In order, so that equal content gives equal bytes.
    QList<QUuid> ids = d->dirtyIds.values();
    std::sort(ids.begin(), ids.end());
    writeDrivers(d->store, ids, d->drivers);
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
