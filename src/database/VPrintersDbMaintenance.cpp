// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Backup, restore, purge and reindex.

#include <kilnjet/VPrintersDb.h>

#include "VPrintersDb_p.h"

#include <QtCore/QFile>

namespace Norvane::Kilnjet {

namespace {

QString pathOf(const QString &directory, const QString &fileName)
{
    const QString name = fileName.isEmpty() ? VPrintersDb::defaultFilename() : fileName;
    return directory + u'/' + name;
}

} // namespace

bool VPrintersDb::backup(const QString &directory, const QString &fileName)
{
    const auto guard = d->lockedAfterJobs();
    VPrintersDb copy(pathOf(directory, fileName), d->store.key());
    // Nobody listens to the copy. Without signals it makes no timer, for which a thread that is not
    // Qt's own has no use.
    copy.blockSignals(true);
    copy.init(false);
    copy.insert(values());
    copy.commit();
    return purge();
}

bool VPrintersDb::restore(const QString &directory, const QString &fileName, bool merge)
{
    const auto guard = d->lockedAfterJobs();
    const QString path = pathOf(directory, fileName);
    if (!QFile::exists(path))
        return false;
    // Reading needs no key, so that a copy made with another key can be taken in.
    VPrintersDb copy(path, QString());
    copy.blockSignals(true);
    copy.init(false);
    if (!copy.isReady())
        return false;
    if (!merge)
        _clear();
    _insert(copy.values());
    _commit();
    Q_EMIT changed();
    Q_EMIT ready();
    return true;
}

bool VPrintersDb::restore(const QString &directory, bool merge)
{
    return restore(directory, QString(), merge);
}

bool VPrintersDb::purge()
{
    const auto guard = d->locked();
    if (!d->device)
        return false;
    d->setKeyToWrite();
    if (!d->store.open(d->device))
        return false;
    // A store that could not be compacted stays open: the next operation opens it anew.
    if (!d->store.purge())
        return false;
    d->store.close();
    return true;
}

bool VPrintersDb::reindex()
{
    const auto guard = d->lockedAfterJobs();
    // The key is that of the last access, and with it whether that was to write.
    if (!d->device || !d->store.open(d->device))
        return false;
    const bool done = d->store.reindex();
    d->store.close();
    if (!done)
        return false;
    _commit();
    _init();
    return true;
}

} // namespace Norvane::Kilnjet
