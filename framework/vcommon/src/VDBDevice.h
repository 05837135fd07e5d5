// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <platform/filesystem.h>
#include <vcommon/VDBStatus.h>

#include <QtCore/QByteArray>
#include <QtCore/QIODevice>
#include <QtCore/QPointer>

#include <functional>
#include <thread>
#include <vector>

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
/// A QFile that is found closed only tells the name: the file is opened and worked on beside it.
/// Every other device, files of other classes among them, may have ways of its own of opening,
/// reading and writing, so that all goes through it.
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
    bool isOpen() const { return m_handle >= 0 || !m_device.isNull(); }

    /// The file's state; nothing for a device that is no file.
    std::optional<FileIdentity> identity() const;
    /// The length of the content, with the filling; -1 when the system does not tell.
    qint64 size();
    /// The whole content; nothing when it cannot be read.
    std::optional<QByteArray> readAll();
    /// A range of the content, shorter only where that ends; nothing when it cannot be read.
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
    /// False when others may have changed the content since replaceContent() wrote it.
    bool isAsReplaced() const { return m_isAsReplaced; }
    /// Lets other processes in while the device stays open.
    void unlock();

    QString errorString() const { return m_error; }

private:
    using Writer = std::function<bool(QByteArrayView bytes)>;

    VDBStatus openNamed(Intent intent, std::chrono::milliseconds lockTimeout);
    VDBStatus openOnce(Intent intent);
    VDBStatus openDevice(Intent intent);
    bool reopen(QIODevice::OpenMode mode);
    bool letGo();
    bool isAtPath() const;
    bool readInto(QByteArray &bytes, qsizetype from, qint64 at);
    bool copyParts(const std::vector<ContentPart> &parts, const Writer &write);
    bool swapFile(const std::vector<ContentPart> &parts);
    bool takeUp(int fresh);
    bool overwrite(const std::vector<ContentPart> &parts);
    void closeLater(int handle);
    bool isFile() const;
    int handle() const;
    bool fail(const QString &error);

    int m_handle = -1; ///< Of a file that is worked on without the device.
    QPointer<QIODevice> m_device; ///< Otherwise; null again should its owner delete it too early.
    QString m_path; ///< Of a file, unless it has none.
    QIODevice::OpenMode m_foundMode = QIODevice::NotOpen;
    qint64 m_foundPosition = 0;
    bool m_isLocked = false;
    bool m_hasCreated = false;
    bool m_isAsReplaced = false;
    std::jthread m_closing; ///< Gives back the space of a replaced file.
    QString m_error;
};

} // namespace Norvane::Database
