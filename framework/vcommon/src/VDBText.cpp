// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDBText.h>

#include "VDBRecordData.h"
#include "VDBText_p.h"

#include <algorithm>

namespace Norvane::Database {

VDBText::VDBText()
    : d(std::make_unique<VDBTextPrivate>())
{ }

VDBText::~VDBText() = default;

bool VDBText::open(QIODevice *device)
{
    if (!d->begin(device, d->intent))
        return false;
    if (!d->reporter && d->isUnchanged())
        d->status = VDBStatus::Ok; // What is known still holds.
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
    header.append(std::max(d->access.size() - header.size(), qint64(0)), '\n');
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
    d->forgetBytes();
    d->access.close();
}

void VDBText::setKey(const QString &key, const QString &extra)
{
    if (key != d->key) {
        d->forget(); // Whether a record is sound depends on the key.
        d->signer = Signer(key);
    }
    d->key = key;
    d->intent = extra.isNull() ? Device::Intent::Write : Device::Intent::Read;
}

QString VDBText::key()
{
    return d->key;
}

bool VDBText::insert(const VDBRecord &record)
{
    return isOpen() && d->mayWrite && d->addToBatch(record);
}

bool VDBText::remove(const QString &id)
{
    if (!isOpen() || !d->mayWrite || !contains(id))
        return false;
    d->batch.remove(id);
    return true;
}

bool VDBText::contains(const QString &id)
{
    return isOpen() && d->batch.contains(id).value_or(d->contents.index.contains(id));
}

bool VDBText::purge()
{
    if (!isOpen() || !d->mayWrite)
        return false;
    d->wasDurable = d->batch.isEmpty() || d->writeBatch();
    d->batch.clear();
    if (d->wasDurable && d->compact())
        return true;
    d->forget();
    d->status = VDBStatus::Io;
    // The access stays, as promised, but must not keep other processes waiting. They may write now,
    // so that this access no longer may.
    d->mayWrite = false;
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

int VDBText::formatVersion()
{
    return kFormatVersion;
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
