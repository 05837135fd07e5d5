// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QMetaType>
#include <QtCore/QStringList>

namespace Norvane {

/// The process-wide directory of the enumerations that loaded libraries have made known.
///
/// It lets a host turn names into numbers, list what there is, and show texts, without the headers
/// of each enumeration's runtime class.
/// Threads: every operation from any thread. A returned object lives as long as its library.
class VCORE_EXPORT VEnumRegistry
{
public:
    /// Gives the runtime object, building it at the first call.
    using Accessor = const IVEnum &(*)();

    /// Makes an enumeration known under its short name; a later one of that name replaces it.
    static void insert(const QString &shortName, Accessor accessor);
    /// Takes `accessor` out again, unless another one has replaced it since.
    static void remove(const QString &shortName, Accessor accessor);

    /// The enumeration with the short name, or null.
    static const IVEnum *find(const QString &shortName);
    /// The short names of all known enumerations, in alphabetical order.
    static QStringList names();
};

/// Writes a variant that holds an `E` as the name of its value; `format` has no meaning here.
template<typename E, typename Runtime>
QString enumToString(const QVariant &value, const QString &format, const QLocale &locale)
{
    Q_UNUSED(format)
    // Read in place: converting would go through the meta-type system and could fail.
    const E number = *static_cast<const E *>(value.constData());
    return Runtime::instance().toString(static_cast<std::underlying_type_t<E>>(number), locale);
}

/// The runtime object as the directory wants it.
template<typename Runtime>
const IVEnum &enumAccessor()
{
    return Runtime::instance();
}

} // namespace Norvane
