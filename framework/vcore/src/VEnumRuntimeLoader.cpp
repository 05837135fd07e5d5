// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumRuntimeLoader.h>

#include <QtCore/QMutex>

namespace Norvane {

namespace {

struct Registry
{
    QMutex mutex;
    QHash<QString, IVEnumRuntimeLoader *> loaders;
};

/// Never destroyed: hosts remove their loaders while the process is going down.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

} // namespace

IVEnumRuntimeLoader *VEnumRuntimeLoader::loader(const QString &name)
{
    const QMutexLocker locker(&registry().mutex);
    return registry().loaders.value(name, nullptr);
}

bool VEnumRuntimeLoader::insert(IVEnumRuntimeLoader *loader)
{
    if (loader == nullptr)
        return false;
    const QString name = loader->name();
    const QMutexLocker locker(&registry().mutex);
    if (registry().loaders.contains(name))
        return false;
    registry().loaders.insert(name, loader);
    return true;
}

void VEnumRuntimeLoader::remove(IVEnumRuntimeLoader *loader)
{
    const QMutexLocker locker(&registry().mutex);
    registry().loaders.removeIf([loader](const auto &entry) { return entry.value() == loader; });
}

} // namespace Norvane
