// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "filesystem.h"

#include <vcommon/VDBStatus.h>

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QPointer>

class QFileDevice;

namespace Norvane::Database {

/// One access to the device of a store: opened and locked as needed, and left as it was found.
///
/// Every operation tells whether it worked; errorString() says what the system said.
class Device
{
public:
    enum class Intent
    {
        Read,
        Write,
        Create
    };

    Device() = default;
    Q_DISABLE_COPY_MOVE(Device)
    ~Device() { close(); }

    /// Opens and locks `device`. A missing file is made only with Intent::Create.
    VDBStatus open(QIODevice *device, Intent intent, std::chrono::milliseconds lockTimeout);
    /// Unlocks the device and leaves it as it was found.
    void close();
    bool isOpen() const { return !m_device.isNull(); }

    /// The file's state; nothing for a device that is no file.
    std::optional<FileIdentity> identity() const;
    /// The whole content; nothing when it cannot be read.
    std::optional<QByteArray> readAll();
    [[nodiscard]] bool write(qint64 at, const QByteArray &bytes);
    [[nodiscard]] bool sync();
    /// Cuts the content down to `size`; false when the device cannot do that.
    [[nodiscard]] bool truncate(qint64 size);
    /// Makes a file that open() has just made survive a power cut.
    [[nodiscard]] bool syncCreation();
    /// Takes back the file that open() has just made.
    void removeCreated();
    /// Replaces the whole content: a file by a new one written beside it and swapped in, any other
    /// device in place.
    [[nodiscard]] bool replaceContent(const QByteArray &bytes);
    /// Lets other processes in while the device stays open.
    void unlock();

    QString errorString() const { return m_error; }

private:
    VDBStatus openFile(QFileDevice *file, Intent intent, std::chrono::milliseconds lockTimeout);
    VDBStatus openPlain(QIODevice *device, Intent intent);
    bool reopen(QIODevice::OpenMode mode);
    bool swapFile(QFileDevice *file, const QByteArray &bytes);
    bool overwrite(const QByteArray &bytes);
    QFileDevice *file() const;
    bool fail(const QString &error);

    QPointer<QIODevice> m_device; ///< Null again should its owner delete it too early.
    QIODevice::OpenMode m_foundMode = QIODevice::NotOpen;
    qint64 m_foundPosition = 0;
    bool m_isLocked = false;
    bool m_hasCreated = false;
    QString m_error;
};

} // namespace Norvane::Database
