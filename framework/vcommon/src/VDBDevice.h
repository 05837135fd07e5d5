// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <platform/filesystem.h>
#include <vcommon/VDBStatus.h>

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QPointer>

#include <thread>
#include <vector>

class QFileDevice;

namespace Norvane::Database {

using Platform::FileIdentity;

/// A stretch of new content: a range of the present content, or bytes that are given.
struct ContentPart
{
    qint64 at = -1; ///< Where the range begins; -1 for given bytes.
    qint64 size = 0;
    QByteArray bytes;
};

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
    /// The length of the content, with the filling.
    qint64 size() const { return m_device->size(); }
    /// The whole content; nothing when it cannot be read.
    std::optional<QByteArray> readAll();
    /// A range of the content, shorter only at its end; nothing when it cannot be read.
    std::optional<QByteArray> read(qint64 at, qint64 size);
    [[nodiscard]] bool write(qint64 at, QByteArrayView bytes);
    /// Lets a file end in line feeds from `at` on, as many as there is room for; any other device
    /// stays as it is.
    void fillAhead(qint64 at, qint64 size);
    [[nodiscard]] bool sync();
    /// Cuts the content down to `size`; false when the device cannot do that.
    [[nodiscard]] bool truncate(qint64 size);
    /// Makes a file that open() has just made survive a power cut.
    [[nodiscard]] bool syncCreation();
    /// Takes back the file that open() has just made.
    void removeCreated();
    /// Replaces the whole content: a file by a new one written beside it and swapped in, any other
    /// device in place.
    [[nodiscard]] bool replaceContent(const std::vector<ContentPart> &parts);
    /// False when another process may have changed the content since replaceContent() wrote it.
    bool isAsReplaced() const { return m_isAsReplaced; }
    /// Lets other processes in while the device stays open.
    void unlock();

    QString errorString() const { return m_error; }

private:
    VDBStatus openFile(QFileDevice *file, Intent intent, std::chrono::milliseconds lockTimeout);
    VDBStatus openPlain(QIODevice *device, Intent intent);
    bool openClosed(QIODevice &device, QIODevice::OpenMode mode);
    bool reopen(QIODevice::OpenMode mode);
    bool readInto(QByteArray &bytes, qsizetype from, qint64 at);
    bool copyParts(const std::vector<ContentPart> &parts, QIODevice &to);
    bool swapFile(QFileDevice *file, const std::vector<ContentPart> &parts);
    bool overwrite(const std::vector<ContentPart> &parts);
    void closeLater(int handle);
    QFileDevice *file() const;
    bool fail(const QString &error);

    QPointer<QIODevice> m_device; ///< Null again should its owner delete it too early.
    QIODevice::OpenMode m_foundMode = QIODevice::NotOpen;
    qint64 m_foundPosition = 0;
    bool m_isLocked = false;
    bool m_hasCreated = false;
    bool m_isAsReplaced = false;
    std::jthread m_closing; ///< Gives back the space of a replaced file.
    QString m_error;
};

} // namespace Norvane::Database
