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

std::int64_t nanoseconds(const timespec &time)
{
    return std::int64_t(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileIdentity identityOf(const struct stat &data)
{
    return {.volume = std::uint64_t(data.st_dev),
            .file = {std::uint64_t(data.st_ino), 0},
            .size = std::int64_t(data.st_size),
            .modified = nanoseconds(data.st_mtim),
            .changed = nanoseconds(data.st_ctim)};
}

} // namespace

std::optional<FileIdentity> fileIdentity(int handle)
{
    struct stat data = {};
    return ::fstat(handle, &data) == 0 ? std::optional(identityOf(data)) : std::nullopt;
}

std::optional<FileIdentity> fileIdentity(const std::filesystem::path &path)
{
    struct stat data = {};
    return ::stat(path.c_str(), &data) == 0 ? std::optional(identityOf(data)) : std::nullopt;
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

int duplicateHandle(int handle)
{
    return ::fcntl(handle, F_DUPFD_CLOEXEC, 0);
}

void closeHandle(int handle)
{
    ::close(handle);
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
