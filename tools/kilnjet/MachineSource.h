// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Store.h"

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

class Console;

/// True when `name` stands for a file that is there, or for the standard input.
bool isSource(const QString &name);

/// The machines of a database or of a file with records in JSON, ordered by name; the first bytes
/// show which of the two it is. Throws a Failure when it cannot be read, or when a record is not
/// sound. `settings` has the key of databases; its path is not used.
QList<VPrinterDriver> readMachines(const QString &name, const StoreSettings &settings,
                                   Console &console);

} // namespace Norvane::Kilnjet::Tool
