// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>

namespace Norvane::Kilnjet::Tool {

class Console;
class DisplayTexts;

/// Writes one line a machine under headings, with values as `texts` show them, or an array with a
/// summary of each.
void writeMachines(const QList<VPrinterDriver> &machines, const DisplayTexts &texts,
                   Console &console);

} // namespace Norvane::Kilnjet::Tool
