// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <cstdio>

// The terminal that a program's standard streams may lead to.

namespace Norvane::Platform {

/// Makes the standard streams carry UTF-8 without translation of line ends, and a closed pipe an
/// error instead of a signal. What that changes about the terminal ends with the process.
void prepareStandardStreams();

/// True when the stream leads to a terminal that obeys escape sequences.
bool isTerminal(std::FILE *stream);

/// How wide the terminal is that the stream leads to; 0 when it does not say.
int terminalColumns(std::FILE *stream);

} // namespace Norvane::Platform
