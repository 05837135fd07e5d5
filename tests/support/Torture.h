// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QString>
#include <QtCore/QtGlobal>

#include <chrono>
#include <cstdio>

// Tests whose worth grows with their size: small in every run, large under `./dev torture`.

namespace Support {

inline bool isTorture()
{
    return qEnvironmentVariableIsSet("KILNJET_TORTURE");
}

/// How much to do.
inline int rounds(int everyRun, int torture)
{
    return isTorture() ? torture : everyRun;
}

/// What no run reaches unless it hangs.
inline std::chrono::seconds tortureLimit()
{
    using namespace std::chrono_literals;
    return isTorture() ? 1700s : 280s;
}

/// The template of a temporary folder, in memory where there is such a place: tens of thousands of
/// syncs would take minutes.
inline QString folderInMemory()
{
    const QFileInfo memory(QStringLiteral("/dev/shm"));
    const QString folder = memory.isWritable() ? memory.canonicalFilePath() : QDir::tempPath();
    return folder + QStringLiteral("/kilnjet-XXXXXX");
}

/// Prints what a test has found, for the summary of `./dev torture`.
inline void figure(const QString &text)
{
    std::printf("figure: %s\n", qPrintable(text));
    std::fflush(stdout);
}

} // namespace Support
