// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "MachineSummary.h"

#include <QtCore/QList>

namespace Norvane::Kilnjet::Tool {

class Console;
class DisplayTexts;

/// Writes one line a machine under headings, with values as `texts` show them, or an array with a
/// summary of each.
void writeMachines(const QList<MachineSummary> &machines, const DisplayTexts &texts,
                   Console &console);

/// Writes the names, each once: one a line, or an array.
void writeNames(const QList<MachineSummary> &machines, Console &console);

} // namespace Norvane::Kilnjet::Tool
