// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Tool.h"

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

// Runs the tool where it cannot have what it asks for.

namespace Support {

/// Runs the tool in the folder, with no file allowed to grow beyond `size` bytes: the nearest thing
/// to a full disk that a test can have.
inline ToolRun runOnAFullDisk(const ToolFolder &folder, qint64 size, const QStringList &arguments)
{
    QProcess tool;
    tool.setWorkingDirectory(folder.path(u"."_s));
#ifdef Q_OS_UNIX
    tool.setChildProcessModifier([size] {
        const rlimit limit{rlim_t(size), rlim_t(size)};
        setrlimit(RLIMIT_FSIZE, &limit);
        signal(SIGXFSZ, SIG_IGN);
    });
#else
    Q_UNUSED(size)
#endif
    tool.start(QStringLiteral(KILNJET_TOOL), arguments);
    const bool ended = tool.waitForFinished(120'000) && tool.exitStatus() == QProcess::NormalExit;
    return {ended ? tool.exitCode() : -1, tool.readAllStandardOutput(),
            tool.readAllStandardError()};
}

} // namespace Support
