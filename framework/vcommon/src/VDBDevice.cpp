// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBDevice.h"

#include <vcommon/IVDurableDevice.h>

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <new>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

namespace {

QIODevice::OpenMode modeFor(Device::Intent intent)
{
    switch (intent) {
    case Device::Intent::Read:
        return QIODevice::ReadOnly | QIODevice::Unbuffered | QIODevice::ExistingOnly;
    case Device::Intent::Write:
        return QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::ExistingOnly;
    case Device::Intent::Create:
        break;
    }
    return QIODevice::ReadWrite | QIODevice::Unbuffered;
}

/// Writes all of `bytes`, however few the device takes at a time.
bool writeAll(QIODevice &device, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const qint64 written = device.write(bytes.data(), bytes.size());
        if (written <= 0)
            return false;
        bytes = bytes.sliced(written);
    }
    auto *const file = qobject_cast<QFileDevice *>(&device);
    return file == nullptr || file->flush();
}

/// Lets a closed file forget what it knows. Once Qt's file has failed to ask the system for the
/// state of a file, it takes that for a sequential one each time that it is opened.
void renew(QFileDevice *device)
{
    // A file of another class may have ideas of its own about its name.
    if (device->metaObject() == &QFile::staticMetaObject)
        static_cast<QFile *>(device)->setFileName(device->fileName());
}

/// Where the file that is to replace the one at `path` is written: always the same place, so that
/// what a crash leaves there is found.
QString freshPathOf(const QString &path)
{
    constexpr qsizetype kLongestName = 255; // In bytes; no usual file system has less.
    const QString suffix = u".new"_s;
    const QFileInfo info(path);
    const QByteArray name = QFile::encodeName(info.fileName());
    if (name.size() + suffix.size() <= kLongestName)
        return path + suffix;
    const QByteArray sum = QCryptographicHash::hash(name, QCryptographicHash::Blake2b_256);
    return info.path() + u'/' + QString::fromLatin1(sum.toHex()) + suffix;
}

} // namespace

QFileDevice *Device::file() const
{
    return qobject_cast<QFileDevice *>(m_device.data());
}

bool Device::fail(const QString &error)
{
    m_error = error;
    return false;
}

VDBStatus Device::open(QIODevice *device, Intent intent, std::chrono::milliseconds lockTimeout)
{
    close();
    m_error.clear();
    m_hasCreated = false;
    if (device == nullptr)
        return VDBStatus::NoDevice;
    m_foundMode = device->openMode();
    m_foundPosition = device->isOpen() ? device->pos() : 0;
    m_device = device;
    auto *const fileDevice = file();
    const VDBStatus status = fileDevice != nullptr && !fileDevice->fileName().isEmpty()
        ? openFile(fileDevice, intent, lockTimeout)
        : openPlain(device, intent);
    if (status != VDBStatus::Ok)
        close();
    return status;
}

VDBStatus Device::openPlain(QIODevice *device, Intent intent)
{
    if (!device->isOpen()
        && !device->open(intent == Intent::Read ? QIODevice::ReadOnly : QIODevice::ReadWrite)) {
        m_error = device->errorString();
        return VDBStatus::Io;
    }
    if (device->isSequential() || !device->isReadable()
        || (intent != Intent::Read && !device->isWritable())) {
        m_error = u"the device does not allow it"_s;
        return VDBStatus::Io;
    }
    device->setTextModeEnabled(false);
    return VDBStatus::Ok;
}

VDBStatus Device::openFile(QFileDevice *fileDevice, Intent intent,
                           std::chrono::milliseconds lockTimeout)
{
    const QString path = fileDevice->fileName();
    const auto deadline = std::chrono::steady_clock::now() + lockTimeout;
    for (;;) {
        const QFileInfo info(path);
        // Opening a pipe would wait for its other end, so nothing but a plain file is opened.
        if (info.exists() && !info.isFile()) {
            m_error = u"not a regular file"_s;
            return VDBStatus::Io;
        }
        if (!info.exists() && intent != Intent::Create)
            return VDBStatus::NotFound;
        m_hasCreated = !info.exists();
        const bool foundClosed = m_foundMode == QIODevice::NotOpen;
        if (foundClosed) {
            renew(fileDevice);
            if (!reopen(modeFor(intent)))
                return VDBStatus::Io;
        }
        if (const VDBStatus status = openPlain(fileDevice, intent); status != VDBStatus::Ok)
            return status;
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        m_isLocked = lockFile(fileDevice->handle(), intent != Intent::Read,
                              std::max(left, std::chrono::milliseconds(0)));
        if (!m_isLocked) {
            m_error = lastFileError();
            return VDBStatus::Locked;
        }
        // Whoever held the lock may have swapped another file in; the lock must be on that one.
        const std::optional<FileIdentity> locked = fileIdentity(fileDevice->handle());
        const std::optional<FileIdentity> current = fileIdentity(path);
        if (locked && current && locked->isSameFileAs(*current))
            return VDBStatus::Ok;
        if (!locked || (!current && QFileInfo::exists(path))) {
            m_error = u"the system does not tell the file's state"_s;
            return VDBStatus::Io;
        }
        unlock();
        if (foundClosed)
            fileDevice->close();
        else if (!reopen(m_foundMode))
            return VDBStatus::Io;
        if (std::chrono::steady_clock::now() >= deadline)
            return VDBStatus::Locked;
    }
}

bool Device::reopen(QIODevice::OpenMode mode)
{
    if (m_device->isOpen())
        m_device->close();
    return m_device->open(mode) || fail(m_device->errorString());
}

void Device::close()
{
    if (m_device.isNull())
        return;
    unlock();
    if (m_foundMode == QIODevice::NotOpen) {
        if (m_device->isOpen())
            m_device->close();
    } else if (m_device->isOpen()) {
        m_device->setTextModeEnabled(m_foundMode.testFlag(QIODevice::Text));
        m_device->seek(m_foundPosition);
    }
    m_device = nullptr;
}

void Device::unlock()
{
    if (m_isLocked && file() != nullptr && file()->isOpen())
        unlockFile(file()->handle());
    m_isLocked = false;
}

std::optional<FileIdentity> Device::identity() const
{
    return file() != nullptr ? fileIdentity(file()->handle()) : std::nullopt;
}

std::optional<QByteArray> Device::readAll()
{
    QByteArray bytes;
    try {
        if (!m_device->seek(0)) {
            fail(m_device->errorString());
            return std::nullopt;
        }
        bytes.resize(m_device->size());
    } catch (const std::bad_alloc &) {
        fail(u"not enough memory for the file"_s);
        return std::nullopt;
    }
    qint64 filled = 0;
    while (filled < bytes.size()) {
        const qint64 got = m_device->read(bytes.data() + filled, bytes.size() - filled);
        if (got < 0) {
            fail(m_device->errorString());
            return std::nullopt;
        }
        if (got == 0)
            break;
        filled += got;
    }
    bytes.truncate(filled);
    return bytes;
}

bool Device::write(qint64 at, const QByteArray &bytes)
{
    return (m_device->seek(at) && writeAll(*m_device, bytes)) || fail(m_device->errorString());
}

bool Device::sync()
{
    if (auto *const fileDevice = file())
        return syncFile(fileDevice->handle()) || fail(lastFileError());
    auto *const durable = dynamic_cast<IVDurableDevice *>(m_device.data());
    return durable == nullptr || durable->sync() || fail(m_device->errorString());
}

bool Device::truncate(qint64 size)
{
    if (auto *const fileDevice = file())
        return fileDevice->resize(size) || fail(fileDevice->errorString());
    if (auto *const buffer = qobject_cast<QBuffer *>(m_device.data())) {
        buffer->buffer().resize(size);
        return true;
    }
    return false;
}

bool Device::syncCreation()
{
    return file() == nullptr || syncFolderOf(file()->fileName()) || fail(lastFileError());
}

void Device::removeCreated()
{
    if (m_hasCreated && file() != nullptr)
        QFile::remove(file()->fileName());
}

bool Device::replaceContent(const QByteArray &bytes)
{
    return file() != nullptr && !file()->fileName().isEmpty() ? swapFile(file(), bytes)
                                                              : overwrite(bytes);
}

bool Device::overwrite(const QByteArray &bytes)
{
    const qint64 surplus = m_device->size() - bytes.size();
    if (!write(0, bytes))
        return false;
    // Blank lines fill what a device that cannot be cut has left over.
    if (surplus > 0 && !truncate(bytes.size()) && !write(bytes.size(), QByteArray(surplus, '\n')))
        return false;
    return sync();
}

bool Device::swapFile(QFileDevice *fileDevice, const QByteArray &bytes)
{
    // Behind a symbolic link the file itself is replaced, not the link.
    const QString path = QFileInfo(fileDevice->fileName()).canonicalFilePath();
    QFile fresh(freshPathOf(path));
    // Left by a crash; nobody else writes it while we hold the lock.
    QFile::remove(fresh.fileName());
    const QIODevice::OpenMode mode = m_device->openMode();
    const auto giveUp = [&](const QString &error) {
        fresh.remove();
        return fail(error);
    };
    if (!fresh.open(QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::NewOnly))
        return fail(fresh.errorString());
    copyPermissions(fileDevice->handle(), fresh.handle());
    if (!writeAll(fresh, bytes))
        return giveUp(fresh.errorString());
    if (!syncFile(fresh.handle()) || !replaceFile(fresh.fileName(), path))
        return giveUp(lastFileError());
    const bool isSynced = syncFolderOf(path) || fail(lastFileError());
    unlock();
    if (!reopen(mode))
        return false;
    m_isLocked = lockFile(fileDevice->handle(), true, std::chrono::seconds(1));
    return isSynced && m_isLocked;
}

} // namespace Norvane::Database
