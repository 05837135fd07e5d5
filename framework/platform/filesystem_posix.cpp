// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "platform/filesystem.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Norvane::Platform {

namespace {

using namespace std::chrono_literals;

template<typename Call>
int retried(Call call)
{
    int result = 0;
    do {
        result = call();
    } while (result == -1 && errno == EINTR);
    return result;
}

/// What is written at once. Of twice as much the system makes one large page, and finding room for
/// one may take longer than writing it.
constexpr std::int64_t kPiece = std::int64_t(1024) * 1024;
/// So much is worth being brought to the disk before it is synced.
constexpr std::int64_t kWorthStarting = 2 * kPiece;

/// Asks for the state of the path, or of the handle when the path is empty.
std::optional<FileIdentity> identityOf(int handle, const char *path)
{
#if defined(__linux__)
    struct statx data = {};
    const int flags = path[0] == '\0' ? AT_EMPTY_PATH : 0;
    if (::statx(handle, path, flags, STATX_TYPE | STATX_INO | STATX_SIZE, &data) != 0)
        return std::nullopt;
    return FileIdentity{.volume = std::uint64_t(data.stx_dev_major) << 32 | data.stx_dev_minor,
                        .file = {data.stx_ino, 0},
                        .size = std::int64_t(data.stx_size),
                        .isRegular = S_ISREG(data.stx_mode)};
#else
    struct stat data = {};
    if ((path[0] == '\0' ? ::fstat(handle, &data) : ::stat(path, &data)) != 0)
        return std::nullopt;
    return FileIdentity{.volume = std::uint64_t(data.st_dev),
                        .file = {std::uint64_t(data.st_ino), 0},
                        .size = std::int64_t(data.st_size),
                        .isRegular = S_ISREG(data.st_mode)};
#endif
}

/// A hint that changes nothing but when the disk is busy.
void startWriting([[maybe_unused]] int handle, [[maybe_unused]] std::int64_t at,
                  [[maybe_unused]] std::int64_t size)
{
#if defined(__linux__)
    ::sync_file_range(handle, at, size, SYNC_FILE_RANGE_WRITE);
#endif
}

} // namespace

std::optional<FileIdentity> fileIdentity(int handle)
{
    return identityOf(handle, "");
}

std::optional<FileIdentity> fileIdentity(const std::filesystem::path &path)
{
    return path.empty() ? std::nullopt : identityOf(AT_FDCWD, path.c_str());
}

int openFile(const std::filesystem::path &path, Access access, Existence existence)
{
    const int flags = (access == Access::Read ? O_RDONLY : O_RDWR)
        | (existence == Existence::Required ? 0 : O_CREAT)
        | (existence == Existence::Refused ? O_EXCL : 0) | O_CLOEXEC;
    return retried([&] { return ::open(path.c_str(), flags, 0666); });
}

void closeHandle(int handle)
{
    ::close(handle);
}

bool lockFile(int handle, bool alone, std::chrono::milliseconds timeout)
{
    const auto deadline = std::chrono::steady_clock::now() + timeout;
    const int operation = (alone ? LOCK_EX : LOCK_SH) | LOCK_NB;
    // There is no lock call with a time limit; trying again in growing steps is what is left.
    for (auto pause = 1ms; retried([&] { return ::flock(handle, operation); }) != 0;
         pause = std::min(pause * 2, std::chrono::milliseconds(20))) {
        if (errno != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(pause);
    }
    return true;
}

void unlockFile(int handle)
{
    retried([&] { return ::flock(handle, LOCK_UN); });
}

std::int64_t readFileAt(int handle, std::int64_t at, char *to, std::int64_t size)
{
    std::int64_t filled = 0;
    while (filled < size) {
        const ssize_t got = ::pread(handle, to + filled, std::size_t(size - filled), at + filled);
        if (got < 0 && errno != EINTR)
            return -1;
        if (got == 0)
            break;
        filled += std::max<ssize_t>(got, 0);
    }
    return filled;
}

bool writeFileAt(int handle, std::int64_t at, const char *from, std::int64_t size)
{
    std::int64_t started = 0;
    for (std::int64_t done = 0; done < size;) {
        const auto piece = std::size_t(std::min(size - done, kPiece));
        const ssize_t written = ::pwrite(handle, from + done, piece, at + done);
        if (written == 0 || (written < 0 && errno != EINTR))
            return false;
        done += std::max<ssize_t>(written, 0);
        if (done - started >= kWorthStarting) {
            startWriting(handle, at + started, done - started);
            started = done;
        }
    }
    return true;
}

bool resizeFile(int handle, std::int64_t size)
{
    return retried([&] { return ::ftruncate(handle, size); }) == 0;
}

void expectUse([[maybe_unused]] char *memory, [[maybe_unused]] std::int64_t size)
{
#if defined(MADV_HUGEPAGE)
    // Usual pages are asked for one by one, which costs as much as filling them.
    const std::int64_t page = ::sysconf(_SC_PAGESIZE);
    // Whole pages only, as places in the memory given.
    const auto offset = std::int64_t(std::uintptr_t(memory) % std::uintptr_t(page));
    const std::int64_t begin = (page - offset) % page;
    const std::int64_t end = (offset + size) / page * page - offset;
    if (begin < end)
        ::madvise(memory + begin, std::size_t(end - begin), MADV_HUGEPAGE);
#endif
}

bool syncFile(int handle)
{
#if defined(__linux__)
    // The size is synced with the data; what fdatasync() leaves out nobody needs for reading.
    return retried([&] { return ::fdatasync(handle); }) == 0;
#else
    return retried([&] { return ::fsync(handle); }) == 0;
#endif
}

bool syncFolderOf(const std::filesystem::path &path)
{
    const std::filesystem::path folder = path.has_parent_path() ? path.parent_path() : ".";
    const int handle =
        retried([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
    if (handle < 0)
        return false;
    const bool ok = retried([&] { return ::fsync(handle); }) == 0;
    ::close(handle);
    return ok;
}

void copyPermissions(int from, int to)
{
    struct stat data = {};
    if (::fstat(from, &data) != 0)
        return;
    // Only root may give files away; the owner stays ours then, which changes nothing for anybody.
    [[maybe_unused]] const int owner = ::fchown(to, data.st_uid, data.st_gid);
    ::fchmod(to, data.st_mode & 07777);
}

bool replaceFile(const std::filesystem::path &from, const std::filesystem::path &to)
{
    return ::rename(from.c_str(), to.c_str()) == 0;
}

int lastError()
{
    return errno;
}

} // namespace Norvane::Platform
