// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Options.h"
#include "Results.h"

namespace Bench {

/// Measures all that the options ask for, the stores in turns at each job. False when one failed
/// or gave something wrong, which is then said.
[[nodiscard]] bool run(const Options &options, Results &results);

/// What a child process does whose memory is measured: loads the catalogue in `folder` by the store
/// of that name, none when the name is empty, and prints the most memory that this took, in KB.
int loadAndReport(const QString &contender, const QString &folder);

} // namespace Bench
