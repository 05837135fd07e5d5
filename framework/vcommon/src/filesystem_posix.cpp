// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "filesystem.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Norvane::Database {

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

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

FileIdentity identityOf(const struct stat &data)
{
    return {quint64(data.st_dev), quint64(data.st_ino), qint64(data.st_size),
            nanoseconds(data.st_mtim), nanoseconds(data.st_ctim)};
}

} // namespace

std::optional<FileIdentity> fileIdentity(int handle)
{
    struct stat data = {};
    return ::fstat(handle, &data) == 0 ? std::optional(identityOf(data)) : std::nullopt;
}

std::optional<FileIdentity> fileIdentity(const QString &path)
{
    struct stat data = {};
    return ::stat(QFile::encodeName(path).constData(), &data) == 0 ? std::optional(identityOf(data))
                                                                   : std::nullopt;
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

qint64 readFileAt(int handle, qint64 at, char *to, qint64 size)
{
    qint64 filled = 0;
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
#if defined(Q_OS_LINUX)
    // The size is synced with the data; what fdatasync() leaves out nobody needs for reading.
    return retried([&] { return ::fdatasync(handle); }) == 0;
#else
    return retried([&] { return ::fsync(handle); }) == 0;
#endif
}

bool syncFolderOf(const QString &path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int handle =
        retried([&] { return ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
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

bool replaceFile(const QString &from, const QString &to)
{
    return ::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

QString lastFileError()
{
    return qt_error_string(errno);
}

} // namespace Norvane::Database
