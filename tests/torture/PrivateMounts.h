// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QString>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

namespace Torture {

/// Gives this process a view of the mounted file systems of its own, which ends with it. What the
/// system said when it refused that; empty when it did not. To be called while there is one thread.
inline QString enterPrivateMounts()
{
    const auto user = std::to_string(::getuid());
    const auto group = std::to_string(::getgid());
    // Who is not root may be in a world of its own.
    if (::unshare(::getuid() == 0 ? CLONE_NEWNS : CLONE_NEWUSER | CLONE_NEWNS) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    const auto write = [](const char *path, const std::string &text) {
        const int handle = ::open(path, O_WRONLY | O_CLOEXEC);
        const bool isWritten =
            handle >= 0 && ::write(handle, text.data(), text.size()) == ssize_t(text.size());
        ::close(handle);
        return isWritten;
    };
    if (user != "0") {
        write("/proc/self/setgroups", "deny");
        if (!write("/proc/self/uid_map", "0 " + user + " 1")
            || !write("/proc/self/gid_map", "0 " + group + " 1"))
            return QString::fromLocal8Bit(std::strerror(errno));
    }
    // Else the mounts would be seen outside.
    if (::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        return QString::fromLocal8Bit(std::strerror(errno));
    return {};
}

/// Mounts a file system in memory of that size on the folder.
[[nodiscard]] inline bool mountMemory(const QString &folder, qint64 bytes)
{
    const std::string options = "size=" + std::to_string(bytes);
    return ::mount("tmpfs", folder.toLocal8Bit().constData(), "tmpfs", 0, options.c_str()) == 0;
}

} // namespace Torture
