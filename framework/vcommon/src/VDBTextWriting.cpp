// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBText_p.h"

#include "VDBCompaction.h"
#include "VDBRecordData.h"

#include <vcore/VConvert.h>

#include <algorithm>
#include <utility>

namespace Norvane::Database {

namespace {

constexpr char kSeal[] = {char(LineKind::Seal), '\n'};

/// How many line feeds to keep behind content of this size: enough for a few records in a small
/// file, and never much beside the content.
qint64 fillingFor(qint64 size)
{
    constexpr qint64 kUsual = qint64(64) * 1024;
    constexpr qint64 kMost = qint64(1024) * 1024;
    return std::clamp(size / 100, std::min(size / 2, kUsual), kMost);
}

} // namespace

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

/// What must stand between the present end of the content and a new batch.
QByteArray VDBTextPrivate::tailRepair() const
{
    QByteArray repair;
    if (contents.endsInsideLine)
        repair += '\n';
    if (contents.tail == TailState::Unsealed || contents.tail == TailState::Unfinished) {
        repair += char(contents.tail == TailState::Unsealed ? LineKind::Seal : LineKind::Void);
        repair += '\n';
    }
    return repair;
}

/// Has on the disk what a new batch must not be there without.
///
/// A power cut may leave later bytes and not earlier ones. A batch without a header would make the
/// file nobody's; a seal without its batch would say what is not true; and a batch without the mark
/// that voids the one before it would make that one count.
bool VDBTextPrivate::syncTail()
{
    if (contents.tail == TailState::Clean)
        return true;
    if (contents.tail != TailState::Unfinished)
        return access.sync();
    const QByteArray repair = tailRepair();
    const qint64 sizeBefore = access.size();
    if (sizeBefore < 0)
        return false;
    if (!access.write(contents.end, repair) || !access.sync()) {
        takeBack(sizeBefore, repair.size());
        return false;
    }
    contents.end += repair.size();
    contents.line += repair.count('\n');
    contents.endsInsideLine = false;
    contents.tail = TailState::Clean;
    return true;
}

/// Writes the batch behind the content; the file is as it was before when that fails.
bool VDBTextPrivate::writeBatch()
{
    if (!syncTail())
        return false;
    const QByteArray repair = tailRepair();
    EncodedBatch encoded = batch.encode(signer, repair);
    const qint64 sizeBefore = access.size();
    if (sizeBefore < 0)
        return false;
    const qint64 end = contents.end + encoded.bytes.size();
    const bool isWritten = access.write(contents.end, encoded.bytes);
    if (isWritten && end + qint64(sizeof(kSeal)) > sizeBefore)
        fillAhead(end);
    if (!isWritten || !access.sync()) {
        takeBack(sizeBefore, encoded.bytes.size());
        return false;
    }
    // Not synced: it tells a batch that was damaged later from one that was never completed, and
    // may be missing.
    const bool isSealed = access.write(end, QByteArrayView(kSeal, sizeof(kSeal)));
    if (isSealed)
        encoded.bytes.append(kSeal, sizeof(kSeal));
    contents.tail = isSealed ? TailState::Clean : TailState::Unsealed;
    rememberBatch(std::move(encoded), repair);
    identity = isSealed ? access.identity() : std::nullopt;
    return true;
}

/// Extends the file by filling from `end` on, which is synced together with the batch before it.
///
/// The batches that are written over it need no metadata of the file system: their sync takes half
/// the time. A device without room for it, or one that failed to sync it, does without.
void VDBTextPrivate::fillAhead(qint64 end)
{
    if (m_mayFillAhead)
        access.fillAhead(end, fillingFor(end));
}

/// Makes a batch that failed filling again, and the file as long as it was.
///
/// It must not stay: the system might show it to the next reader and yet never write it. Should
/// this fail too, the next reader finds a batch without its seal.
void VDBTextPrivate::takeBack(qint64 sizeBefore, qint64 written)
{
    m_mayFillAhead = false;
    const qint64 filling = std::min(sizeBefore - contents.end, written);
    const bool isFilled = filling == 0 || access.write(contents.end, QByteArray(filling, '\n'));
    const bool isCut = access.size() == sizeBefore || access.truncate(sizeBefore);
    if (isFilled && isCut)
        identity = access.identity();
    else
        forget();
}

/// Brings the index up to date with the batch, without reading the file again.
void VDBTextPrivate::rememberBatch(EncodedBatch &&encoded, const QByteArray &repair)
{
    const qint64 firstLine = contents.line + repair.count('\n');
    for (Entry &entry : encoded.entries) {
        entry.offset += contents.end;
        entry.line += firstLine;
    }
    contents.end += encoded.bytes.size();
    const bool isSealed = contents.tail == TailState::Clean;
    contents.line = firstLine + qint64(encoded.entries.size()) + (isSealed ? 2 : 1);
    contents.endsInsideLine = false;
    for (Entry &entry : encoded.entries)
        contents.add(std::move(entry));
    contents.forgetDead();
    rememberEnd(encoded.bytes);
    forgetBytes();
}

/// Replaces the content by nothing but what is live; every live line byte for byte as it is.
bool VDBTextPrivate::compact()
{
    Compaction compaction(contents, signer);
    if (!access.replaceContent(compaction.parts()))
        return false;
    forgetBytes();
    if (!access.isAsReplaced() || !compaction.isKnown())
        return readFile({});
    contents = compaction.takeContents();
    identity = access.identity();
    rememberEnd(compaction.lastBytes());
    return true;
}

} // namespace Norvane::Database
