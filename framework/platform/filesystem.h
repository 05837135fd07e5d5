// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <array>
#include <chrono>
#include <cstdint>
#include <filesystem>
#include <optional>

// Files, as far as the standard library and Qt fall short. A handle is a descriptor of the C
// library, as QFileDevice::handle() gives it. After a failure lastError() says why.

namespace Norvane::Platform {

/// Which file it is, and what can be told of its state without reading it.
///
/// There are no times in it: since Linux 6.13 a file whose times somebody asks for gets new ones at
/// its next write, and the sync behind that takes half as long again.
struct FileIdentity
{
    std::uint64_t volume = 0;
    std::array<std::uint64_t, 2> file = {};
    std::int64_t size = 0;
    bool isRegular = false; ///< No folder, no pipe, no device.

    bool isSameFileAs(const FileIdentity &other) const
    {
        return volume == other.volume && file == other.file;
    }
    friend bool operator==(const FileIdentity &, const FileIdentity &) = default;
};

std::optional<FileIdentity> fileIdentity(int handle);
std::optional<FileIdentity> fileIdentity(const std::filesystem::path &path);

enum class Access
{
    Read,
    ReadWrite
};

enum class Existence
{
    Required,
    Allowed,
    Refused
};

/// Opens a file so that replaceFile() works on it meanwhile, and makes one that is missing unless
/// it is required; -1 when that cannot be.
[[nodiscard]] int openFile(const std::filesystem::path &path, Access access, Existence existence);
void closeHandle(int handle);

/// Locks the open file against other openings of it, in this process or another: alone, or together
/// with others who only read. False when `timeout` passed first. The lock ends with the process.
/// It keeps nobody from reading and writing who does not ask for it.
[[nodiscard]] bool lockFile(int handle, bool alone, std::chrono::milliseconds timeout);
void unlockFile(int handle);

/// Reads from a place in the file, on any thread; how much it was, less than `size` only at the end
/// of the file, or -1. Afterwards the file's position may be another.
[[nodiscard]] std::int64_t readFileAt(int handle, std::int64_t at, char *to, std::int64_t size);

/// Writes all of it to a place in the file. Of much, the system is told to bring what is written to
/// the disk at once, so that less is left for syncFile(). Afterwards the file's position may be
/// another.
[[nodiscard]] bool writeFileAt(int handle, std::int64_t at, const char *from, std::int64_t size);
/// Cuts the file, or lengthens it by zeros.
[[nodiscard]] bool resizeFile(int handle, std::int64_t size);

/// Says that all of this fresh memory is about to be filled, so that the system may give it in
/// large pages.
void expectUse(char *memory, std::int64_t size);

/// Makes the file's content survive a power cut.
[[nodiscard]] bool syncFile(int handle);
/// Makes the entry of `path` in its folder survive a power cut.
[[nodiscard]] bool syncFolderOf(const std::filesystem::path &path);

/// Gives the file `to` the owner and permissions of the file `from`, as far as we may.
void copyPermissions(int from, int to);
/// Puts the file `from` in the place of the file `to`, in one step. On Windows, no handle may be
/// open of either but openFile()'s.
[[nodiscard]] bool replaceFile(const std::filesystem::path &from, const std::filesystem::path &to);

/// The system's number for the last failure in this thread, as qt_error_string() takes it.
int lastError();

} // namespace Norvane::Platform
