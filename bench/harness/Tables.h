// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Results.h"

namespace Bench {

/// The results as tables in Markdown, to be read in a terminal as well.
QString tables(const Results &results);

} // namespace Bench
