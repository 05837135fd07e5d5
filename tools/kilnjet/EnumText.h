// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumRegistry.h>

#include <QtCore/QLocale>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// The stored name of a value of the enumeration with this short name; without one, its number.
template<typename E>
QString enumText(const QString &shortName, E value)
{
    const IVEnum *enumeration = VEnumRegistry::find(shortName);
    if (enumeration == nullptr)
        return QString::number(qint64(value));
    return enumeration->isFlags() ? enumeration->names().flagsToString(qint64(value), QLocale::c())
                                  : enumeration->names().toString(qint64(value), QLocale::c());
}

} // namespace Norvane::Kilnjet::Tool
