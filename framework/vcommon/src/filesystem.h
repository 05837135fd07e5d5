// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>

#include <chrono>
#include <optional>

// What Qt does not offer of the operating system's files. One implementation a platform.

namespace Norvane::Database {

/// Tells one state of a file from any other, without reading it.
struct FileIdentity
{
    quint64 volume = 0;
    quint64 file = 0;
    qint64 size = 0;
    qint64 modified = 0; ///< Nanoseconds, as the file system keeps them.
    qint64 changed = 0; ///< Likewise, for the file's own data: permissions, links.

    bool isSameFileAs(const FileIdentity &other) const
    {
        return volume == other.volume && file == other.file;
    }
    friend bool operator==(const FileIdentity &, const FileIdentity &) = default;
};

std::optional<FileIdentity> fileIdentity(int handle);
std::optional<FileIdentity> fileIdentity(const QString &path);

/// Locks the open file against other openings of it, in this process or another: alone, or together
/// with others who only read. False when `timeout` passed first. The lock ends with the process.
[[nodiscard]] bool lockFile(int handle, bool alone, std::chrono::milliseconds timeout);
void unlockFile(int handle);

/// Reads from a place in the file, on any thread; how much it was, less than `size` only at the end
/// of the file, or -1.
[[nodiscard]] qint64 readFileAt(int handle, qint64 at, char *to, qint64 size);

/// Another handle of the same open file, or -1.
[[nodiscard]] int duplicateHandle(int handle);
void closeHandle(int handle);

/// Makes the file's content survive a power cut.
[[nodiscard]] bool syncFile(int handle);
/// Makes the entries of the folder that holds `path` survive a power cut.
[[nodiscard]] bool syncFolderOf(const QString &path);

/// Gives the file `to` the owner and permissions of the file `from`, as far as we may.
void copyPermissions(int from, int to);
/// Puts the file `from` in the place of the file `to`, in one step.
[[nodiscard]] bool replaceFile(const QString &from, const QString &to);

/// The system's words for the last failure in this thread.
QString lastFileError();

} // namespace Norvane::Database
