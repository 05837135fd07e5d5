// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QStringList>

namespace Norvane::Kilnjet::Tool {

/// Runs the tool with `arguments` (without the program's name); the process's exit code.
int run(const QStringList &arguments);

} // namespace Norvane::Kilnjet::Tool
