// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "catalogue/Catalogue.h"

#include <QtCore/QByteArray>
#include <QtCore/QHash>
#include <QtCore/QUuid>

namespace Bench {

/// Reads every field of a driver and of its children through the accessors; a number that depends
/// on all of them.
quint64 readEveryField(const VPrinterDriver &driver);

/// What is expected of a store, by data id.
class Expected
{
public:
    explicit Expected(const Drivers &drivers);

    /// True when `drivers` are all of these, none missing and none changed: every field is read
    /// and compared, icons included.
    bool areEqual(const Drivers &drivers) const;

private:
    QHash<QUuid, VPrinterDriver> m_drivers;
    quint64 m_sum = 0; ///< Of readEveryField().
};

/// SHA-256 over the ids and the compact JSON of the drivers, in the order of the ids.
QByteArray digest(const Drivers &drivers);

} // namespace Bench
