// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBDevice.h"

#include <platform/nativepath.h>
#include <vcommon/IVDurableDevice.h>
#include <vcore/VParallel.h>

#include <QtCore/QBuffer>
#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <algorithm>
#include <atomic>
#include <new>
#include <system_error>
#include <tuple>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

using namespace Platform;

namespace {

/// How long a purge waits for its new file when another process was quicker to lock it: as long as
/// that one may take for a commit on a slow disk.
constexpr std::chrono::seconds kRelockTimeout(10);

/// Content is read and copied in blocks of this size.
constexpr qint64 kBlock = qint64(1024) * 1024;

/// From here on memory may come in pages of 2 MB, the usual size of large ones.
constexpr qint64 kWorthLargePages = 4 * kBlock;

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

/// The system's words for the last failure in this thread.
QString lastErrorString()
{
    return qt_error_string(lastError());
}

/// Reads a range of a file on all cores: most of the time goes into making fresh memory usable. How
/// much it was, or -1 and the error's number.
qint64 readFileParallel(int handle, qint64 at, char *to, qint64 size, int &failure)
{
    std::atomic<qint64> end = size;
    std::atomic<int> error = 0;
    parallelFor(
        std::size_t((size + kBlock - 1) / kBlock), 1, [&](std::size_t first, std::size_t last) {
            const qint64 from = qint64(first) * kBlock;
            const qint64 wanted = std::min(qint64(last) * kBlock, size) - from;
            const qint64 got = readFileAt(handle, at + from, to + from, wanted);
            if (got < 0)
                error = lastError();
            for (qint64 known = end; got < wanted && known > from + std::max(got, qint64(0));)
                end.compare_exchange_weak(known, from + std::max(got, qint64(0)));
        });
    failure = error;
    return failure == 0 ? qint64(end) : -1;
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
    m_isAsReplaced = false;
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
            m_error = lastErrorString();
            return VDBStatus::Locked;
        }
        // Whoever held the lock may have swapped another file in; the lock must be on that one.
        const std::optional<FileIdentity> locked = fileIdentity(fileDevice->handle());
        const std::optional<FileIdentity> current = fileIdentity(nativePath(path));
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

/// Opens a device that is closed: a file so that it can be replaced while it is open.
bool Device::openClosed(QIODevice &device, QIODevice::OpenMode mode)
{
    // Other classes open their files in ways of their own.
    if constexpr (!kReplacesAnyOpenFile) {
        if (device.metaObject() == &QFile::staticMetaObject) {
            auto &file = static_cast<QFile &>(device);
            const int handle = openReplaceable(
                nativePath(file.fileName()),
                mode.testFlag(QIODevice::WriteOnly) ? Access::ReadWrite : Access::Read,
                mode.testFlag(QIODevice::NewOnly)            ? Existence::Refused
                    : mode.testFlag(QIODevice::ExistingOnly) ? Existence::Required
                                                             : Existence::Allowed);
            if (handle < 0)
                return fail(lastErrorString());
            return file.open(handle, mode, QFileDevice::AutoCloseHandle)
                || fail(file.errorString());
        }
    }
    return device.open(mode) || fail(device.errorString());
}

bool Device::reopen(QIODevice::OpenMode mode)
{
    if (m_device->isOpen())
        m_device->close();
    return openClosed(*m_device, mode);
}

void Device::close()
{
    if (m_device.isNull())
        return;
    unlock();
    if (m_foundMode == QIODevice::NotOpen) {
        if (m_device->isOpen())
            m_device->close();
        // Qt does not find the name of a file again that it was given as a handle.
        if constexpr (!kReplacesAnyOpenFile) {
            if (auto *const fileDevice = file())
                renew(fileDevice);
        }
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
    return read(0, m_device->size());
}

std::optional<QByteArray> Device::read(qint64 at, qint64 size)
{
    QByteArray bytes;
    try {
        bytes.resize(std::max(std::min(size, m_device->size() - at), qint64(0)));
    } catch (const std::bad_alloc &) {
        fail(u"not enough memory for the file"_s);
        return std::nullopt;
    }
    return readInto(bytes, 0, at) ? std::optional(bytes) : std::nullopt;
}

/// Fills `bytes` behind the first `from` with the content at `at`; cuts it where content ends.
bool Device::readInto(QByteArray &bytes, qsizetype from, qint64 at)
{
    if (!m_device->seek(at)) // Whoever opened the device may have left something to be flushed.
        return fail(m_device->errorString());
    const qint64 size = bytes.size() - from;
    char *const to = bytes.data() + from;
    if (file() != nullptr) {
        if (size >= kWorthLargePages)
            expectUse(to, size);
        int failure = 0;
        const qint64 filled = readFileParallel(file()->handle(), at, to, size, failure);
        bytes.truncate(from + std::max(filled, qint64(0)));
        return filled >= 0 || fail(qt_error_string(failure));
    }
    qint64 filled = 0;
    while (filled < size) {
        const qint64 got = m_device->read(to + filled, size - filled);
        if (got < 0)
            return fail(m_device->errorString());
        if (got == 0)
            break;
        filled += got;
    }
    bytes.truncate(from + filled);
    return true;
}

bool Device::write(qint64 at, QByteArrayView bytes)
{
    return (m_device->seek(at) && writeAll(*m_device, bytes)) || fail(m_device->errorString());
}

void Device::fillAhead(qint64 at, qint64 size)
{
    if (file() != nullptr && m_device->seek(at))
        std::ignore = writeAll(*m_device, QByteArray(size, '\n'));
}

bool Device::sync()
{
    if (auto *const fileDevice = file())
        return syncFile(fileDevice->handle()) || fail(lastErrorString());
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
    return file() == nullptr || syncFolderOf(nativePath(file()->fileName()))
        || fail(lastErrorString());
}

void Device::removeCreated()
{
    if (m_hasCreated)
        QFile::remove(file()->fileName());
}

bool Device::replaceContent(const std::vector<ContentPart> &parts)
{
    return file() != nullptr && !file()->fileName().isEmpty() ? swapFile(file(), parts)
                                                              : overwrite(parts);
}

bool Device::copyParts(const std::vector<ContentPart> &parts, QIODevice &to)
{
    QByteArray block;
    block.reserve(kBlock);
    const auto isWritten = [&] {
        const bool ok = writeAll(to, block) || fail(to.errorString());
        block.resize(0);
        return ok;
    };
    for (const ContentPart &part : parts) {
        block += part.bytes;
        for (qint64 done = 0; part.at >= 0 && done < part.size;) {
            if (block.size() >= kBlock && !isWritten())
                return false;
            const qsizetype from = block.size();
            const qint64 piece = std::min(part.size - done, kBlock - from);
            block.resize(from + piece);
            if (!readInto(block, from, part.at + done))
                return false;
            if (block.size() < from + piece)
                return fail(u"the file has become shorter"_s);
            done += piece;
        }
    }
    return isWritten();
}

bool Device::overwrite(const std::vector<ContentPart> &parts)
{
    QBuffer content;
    content.open(QIODevice::WriteOnly);
    if (!copyParts(parts, content))
        return false;
    const QByteArray &bytes = content.data();
    const qint64 surplus = m_device->size() - bytes.size();
    if (!write(0, bytes))
        return false;
    // Blank lines fill what a device that cannot be cut has left over.
    if (surplus > 0 && !truncate(bytes.size()) && !write(bytes.size(), QByteArray(surplus, '\n')))
        return false;
    m_isAsReplaced = true;
    return sync();
}

bool Device::swapFile(QFileDevice *fileDevice, const std::vector<ContentPart> &parts)
{
    // Behind a symbolic link the file itself is replaced, not the link.
    const QString path = QFileInfo(fileDevice->fileName()).canonicalFilePath();
    QFile fresh(freshPathOf(path));
    // Left by a crash; nobody else writes it while we hold the lock.
    QFile::remove(fresh.fileName());
    const QIODevice::OpenMode mode = m_device->openMode();
    const auto giveUp = [&](const QString &error) {
        fresh.close();
        QFile::remove(fresh.fileName());
        return fail(error);
    };
    if (!openClosed(fresh, QIODevice::ReadWrite | QIODevice::Unbuffered | QIODevice::NewOnly))
        return false;
    copyPermissions(fileDevice->handle(), fresh.handle());
    if (!copyParts(parts, fresh))
        return giveUp(m_error);
    const qint64 written = fresh.size();
    if (!syncFile(fresh.handle()) || !replaceFile(nativePath(fresh.fileName()), nativePath(path)))
        return giveUp(lastErrorString());
    const bool isSynced = syncFolderOf(nativePath(path)) || fail(lastErrorString());
    unlock();
    closeLater(duplicateHandle(fileDevice->handle()));
    if (!reopen(mode))
        return false;
    m_isLocked = lockFile(fileDevice->handle(), true, kRelockTimeout);
    // Others may have been quicker to lock the new file. What they append makes it longer, since
    // there is no filling in it, and what they swap in is another file as long as ours is open.
    const std::optional<FileIdentity> ours = fileIdentity(fresh.handle());
    const std::optional<FileIdentity> found = identity();
    m_isAsReplaced = ours && found && ours->isSameFileAs(*found) && fresh.size() == written;
    return isSynced && m_isLocked;
}

/// Closes the last handle of a replaced file aside: it is then that the system frees its space,
/// which for a large file takes longer than all the rest.
void Device::closeLater(int handle)
{
    if (handle < 0)
        return;
    try {
        m_closing = std::jthread([handle] { closeHandle(handle); });
    } catch (const std::system_error &) {
        closeHandle(handle); // No thread is to be had.
    }
}

} // namespace Norvane::Database
