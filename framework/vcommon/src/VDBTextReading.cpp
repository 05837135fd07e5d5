// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBText_p.h"

#include "VDBRecordData.h"
#include "VDBScanner.h"

#include <algorithm>
#include <utility>

namespace Norvane::Database {

bool VDBTextPrivate::fail(VDBStatus newStatus)
{
    status = newStatus;
    access.close();
    return false;
}

void VDBTextPrivate::forget()
{
    contents = Contents();
    identity.reset();
    forgetBytes();
}

void VDBTextPrivate::forgetBytes()
{
    bytes.clear();
    live.clear();
    hasBytes = false;
}

/// Ends whatever access a failed operation has left, and opens the device.
bool VDBTextPrivate::begin(QIODevice *device, Device::Intent newIntent)
{
    batch.clear();
    forgetBytes();
    wasDurable = true;
    mayWrite = intent == Device::Intent::Write;
    status = access.open(device, newIntent, lockTimeout);
    return status == VDBStatus::Ok;
}

/// Whether the file is still as this store left it.
///
/// A batch written into filling does not change the size of the file. But every batch begins where
/// content ended and with another byte than a line feed, so the filling there tells. The bytes
/// before it tell the rare file that was swapped in meanwhile under the same number: they hold the
/// digest of a batch.
bool VDBTextPrivate::isUnchanged()
{
    const std::optional<FileIdentity> found = access.identity();
    if (!found || found != identity)
        return false;
    const qint64 size = lastBytes.size();
    const std::optional<QByteArray> read = access.read(contents.end - size, size + 1);
    return read && read->startsWith(lastBytes) && (read->size() == size || read->endsWith('\n'));
}

bool VDBTextPrivate::readFile(const VDBReporter &damageReporter)
{
    std::optional<QByteArray> read = access.readAll();
    if (!read) {
        forget();
        status = VDBStatus::Io;
        return false;
    }
    bytes = *std::exchange(read, std::nullopt);
    contents = scan(bytes, signer, damageReporter);
    status = contents.status;
    hasBytes = true;
    listLive();
    identity = status == VDBStatus::Ok ? access.identity() : std::nullopt;
    rememberEnd(QByteArrayView(bytes).first(contents.end));
    return status == VDBStatus::Ok;
}

/// Keeps the last bytes of the content, `written` being at least the last batch.
void VDBTextPrivate::rememberEnd(QByteArrayView written)
{
    // A commit line with its seal is shorter, and nothing before it changes without it.
    constexpr qsizetype kKept = 256;
    lastBytes = written.last(std::min(written.size(), kKept)).toByteArray();
}

void VDBTextPrivate::listLive()
{
    live.clear();
    for (std::size_t i = 0; i < contents.entries.size(); ++i) {
        const Entry &entry = contents.entries[i];
        if (entry.isLive && (entry.isSound || entry.isRecord))
            live.push_back(i);
    }
}

/// Reads the file if an unchanged one was opened without reading it.
bool VDBTextPrivate::ensureBytes()
{
    return hasBytes || (access.isOpen() && readFile({}));
}

/// Whether the key that was given may do what the access is for.
bool VDBTextPrivate::acceptContents()
{
    if (intent == Device::Intent::Write && !contents.header.keyCheck.isEmpty() && !signer.isKeyed())
        status = VDBStatus::KeyRequired;
    return status == VDBStatus::Ok;
}

VDBRecord VDBTextPrivate::recordAt(qsizetype ordinal) const
{
    VDBRecord record;
    if (ordinal < 0 || std::size_t(ordinal) >= live.size())
        return record;
    const Entry &entry = contents.entries[live[std::size_t(ordinal)]];
    record.d->payload = VBytes(
        bytes,
        QByteArrayView(bytes).sliced(entry.offset + entry.payloadAt, entry.size - entry.payloadAt));
    record.d->lastFieldAt = entry.lastFieldAt;
    record.d->isSigned = entry.isSound;
    record.d->line = entry.line;
    record.d->offset = entry.offset;
    record.d->ordinal = ordinal;
    return record;
}

/// Replaces `record` by its neighbour.
void VDBTextPrivate::giveNext(VDBRecord &record)
{
    const qsizetype ordinal = record.d.constData()->ordinal;
    record = recordAt(ordinal >= 0 && ensureBytes() ? ordinal + 1 : -1);
}

} // namespace Norvane::Database
