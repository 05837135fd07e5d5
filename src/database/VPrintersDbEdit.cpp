// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// How the content in memory is changed and read.

#include <kilnjet/VPrintersDb.h>

#include "VPrintersDb_p.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

// How many names createUniqueName() tries.
constexpr int kNameCandidates = 100;

} // namespace

bool VPrintersDb::insert(const QList<VPrinterDriver> &drivers)
{
    const auto guard = d->lockedAfterLoads();
    if (_insert(drivers))
        Q_EMIT changed();
    // Nothing to insert is no failure.
    return true;
}

bool VPrintersDb::insert(const VPrinterDriver &driver)
{
    return insert(QList<VPrinterDriver>{driver});
}

bool VPrintersDb::insertVolatile(const QList<VPrinterDriver> &drivers)
{
    const auto guard = d->lockedAfterLoads();
    const bool anyChanged = _insertVolatile(drivers, false);
    if (anyChanged)
        Q_EMIT changed();
    return anyChanged;
}

bool VPrintersDb::insertVolatile(const VPrinterDriver &driver)
{
    return insertVolatile(QList<VPrinterDriver>{driver});
}

bool VPrintersDb::replaceVolatile(const QList<VPrinterDriver> &drivers)
{
    const auto guard = d->lockedAfterLoads();
    const bool anyChanged = _insertVolatile(drivers, true);
    if (anyChanged)
        Q_EMIT changed();
    return anyChanged;
}

bool VPrintersDb::replaceVolatile(const VPrinterDriver &driver)
{
    return replaceVolatile(QList<VPrinterDriver>{driver});
}

bool VPrintersDb::removes(const QList<QUuid> &ids)
{
    const auto guard = d->lockedAfterLoads();
    const bool anyRemoved = _removes(ids);
    if (anyRemoved)
        Q_EMIT changed();
    return anyRemoved;
}

bool VPrintersDb::removes(const QList<VPrinterDriver> &drivers)
{
    QList<QUuid> ids;
    ids.reserve(drivers.size());
    for (const VPrinterDriver &driver : drivers)
        ids.append(driver.dataId());
    return removes(ids);
}

bool VPrintersDb::remove(const QUuid &id)
{
    return removes(QList<QUuid>{id});
}

bool VPrintersDb::remove(const VPrinterDriver &driver)
{
    return remove(driver.dataId());
}

bool VPrintersDb::clear()
{
    d->jobs->waitForLoads();
    return removes(idList());
}

void VPrintersDb::clearVolatile()
{
    const auto guard = d->lockedAfterLoads();
    if (d->volatileIds.isEmpty())
        return;
    for (const QUuid &id : std::as_const(d->volatileIds))
        d->drivers.remove(id);
    d->volatileIds.clear();
    Q_EMIT changed();
}

bool VPrintersDb::contains(const QUuid &id) const
{
    const auto guard = d->locked();
    return d->drivers.contains(id);
}

bool VPrintersDb::isVolatile(const QUuid &id) const
{
    const auto guard = d->locked();
    return d->volatileIds.contains(id);
}

int VPrintersDb::count() const
{
    const auto guard = d->locked();
    return int(d->drivers.size());
}

int VPrintersDb::volatileCount() const
{
    const auto guard = d->locked();
    return int(d->volatileIds.size());
}

VPrinterDriver VPrintersDb::value(const QUuid &id)
{
    const auto guard = d->locked();
    return d->value(id);
}

VPrinterDriver VPrintersDb::value(const VPrinterDriver &driver)
{
    return value(driver.dataId());
}

QList<VPrinterDriver> VPrintersDb::values()
{
    const auto guard = d->locked();
    return d->drivers.values();
}

QList<QUuid> VPrintersDb::idList()
{
    const auto guard = d->locked();
    return d->drivers.keys();
}

QString VPrintersDb::createUniqueName(const QUuid &id, const QString &name, const QString &suffix)
{
    const auto guard = d->locked();
    return _createUniqueName(id, name, suffix);
}

QString VPrintersDb::createUniqueName(const VPrinterDriver &driver, const QString &suffix)
{
    return createUniqueName(driver.dataId(), driver.name(), suffix);
}

bool VPrintersDb::_insert(const QList<VPrinterDriver> &drivers)
{
    for (const VPrinterDriver &driver : drivers) {
        const QUuid id = driver.dataId();
        d->volatileIds.remove(id);
        if (driver.isValid())
            d->drivers.insert(id, driver);
        else
            d->drivers.remove(id);
        d->dirtyIds.insert(id);
    }
    return !drivers.isEmpty();
}

bool VPrintersDb::_insertVolatile(const QList<VPrinterDriver> &drivers, bool replace)
{
    bool anyChanged = false;
    QSet<QUuid> newIds;
    for (const VPrinterDriver &driver : drivers) {
        if (!driver.isValid())
            continue;
        const QUuid id = driver.dataId();
        // What an earlier element of the list has placed counts as persistent too: the marks are
        // those of before the call.
        if (d->drivers.contains(id) && !d->volatileIds.contains(id))
            continue;
        newIds.insert(id);
        if (!(d->value(id) == driver)) {
            d->drivers.insert(id, driver);
            anyChanged = true;
        }
    }
    if (replace) {
        for (const QUuid &id : std::as_const(d->volatileIds)) {
            if (newIds.contains(id))
                continue;
            // Counts as a change even if the entry was removed before: the mark goes.
            d->drivers.remove(id);
            anyChanged = true;
        }
    }
    // Earlier volatile entries that were merged with keep their place but lose their mark.
    d->volatileIds = newIds;
    return anyChanged;
}

bool VPrintersDb::_removes(const QList<QUuid> &ids)
{
    bool anyRemoved = false;
    for (const QUuid &id : ids) {
        if (!d->drivers.remove(id))
            continue;
        d->dirtyIds.insert(id);
        anyRemoved = true;
    }
    return anyRemoved;
}

bool VPrintersDb::_clear()
{
    return _removes(d->drivers.keys());
}

QString VPrintersDb::_createUniqueName(const QUuid &id, const QString &name,
                                       const QString &suffix) const
{
    QSet<QString> taken;
    for (const QUuid &other : d->drivers.keys()) {
        if (other != id)
            taken.insert(d->drivers.find(other)->name());
    }
    // Null says that there is no name, so an empty one must not be null.
    const QString base = u""_s + name.section(u" - "_s, 0, 0) + suffix;
    for (int n = 0; n < kNameCandidates; ++n) {
        const QString candidate = n == 0 ? base : base + u" - "_s + QString::number(n);
        if (!taken.contains(candidate))
            return candidate;
    }
    return {};
}

} // namespace Norvane::Kilnjet
