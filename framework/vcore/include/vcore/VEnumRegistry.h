// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/IVEnum.h>

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
    /// Takes `accessor` out again, as often as it was inserted, unless another one has replaced it.
    static void remove(const QString &shortName, Accessor accessor);

    /// The enumeration with the short name, or null.
    static const IVEnum *find(const QString &shortName);
    /// The short names of all known enumerations, in alphabetical order.
    static QStringList names();
};

} // namespace Norvane
