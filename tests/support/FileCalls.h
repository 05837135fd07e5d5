// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <functional>
#include <optional>
#include <string>

namespace Support {

/// A call of the system about a file.
struct FileCall
{
    enum Kind
    {
        Open,
        Close,
        Harmless, ///< What does not fail on any system, or is only a hint: seeking, unlocking.
        Look, ///< Its state, its permissions.
        Lock,
        Read,
        Write,
        Sync,
        Resize,
        Name ///< Rename, link, remove.
    };

    Kind kind;
    const char *name; ///< The function's.
    std::size_t size = 0; ///< The bytes to be read or written.
    int handle = -1; ///< Of a Sync, what is synced.
};

/// What becomes of a call.
struct FileCallFate
{
    int error = 0; ///< It fails with this error and does nothing, unless 0.
    std::optional<std::size_t> part; ///< It reads or writes no more than that, as it well may.
    bool isLast = false; ///< The process is killed after it.
};

/// Stands between a program and the system. The program links FileCalls.cpp, whose functions of
/// the system's names take precedence in all of its libraries.
class FileCalls
{
public:
    using Judge = std::function<FileCallFate(const FileCall &call)>;

    /// Which files are meant: all below the folder, and itself. To be said before one is open.
    static void watch(const std::string &folder);
    /// Who decides about the calls on them from now on; null for nobody. The judge, who may come
    /// from any thread, makes no such calls. Only what this thread closes counts: the store closes
    /// a replaced file aside, at no certain moment.
    static void setJudge(const Judge &judge);
};

} // namespace Support
