// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VVariantConvert.h>

#include <QtCore/QHash>
#include <QtCore/QReadLocker>
#include <QtCore/QReadWriteLock>

namespace Norvane {

namespace {

struct Registry
{
    QReadWriteLock lock;
    QHash<int, VVariantConvert::Converter> converters;
};

/// Never destroyed: libraries register and unregister while the process is going down.
Registry &registry()
{
    static Registry *const instance = new Registry;
    return *instance;
}

} // namespace

void VVariantConvert::sVariantToStringRegister(int metaTypeId, Converter converter)
{
    const QWriteLocker locker(&registry().lock);
    registry().converters.insert(metaTypeId, converter);
}

void VVariantConvert::sVariantToStringUnregister(int metaTypeId, Converter converter)
{
    const QWriteLocker locker(&registry().lock);
    if (registry().converters.value(metaTypeId, nullptr) == converter)
        registry().converters.remove(metaTypeId);
}

VVariantConvert::Converter VVariantConvert::converter(int metaTypeId)
{
    const QReadLocker locker(&registry().lock);
    return registry().converters.value(metaTypeId, nullptr);
}

} // namespace Norvane
