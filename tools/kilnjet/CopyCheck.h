// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Store.h"

namespace Norvane::Kilnjet::Tool {

/// Opens the file anew and compares it with the machines that it should hold, ids and contents;
/// throws a Failure with ExitCode::Io when it does not hold these and nothing else.
void verifyCopy(const QList<VPrinterDriver> &machines, const StoreSettings &copy,
                Progress &progress);

} // namespace Norvane::Kilnjet::Tool
