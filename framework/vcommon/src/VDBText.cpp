// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDBText.h>

#include "VDBBatch.h"
#include "VDBDevice.h"
#include "VDBRecordData.h"
#include "VDBScanner.h"

#include <vcore/VConvert.h>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace Norvane::Database {

class VDBTextPrivate
{
public:
    bool fail(VDBStatus newStatus);
    bool begin(QIODevice *device, Device::Intent intent);
    bool acceptContents();
    bool readFile(const VDBReporter &reporter);
    bool ensureBytes();
    void listLive();
    bool writeBatch();
    void rememberBatch();
    void forget();
    QByteArray tailRepair() const;
    QByteArray compacted() const;
    VDBRecord recordAt(qsizetype ordinal) const; ///< A null one beyond the ends.
    bool addToBatch(const VDBRecord &record);
    void giveNext(VDBRecord &record);

    Device access;
    Device::Intent intent = Device::Intent::Read;
    QString key;
    Signer signer;
    std::chrono::milliseconds lockTimeout = std::chrono::seconds(10);
    VDBReporter reporter;
    VDBStatus status = VDBStatus::Ok;
    bool wasDurable = true;

    // What the file held when it was last seen, and the state of the file at that moment.
    Contents contents;
    std::optional<FileIdentity> identity;
    qint64 end = 0; ///< The size of the content.

    // Only while open.
    Batch batch;
    QByteArray bytes;
    bool hasBytes = false;
    std::vector<std::size_t> live; ///< The entries to iterate over; valid with the bytes.
};

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
    bytes.clear();
    live.clear();
    hasBytes = false;
}

/// Ends whatever access a failed operation has left, and opens the device.
bool VDBTextPrivate::begin(QIODevice *device, Device::Intent newIntent)
{
    batch.clear();
    bytes.clear();
    hasBytes = false;
    wasDurable = true;
    status = access.open(device, newIntent, lockTimeout);
    return status == VDBStatus::Ok;
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
    end = bytes.size();
    hasBytes = true;
    listLive();
    identity = status == VDBStatus::Ok ? access.identity() : std::nullopt;
    return status == VDBStatus::Ok;
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

/// What must stand between the present end of the file and a new batch.
QByteArray VDBTextPrivate::tailRepair() const
{
    QByteArray repair;
    if (contents.endsInsideLine)
        repair += '\n';
    if (contents.tail != TailState::Clean) {
        repair += char(contents.tail == TailState::Unsealed ? LineKind::Seal : LineKind::Void);
        repair += '\n';
    }
    return repair;
}

/// Appends the batch; the file is as it was before when that fails.
bool VDBTextPrivate::writeBatch()
{
    // A seal may only follow what is on the disk.
    if (contents.tail == TailState::Unsealed && !access.sync())
        return false;
    const QByteArray lines = tailRepair() + batch.encode(signer);
    if (!access.write(end, lines) || !access.sync()) {
        // Best effort: should it fail too, the next reader finds a batch without its seal.
        if (access.truncate(end))
            identity = access.identity();
        else
            forget();
        return false;
    }
    end += lines.size();
    const QByteArray seal = QByteArray(1, char(LineKind::Seal)) + '\n';
    // Not synced: it tells a batch that was damaged later from one that was never completed, and
    // may be missing.
    const bool isSealed = access.write(end, seal);
    contents.tail = isSealed ? TailState::Clean : TailState::Unsealed;
    contents.endsInsideLine = false;
    end += isSealed ? seal.size() : 0;
    rememberBatch();
    identity = isSealed ? access.identity() : std::nullopt;
    return true;
}

/// Brings the index up to date with the batch, without reading the file again.
void VDBTextPrivate::rememberBatch()
{
    batch.visit([this](const QString &id, bool isStored) {
        if (isStored)
            contents.index.insert(id, contents.entries.size());
        else
            contents.index.remove(id);
    });
    bytes.clear();
    live.clear();
    hasBytes = false;
}

/// The content with nothing but what is live; every live line byte for byte as it is.
QByteArray VDBTextPrivate::compacted() const
{
    QByteArray sound;
    QByteArray damaged;
    QByteArray sums;
    std::size_t count = 0;
    for (const Entry &entry : contents.entries) {
        // A single byte is a mark that was damaged, and no part of a record.
        if (!entry.isLive || entry.size < 2)
            continue;
        const QByteArrayView line = QByteArrayView(bytes).sliced(entry.offset, entry.size);
        (entry.isSound ? sound : damaged).append(line).append('\n');
        if (entry.isSound) {
            sums += entry.sum;
            ++count;
        }
    }
    const QByteArray seal = QByteArray(1, char(LineKind::Seal)) + '\n';
    QByteArray content = contents.headerLine + '\n' + contents.headerLine + '\n';
    if (count > 0)
        content += sound + encodeCommit(count, sums, signer) + seal;
    // Behind the sound ones, so that none of these is taken for a later one of the same key.
    return damaged.isEmpty() ? content : content + damaged + seal;
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
    record.d->isSigned = entry.isSound;
    record.d->line = entry.line;
    record.d->offset = entry.offset;
    record.d->ordinal = ordinal;
    return record;
}

bool VDBTextPrivate::addToBatch(const VDBRecord &record)
{
    const bool hasCulture = (contents.header.options & VDBText::WithCulture) != 0;
    const QString culture = contents.header.locale;
    const QString id =
        VConvert::toString(record.search(contents.header.keyField).value(), cultureLocale(culture));
    if (id.isEmpty())
        return false;
    batch.insert(id, record.d->encoded(hasCulture ? culture : QString()));
    return true;
}

/// Replaces `record` by its neighbour.
void VDBTextPrivate::giveNext(VDBRecord &record)
{
    const qsizetype ordinal = record.d.constData()->ordinal;
    record = recordAt(ordinal >= 0 && ensureBytes() ? ordinal + 1 : -1);
}

VDBText::VDBText()
    : d(std::make_unique<VDBTextPrivate>())
{ }

VDBText::~VDBText() = default;

bool VDBText::open(QIODevice *device)
{
    if (!d->begin(device, d->intent))
        return false;
    const std::optional<FileIdentity> found = d->access.identity();
    if (found && found == d->identity && !d->reporter)
        d->status = VDBStatus::Ok; // Nobody has changed it since: what is known still holds.
    else if (!d->readFile(d->reporter))
        return d->fail(d->status);
    return d->acceptContents() || d->fail(d->status);
}

bool VDBText::create(QIODevice *device, const QString &keyField, const int &option,
                     const QLocale &locale, const QString &format)
{
    d->forget();
    if (!d->begin(device, Device::Intent::Create))
        return false;
    if (d->readFile({}) || d->status != VDBStatus::Empty)
        return d->fail(d->status == VDBStatus::Io ? VDBStatus::Io : VDBStatus::NotEmpty);
    const QByteArray line =
        encodeHeader({keyField, option, cultureName(locale), format, d->signer.keyCheck()});
    QByteArray header = line + '\n' + line + '\n';
    // What a crash left of an earlier creation is written over; blank lines have no meaning.
    header.append(std::max(d->end - header.size(), qint64(0)), '\n');
    if (!d->access.write(0, header) || !d->access.sync() || !d->access.syncCreation()) {
        [[maybe_unused]] const bool isCut = d->access.truncate(0);
        d->access.removeCreated();
        return d->fail(VDBStatus::Io);
    }
    return d->readFile({}) || d->fail(d->status);
}

void VDBText::close()
{
    if (!d->access.isOpen())
        return;
    d->status = VDBStatus::Ok;
    d->wasDurable = d->batch.isEmpty() || d->writeBatch();
    if (!d->wasDurable)
        d->status = VDBStatus::Io;
    d->batch.clear();
    d->bytes.clear();
    d->live.clear();
    d->hasBytes = false;
    d->access.close();
}

void VDBText::setKey(const QString &key, const QString &extra)
{
    if (key != d->key)
        d->forget(); // Whether a record is sound depends on the key.
    d->key = key;
    d->signer = Signer(key);
    d->intent = extra.isNull() ? Device::Intent::Write : Device::Intent::Read;
}

QString VDBText::key()
{
    return d->key;
}

bool VDBText::insert(const VDBRecord &record)
{
    return isOpen() && d->intent == Device::Intent::Write && d->addToBatch(record);
}

bool VDBText::remove(const QString &id)
{
    if (!isOpen() || d->intent == Device::Intent::Read || !contains(id))
        return false;
    d->batch.remove(id, d->contents.index.contains(id));
    return true;
}

bool VDBText::contains(const QString &id)
{
    return isOpen() && d->batch.contains(id).value_or(d->contents.index.contains(id));
}

bool VDBText::purge()
{
    if (!isOpen() || d->intent == Device::Intent::Read)
        return false;
    d->wasDurable = d->batch.isEmpty() || d->writeBatch();
    d->batch.clear();
    if (d->wasDurable && d->ensureBytes() && d->access.replaceContent(d->compacted())) {
        if (d->readFile({}))
            return true;
    }
    d->forget();
    d->status = VDBStatus::Io;
    // The access stays, as promised, but must not keep other processes waiting.
    d->access.unlock();
    return false;
}

bool VDBText::reindex()
{
    if (!isOpen() || !d->batch.isEmpty())
        return false;
    return d->readFile(d->reporter) && d->acceptContents();
}

void VDBText::first(VDBRecord &record)
{
    record = d->recordAt(d->ensureBytes() ? 0 : -1);
}

void VDBText::last(VDBRecord &record)
{
    record = d->recordAt(d->ensureBytes() ? qsizetype(d->live.size()) - 1 : -1);
}

void VDBText::next(VDBRecord &record)
{
    d->giveNext(record);
}

QList<VDBRecord> VDBText::values()
{
    QList<VDBRecord> records;
    if (!d->ensureBytes())
        return records;
    records.reserve(qsizetype(d->live.size()));
    for (std::size_t i = 0; i < d->live.size(); ++i)
        records.append(d->recordAt(qsizetype(i)));
    return records;
}

bool VDBText::isOpen() const
{
    return d->access.isOpen();
}

VDBStatus VDBText::status() const
{
    return d->status;
}

QString VDBText::errorString() const
{
    return d->access.errorString();
}

bool VDBText::wasDurable() const
{
    return d->wasDurable;
}

qsizetype VDBText::count() const
{
    return d->ensureBytes() ? qsizetype(d->live.size()) : 0;
}

bool VDBText::isKeyed() const
{
    return !d->contents.header.keyCheck.isEmpty();
}

std::chrono::milliseconds VDBText::lockTimeout() const
{
    return d->lockTimeout;
}

void VDBText::setLockTimeout(std::chrono::milliseconds timeout)
{
    d->lockTimeout = timeout;
}

void VDBText::setReporter(const VDBReporter &reporter)
{
    d->reporter = reporter;
}

} // namespace Norvane::Database
