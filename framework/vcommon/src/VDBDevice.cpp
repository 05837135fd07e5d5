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
#include <typeinfo>
#include <utility>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

using namespace Platform;

namespace {

/// How long a purge waits for its new file when another process was quicker to lock it: as long as
/// that one may take for a commit on a slow disk.
constexpr std::chrono::seconds kRelockTimeout(10);

/// Content is read and copied in blocks of this size.
constexpr qint64 kBlock = qint64(2) * 1024 * 1024;

/// From here on memory may come in pages of 2 MB, the usual size of large ones.
constexpr qint64 kWorthLargePages = 2 * kBlock;

QIODevice::OpenMode modeFor(Device::Intent intent, bool isNamed)
{
    const QIODevice::OpenMode access =
        intent == Device::Intent::Read ? QIODevice::ReadOnly : QIODevice::ReadWrite;
    if (!isNamed)
        return access;
    return access | QIODevice::Unbuffered
        | (intent == Device::Intent::Create ? QIODevice::NotOpen : QIODevice::ExistingOnly);
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

/// Whether the device is nothing but the name of a file.
bool isName(const QIODevice &device)
{
    // Not by the meta-object: a class need not have one of its own.
    return typeid(device) == typeid(QFile) && !device.isOpen();
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

bool Device::isFile() const
{
    return m_handle >= 0 || qobject_cast<QFileDevice *>(m_device.data()) != nullptr;
}

/// The file's handle; -1 when the host has closed it.
int Device::handle() const
{
    auto *const file = qobject_cast<QFileDevice *>(m_device.data());
    return file != nullptr ? file->handle() : m_handle;
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
    m_device = isName(*device) ? nullptr : device;
    auto *const file = qobject_cast<QFileDevice *>(device);
    m_path = file != nullptr ? file->fileName() : QString();
    const VDBStatus status =
        !m_device.isNull() && m_path.isEmpty() ? openOnce(intent) : openNamed(intent, lockTimeout);
    if (status != VDBStatus::Ok)
        close();
    return status;
}

/// Opens the file that the path leads to once it is locked.
VDBStatus Device::openNamed(Intent intent, std::chrono::milliseconds lockTimeout)
{
    // The system would take a name to end at a NUL.
    if (m_path.isEmpty() || m_path.contains(QChar::Null)) {
        m_error = u"not the name of a file"_s;
        return intent == Intent::Create ? VDBStatus::Io : VDBStatus::NotFound;
    }
    const auto deadline = std::chrono::steady_clock::now() + lockTimeout;
    for (;;) {
        const std::optional<FileIdentity> found = fileIdentity(nativePath(m_path));
        // Opening a pipe would wait for its other end, so nothing but a plain file is opened.
        if (found && !found->isRegular) {
            m_error = u"not a regular file"_s;
            return VDBStatus::Io;
        }
        if (!found && intent != Intent::Create)
            return VDBStatus::NotFound;
        m_hasCreated = !found;
        if (const VDBStatus status = openOnce(intent); status != VDBStatus::Ok)
            return status;
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(
            deadline - std::chrono::steady_clock::now());
        m_isLocked = lockFile(handle(), intent != Intent::Read,
                              std::max(left, std::chrono::milliseconds(0)));
        if (!m_isLocked) {
            m_error = lastErrorString();
            return VDBStatus::Locked;
        }
        // Whoever held the lock may have swapped another file in; the lock must be on that one.
        if (isAtPath())
            return VDBStatus::Ok;
        if (!identity()) {
            m_error = u"the system does not tell the file's state"_s;
            return VDBStatus::Io;
        }
        if (!letGo())
            return VDBStatus::Io;
        if (std::chrono::steady_clock::now() >= deadline)
            return VDBStatus::Locked;
    }
}

/// Whether the file that is open is the one that its path leads to.
bool Device::isAtPath() const
{
    const std::optional<FileIdentity> opened = identity();
    const std::optional<FileIdentity> current = fileIdentity(nativePath(m_path));
    return opened && current && opened->isSameFileAs(*current);
}

VDBStatus Device::openOnce(Intent intent)
{
    if (!m_device.isNull())
        return openDevice(intent);
    const bool isRead = intent == Intent::Read;
    const bool isNew = intent == Intent::Create;
    m_handle = openFile(nativePath(m_path), isRead ? Access::Read : Access::ReadWrite,
                        isNew ? Existence::Allowed : Existence::Required);
    if (m_handle < 0)
        m_error = lastErrorString();
    return m_handle >= 0 ? VDBStatus::Ok : VDBStatus::Io;
}

VDBStatus Device::openDevice(Intent intent)
{
    if (!m_device->isOpen() && !reopen(modeFor(intent, !m_path.isEmpty())))
        return VDBStatus::Io;
    if (m_device->isSequential() || !m_device->isReadable()
        || (intent != Intent::Read && !m_device->isWritable())) {
        m_error = u"the device does not allow it"_s;
        return VDBStatus::Io;
    }
    m_device->setTextModeEnabled(false);
    return VDBStatus::Ok;
}

bool Device::reopen(QIODevice::OpenMode mode)
{
    if (m_device->isOpen())
        m_device->close();
    return m_device->open(mode) || fail(m_device->errorString());
}

/// Lets go of a file that is no longer the one that its path leads to.
bool Device::letGo()
{
    unlock();
    if (m_handle >= 0)
        closeHandle(std::exchange(m_handle, -1));
    else if (m_foundMode == QIODevice::NotOpen)
        m_device->close();
    else
        return reopen(m_foundMode);
    return true;
}

void Device::close()
{
    unlock();
    if (m_handle >= 0)
        closeHandle(std::exchange(m_handle, -1));
    if (!m_device.isNull() && m_device->isOpen()) {
        if (m_foundMode == QIODevice::NotOpen) {
            m_device->close();
        } else {
            m_device->setTextModeEnabled(m_foundMode.testFlag(QIODevice::Text));
            m_device->seek(m_foundPosition);
        }
    }
    m_device = nullptr;
}

void Device::unlock()
{
    if (m_isLocked && handle() >= 0)
        unlockFile(handle());
    m_isLocked = false;
}

std::optional<FileIdentity> Device::identity() const
{
    return isFile() ? fileIdentity(handle()) : std::nullopt;
}

qint64 Device::size()
{
    if (!m_device.isNull())
        return m_device->size();
    const std::optional<FileIdentity> state = identity();
    if (!state)
        m_error = lastErrorString();
    return state ? state->size : -1;
}

std::optional<QByteArray> Device::readAll()
{
    const qint64 all = size();
    return all < 0 ? std::nullopt : read(0, all);
}

std::optional<QByteArray> Device::read(qint64 at, qint64 size)
{
    QByteArray bytes;
    try {
        bytes.resize(size);
    } catch (const std::bad_alloc &) {
        fail(u"not enough memory for the file"_s);
        return std::nullopt;
    }
    return readInto(bytes, 0, at) ? std::optional(bytes) : std::nullopt;
}

/// Fills `bytes` behind the first `from` with the content at `at`; cuts it where content ends.
bool Device::readInto(QByteArray &bytes, qsizetype from, qint64 at)
{
    // Whoever opened the device may have left something to be flushed.
    if (!m_device.isNull() && !m_device->seek(at))
        return fail(m_device->errorString());
    const qint64 size = bytes.size() - from;
    char *const to = bytes.data() + from;
    if (isFile()) {
        if (size >= kWorthLargePages)
            expectUse(to, size);
        int failure = 0;
        const qint64 filled = readFileParallel(handle(), at, to, size, failure);
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
    if (m_handle >= 0)
        return writeFileAt(m_handle, at, bytes.data(), bytes.size()) || fail(lastErrorString());
    return (m_device->seek(at) && writeAll(*m_device, bytes)) || fail(m_device->errorString());
}

void Device::fillAhead(qint64 at, qint64 size)
{
    if (isFile())
        std::ignore = write(at, QByteArray(size, '\n'));
}

bool Device::sync()
{
    if (isFile())
        return syncFile(handle()) || fail(lastErrorString());
    auto *const durable = dynamic_cast<IVDurableDevice *>(m_device.data());
    return durable == nullptr || durable->sync() || fail(m_device->errorString());
}

bool Device::truncate(qint64 size)
{
    if (m_handle >= 0)
        return resizeFile(m_handle, size) || fail(lastErrorString());
    if (auto *const file = qobject_cast<QFileDevice *>(m_device.data()))
        return file->resize(size) || fail(file->errorString());
    if (auto *const buffer = qobject_cast<QBuffer *>(m_device.data())) {
        buffer->buffer().resize(size);
        return true;
    }
    return false;
}

bool Device::syncCreation()
{
    return !isFile() || syncFolderOf(nativePath(m_path)) || fail(lastErrorString());
}

void Device::removeCreated()
{
    if (m_hasCreated)
        QFile::remove(m_path);
}

bool Device::replaceContent(const std::vector<ContentPart> &parts)
{
    return m_path.isEmpty() ? overwrite(parts) : swapFile(parts);
}

bool Device::copyParts(const std::vector<ContentPart> &parts, const Writer &write)
{
    QByteArray block;
    block.reserve(kBlock);
    const auto isWritten = [&] {
        const bool ok = write(block);
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
    QByteArray content;
    const auto append = [&](QByteArrayView bytes) {
        content.append(bytes);
        return true;
    };
    if (!copyParts(parts, append))
        return false;
    const qint64 surplus = m_device->size() - content.size();
    if (!write(0, content))
        return false;
    // Blank lines fill what a device that cannot be cut has left over.
    if (surplus > 0 && !truncate(content.size())
        && !write(content.size(), QByteArray(surplus, '\n')))
        return false;
    m_isAsReplaced = true;
    return sync();
}

bool Device::swapFile(const std::vector<ContentPart> &parts)
{
    // Behind a symbolic link the file itself is replaced, not the link.
    const QString path = QFileInfo(m_path).canonicalFilePath();
    const QString freshPath = freshPathOf(path);
    // Left by a crash; nobody else writes it while we hold the lock.
    QFile::remove(freshPath);
    const int fresh = openFile(nativePath(freshPath), Access::ReadWrite, Existence::Refused);
    if (fresh < 0)
        return fail(lastErrorString());
    copyPermissions(handle(), fresh);
    qint64 end = 0;
    const auto append = [&](QByteArrayView bytes) {
        const qint64 at = std::exchange(end, end + bytes.size());
        return writeFileAt(fresh, at, bytes.data(), bytes.size()) || fail(lastErrorString());
    };
    // It is locked before anybody can find it.
    const bool isReady = copyParts(parts, append)
        && ((syncFile(fresh) && lockFile(fresh, true, std::chrono::milliseconds(0))
             && replaceFile(nativePath(freshPath), nativePath(path)))
            || fail(lastErrorString()));
    if (!isReady) {
        closeHandle(fresh);
        QFile::remove(freshPath);
        return false;
    }
    const bool isSynced = syncFolderOf(nativePath(path)) || fail(lastErrorString());
    return takeUp(fresh) && isSynced;
}

/// Goes on with the file that was swapped in, whose handle is given.
bool Device::takeUp(int fresh)
{
    if (m_handle >= 0) {
        unlock();
        closeLater(std::exchange(m_handle, fresh));
        m_isLocked = m_isAsReplaced = true;
        return true;
    }
    const QIODevice::OpenMode mode = m_device->openMode();
    unlock();
    closeHandle(fresh);
    m_isLocked =
        reopen(mode) && (lockFile(handle(), true, kRelockTimeout) || fail(lastErrorString()));
    // Others may have been quicker, and have swapped in another file again.
    return m_isLocked && (isAtPath() || fail(u"another process has replaced the file"_s));
}

/// Closes the last handle of a replaced file aside: it is then that the system frees its space,
/// which for a large file takes longer than all the rest.
void Device::closeLater(int handle)
{
    try {
        m_closing = std::jthread([handle] { closeHandle(handle); });
    } catch (const std::system_error &) {
        closeHandle(handle); // No thread is to be had.
    }
}

} // namespace Norvane::Database
