// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Paint.h"

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

class DisplayTexts;

/// A machine as a sheet to read: its own fields and limits, its print units with their channels in
/// order, its elaborations by kind, with values as `texts` show them. Safe for a terminal.
QString machineSheet(const VPrinterDriver &machine, const DisplayTexts &texts, const Paint &paint);

} // namespace Norvane::Kilnjet::Tool
