// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "FileCalls.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <dlfcn.h>
#include <fcntl.h>
#include <mutex>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>

namespace Support {

namespace {

// What needs no construction: these functions are called before any static object's turn.
std::array<char, 4096> watchedFolder;
std::atomic<std::size_t> watchedSize = 0;
std::array<std::atomic<bool>, 4096> isWatchedHandle;

struct Court
{
    std::mutex mutex;
    FileCalls::Judge judge;
    std::thread::id seat; ///< The thread that has set the judge.
};

Court &court()
{
    static Court court;
    return court;
}

bool isWatched(const char *path)
{
    const std::string_view folder(watchedFolder.data(), watchedSize);
    const std::string_view text(path);
    return !folder.empty() && text.substr(0, folder.size()) == folder
        && (text.size() == folder.size() || text[folder.size()] == '/');
}

bool isWatched(int handle)
{
    return handle >= 0 && std::size_t(handle) < isWatchedHandle.size()
        && isWatchedHandle[std::size_t(handle)];
}

void setWatched(int handle, bool watched)
{
    if (handle >= 0 && std::size_t(handle) < isWatchedHandle.size())
        isWatchedHandle[std::size_t(handle)] = watched;
}

/// The system's own function.
template<typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

FileCallFate judge(const FileCall &call)
{
    const std::lock_guard lock(court().mutex);
    const bool isAside = call.kind == FileCall::Close && std::this_thread::get_id() != court().seat;
    return court().judge && !isAside ? court().judge(call) : FileCallFate();
}

/// Calls `call` with the number of bytes that the judge allows.
template<typename Call>
auto judged(const FileCall &fileCall, Call call) -> decltype(call(std::size_t()))
{
    const FileCallFate fate = judge(fileCall);
    if (fate.error != 0) {
        errno = fate.error;
        return -1;
    }
    const auto result = call(std::min(fate.part.value_or(fileCall.size), fileCall.size));
    if (fate.isLast)
        ::kill(::getpid(), SIGKILL);
    return result;
}

/// The whole of a function that is told a file by `which`, its path or handle.
template<typename Function, typename... Arguments>
auto passOn(Function *function, FileCall::Kind kind, const char *name, bool watched,
            Arguments... arguments) -> decltype(function(arguments...))
{
    if (!watched)
        return function(arguments...);
    return judged({kind, name}, [&](std::size_t) { return function(arguments...); });
}

template<typename Function, typename... Path>
int passOnOpen(Function *function, const char *name, bool watched, Path... arguments)
{
    const int handle = passOn(function, FileCall::Open, name, watched, arguments...);
    setWatched(handle, watched);
    return handle;
}

} // namespace

void FileCalls::watch(const std::string &folder)
{
    watchedSize = folder.copy(watchedFolder.data(), watchedFolder.size());
}

void FileCalls::setJudge(const Judge &judge)
{
    const std::lock_guard lock(court().mutex);
    court().judge = judge;
    court().seat = std::this_thread::get_id();
}

} // namespace Support

using namespace Support;

namespace {

bool takesMode(int flags)
{
    return (flags & (O_CREAT | __O_TMPFILE)) != 0;
}

} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier): the system's functions have the system's names.
#define REAL(name) real<decltype(name)>(#name)
#define PASS_ON(kind, name, watched, ...)                                                          \
    return passOn(REAL(name), FileCall::kind, #name, watched, __VA_ARGS__)

// NOLINTBEGIN(clang-analyzer-valist.Uninitialized): va_start() stands two lines above.
#define OPEN(name)                                                                                 \
    int name(const char *path, int flags, ...)                                                     \
    {                                                                                              \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = takesMode(flags) ? va_arg(list, mode_t) : 0;                           \
        va_end(list);                                                                              \
        return passOnOpen(REAL(name), #name, isWatched(path), path, flags, mode);                  \
    }

#define OPEN_AT(name)                                                                              \
    int name(int folder, const char *path, int flags, ...)                                         \
    {                                                                                              \
        va_list list;                                                                              \
        va_start(list, flags);                                                                     \
        const mode_t mode = takesMode(flags) ? va_arg(list, mode_t) : 0;                           \
        va_end(list);                                                                              \
        return passOnOpen(REAL(name), #name, isWatched(path), folder, path, flags, mode);          \
    }

#define TRANSFER(name, kind, pointer)                                                              \
    ssize_t name(int handle, pointer data, size_t size)                                            \
    {                                                                                              \
        if (!isWatched(handle))                                                                    \
            return REAL(name)(handle, data, size);                                                 \
        return judged({FileCall::kind, #name, size},                                               \
                      [&](size_t part) { return REAL(name)(handle, data, part); });                \
    }

#define TRANSFER_AT(name, kind, pointer, offset)                                                   \
    ssize_t name(int handle, pointer data, size_t size, offset at)                                 \
    {                                                                                              \
        if (!isWatched(handle))                                                                    \
            return REAL(name)(handle, data, size, at);                                             \
        return judged({FileCall::kind, #name, size},                                               \
                      [&](size_t part) { return REAL(name)(handle, data, part, at); });            \
    }

#define SYNC(name)                                                                                 \
    int name(int handle)                                                                           \
    {                                                                                              \
        if (!isWatched(handle))                                                                    \
            return REAL(name)(handle);                                                             \
        return judged({FileCall::Sync, #name, 0, handle},                                          \
                      [&](size_t) { return REAL(name)(handle); });                                 \
    }

extern "C" {

OPEN(open)
OPEN(open64)
OPEN_AT(openat)
OPEN_AT(openat64)
// NOLINTEND(clang-analyzer-valist.Uninitialized)

int close(int handle)
{
    const bool watched = isWatched(handle);
    setWatched(handle, false);
    if (!watched)
        return REAL(close)(handle);
    bool isClosed = false;
    const int verdict = judged({FileCall::Close, "close"}, [&](size_t) {
        isClosed = true;
        return REAL(close)(handle);
    });
    const int error = errno;
    if (!isClosed)
        REAL(close)(handle); // The handle is gone also when the system reports a failure.
    errno = error;
    return verdict;
}

TRANSFER(read, Read, void *)
TRANSFER(write, Write, const void *)
TRANSFER_AT(pread, Read, void *, off_t)
TRANSFER_AT(pread64, Read, void *, off64_t)
TRANSFER_AT(pwrite, Write, const void *, off_t)
TRANSFER_AT(pwrite64, Write, const void *, off64_t)

ssize_t writev(int handle, const iovec *parts, int count)
{
    PASS_ON(Write, writev, isWatched(handle), handle, parts, count);
}

SYNC(fsync)
SYNC(fdatasync)

int sync_file_range(int handle, off64_t offset, off64_t size, unsigned flags)
{
    PASS_ON(Harmless, sync_file_range, isWatched(handle), handle, offset, size, flags);
}

int ftruncate(int handle, off_t size) noexcept
{
    PASS_ON(Resize, ftruncate, isWatched(handle), handle, size);
}
int ftruncate64(int handle, off64_t size) noexcept
{
    PASS_ON(Resize, ftruncate64, isWatched(handle), handle, size);
}
int fallocate(int handle, int mode, off_t offset, off_t size)
{
    PASS_ON(Resize, fallocate, isWatched(handle), handle, mode, offset, size);
}
int fallocate64(int handle, int mode, off64_t offset, off64_t size)
{
    PASS_ON(Resize, fallocate64, isWatched(handle), handle, mode, offset, size);
}

int rename(const char *from, const char *to) noexcept
{
    PASS_ON(Name, rename, isWatched(from), from, to);
}
int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
              unsigned flags) noexcept
{
    PASS_ON(Name, renameat2, isWatched(from), fromFolder, from, toFolder, to, flags);
}
int link(const char *from, const char *to) noexcept
{
    PASS_ON(Name, link, isWatched(from), from, to);
}
int unlink(const char *path) noexcept
{
    PASS_ON(Name, unlink, isWatched(path), path);
}
int remove(const char *path) noexcept
{
    PASS_ON(Name, remove, isWatched(path), path);
}

int flock(int handle, int operation) noexcept
{
    if ((operation & LOCK_UN) != 0)
        PASS_ON(Harmless, flock, isWatched(handle), handle, operation);
    PASS_ON(Lock, flock, isWatched(handle), handle, operation);
}

int stat(const char *path, struct stat *data) noexcept
{
    return passOn(real<int(const char *, struct stat *)>("stat"), FileCall::Look, "stat",
                  isWatched(path), path, data);
}
int stat64(const char *path, struct stat64 *data) noexcept
{
    return passOn(real<int(const char *, struct stat64 *)>("stat64"), FileCall::Look, "stat64",
                  isWatched(path), path, data);
}
int lstat64(const char *path, struct stat64 *data) noexcept
{
    PASS_ON(Look, lstat64, isWatched(path), path, data);
}
int fstat(int handle, struct stat *data) noexcept
{
    PASS_ON(Look, fstat, isWatched(handle), handle, data);
}
int fstat64(int handle, struct stat64 *data) noexcept
{
    PASS_ON(Look, fstat64, isWatched(handle), handle, data);
}
int statx(int handle, const char *path, int flags, unsigned mask, struct statx *data) noexcept
{
    return passOn(real<int(int, const char *, int, unsigned, struct statx *)>("statx"),
                  FileCall::Look, "statx", isWatched(handle) || isWatched(path), handle, path,
                  flags, mask, data);
}
int access(const char *path, int mode) noexcept
{
    PASS_ON(Look, access, isWatched(path), path, mode);
}
ssize_t readlink(const char *path, char *target, size_t size) noexcept
{
    PASS_ON(Look, readlink, isWatched(path), path, target, size);
}
off_t lseek(int handle, off_t offset, int from) noexcept
{
    PASS_ON(Harmless, lseek, isWatched(handle), handle, offset, from);
}
off64_t lseek64(int handle, off64_t offset, int from) noexcept
{
    PASS_ON(Harmless, lseek64, isWatched(handle), handle, offset, from);
}
int fchmod(int handle, mode_t mode) noexcept
{
    PASS_ON(Look, fchmod, isWatched(handle), handle, mode);
}
int fchown(int handle, uid_t owner, gid_t group) noexcept
{
    PASS_ON(Look, fchown, isWatched(handle), handle, owner, group);
}

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
