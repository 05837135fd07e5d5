// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

struct Command;

/// What the tool is for, its commands, its options, its exit codes.
QString generalHelp();
/// Everything about one command.
QString commandHelp(const Command &command);

} // namespace Norvane::Kilnjet::Tool
