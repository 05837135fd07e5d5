// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// A machine as a sheet to read: its own fields, then its print units and elaborations. Safe for a
/// terminal.
QString machineSheet(const VPrinterDriver &machine);

} // namespace Norvane::Kilnjet::Tool
