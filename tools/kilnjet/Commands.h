// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Failure.h"

/// The functions behind the command table, each in a file of its own under commands/.
namespace Norvane::Kilnjet::Tool {

class Console;
struct Invocation;

ExitCode runBackup(const Invocation &invocation, Console &console);
ExitCode runDiff(const Invocation &invocation, Console &console);
ExitCode runEnums(const Invocation &invocation, Console &console);
ExitCode runExport(const Invocation &invocation, Console &console);
ExitCode runHelp(const Invocation &invocation, Console &console);
ExitCode runImport(const Invocation &invocation, Console &console);
ExitCode runInfo(const Invocation &invocation, Console &console);
ExitCode runList(const Invocation &invocation, Console &console);
ExitCode runPurge(const Invocation &invocation, Console &console);
ExitCode runQuery(const Invocation &invocation, Console &console);
ExitCode runRecover(const Invocation &invocation, Console &console);
ExitCode runReindex(const Invocation &invocation, Console &console);
ExitCode runRemove(const Invocation &invocation, Console &console);
ExitCode runRename(const Invocation &invocation, Console &console);
ExitCode runRestore(const Invocation &invocation, Console &console);
ExitCode runShow(const Invocation &invocation, Console &console);
ExitCode runValidate(const Invocation &invocation, Console &console);
ExitCode runVerify(const Invocation &invocation, Console &console);

} // namespace Norvane::Kilnjet::Tool
