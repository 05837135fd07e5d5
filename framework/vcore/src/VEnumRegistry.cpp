// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumRegistry.h>

#include "FunctionRegistry.h"

namespace Norvane {

namespace {

using Registry = FunctionRegistry<QString, VEnumRegistry::Accessor>;

/// Never destroyed: libraries register and unregister while the process is going down.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

} // namespace

void VEnumRegistry::insert(const QString &shortName, Accessor accessor)
{
    registry().insert(shortName, accessor);
}

void VEnumRegistry::remove(const QString &shortName, Accessor accessor)
{
    registry().remove(shortName, accessor);
}

const IVEnum *VEnumRegistry::find(const QString &shortName)
{
    // Called without a lock held: building the object may run a host's loader.
    const Accessor accessor = registry().find(shortName);
    return accessor == nullptr ? nullptr : &accessor();
}

QStringList VEnumRegistry::names()
{
    return registry().keys();
}

} // namespace Norvane
