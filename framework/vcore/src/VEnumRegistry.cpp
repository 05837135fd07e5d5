// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumRegistry.h>

#include <QtCore/QMap>
#include <QtCore/QReadWriteLock>

namespace Norvane {

namespace {

struct Registry
{
    QReadWriteLock lock;
    QMap<QString, VEnumRegistry::Accessor> accessors;
};

/// Never destroyed: libraries register and unregister while the process is going down.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

} // namespace

void VEnumRegistry::insert(const QString &shortName, Accessor accessor)
{
    const QWriteLocker locker(&registry().lock);
    registry().accessors.insert(shortName, accessor);
}

void VEnumRegistry::remove(const QString &shortName, Accessor accessor)
{
    const QWriteLocker locker(&registry().lock);
    if (registry().accessors.value(shortName, nullptr) == accessor)
        registry().accessors.remove(shortName);
}

const IVEnum *VEnumRegistry::find(const QString &shortName)
{
    Accessor accessor = nullptr;
    {
        const QReadLocker locker(&registry().lock);
        accessor = registry().accessors.value(shortName, nullptr);
    }
    // Outside the lock: building the object may run a host's loader.
    return accessor == nullptr ? nullptr : &accessor();
}

QStringList VEnumRegistry::names()
{
    const QReadLocker locker(&registry().lock);
    return registry().accessors.keys();
}

} // namespace Norvane
