// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDBSalvage.h>

#include "VDBDevice.h"
#include "VDBRecordData.h"
#include "VDBSalvageScanner.h"

#include <QtCore/QHash>

#include <algorithm>

namespace Norvane::Database {

namespace {

using Proof = VDBSalvagedRecord::Proof;
using Batch = SalvagedLine::Batch;

/// The first sound copy of a header anywhere in the bytes.
std::optional<Header> findHeader(QByteArrayView bytes)
{
    for (qsizetype at = bytes.indexOf(kHeaderStart); at >= 0;
         at = bytes.indexOf(kHeaderStart, at + 1)) {
        const QByteArrayView region = bytes.sliced(at, std::min(kMaxHeaderSize, bytes.size() - at));
        const qsizetype end = region.indexOf('\n');
        QByteArrayView line = end < 0 ? region : region.first(end);
        if (line.endsWith('\r'))
            line.chop(1);
        if (const std::optional<Header> header = decodeHeader(line))
            return header;
    }
    return std::nullopt;
}

/// What is known of one key, as indices of lines; -1 for nothing.
struct Versions
{
    qsizetype sound = -1;
    qsizetype voided = -1;
    qsizetype damaged = -1; ///< Only behind everything that is sound.
    bool isRemoved = false;

    qsizetype best() const
    {
        if (sound >= 0)
            return sound;
        return voided >= 0 && !isRemoved ? voided : damaged;
    }
};

void note(Versions &versions, const SalvagedLine &line, qsizetype index)
{
    if (line.proof == Proof::None) {
        versions.damaged = index;
    } else if (line.batch == Batch::Void) {
        if (line.kind == LineKind::Insert)
            versions.voided = index;
    } else if (line.kind == LineKind::Insert) {
        versions.sound = index;
        versions.damaged = -1;
    } else if (line.batch == Batch::Completed) {
        versions = {.isRemoved = true};
    }
}

/// The indices of the lines that are to be carried, in file order.
std::vector<qsizetype> chosen(const std::vector<SalvagedLine> &lines)
{
    QHash<QString, Versions> known;
    for (std::size_t i = 0; i < lines.size(); ++i)
        note(known[lines[i].id], lines[i], qsizetype(i));
    std::vector<qsizetype> indices;
    for (const Versions &versions : std::as_const(known)) {
        if (versions.best() >= 0)
            indices.push_back(versions.best());
    }
    std::sort(indices.begin(), indices.end());
    return indices;
}

} // namespace

class VDBSalvagePrivate
{
public:
    VDBStatus scan(const QString &key);

    QString keyField;
    QString error;
    QByteArray bytes;
    bool isKeyed = false;
    bool hasHeader = false;
    std::vector<SalvagedLine> lines;
    std::vector<qsizetype> records; ///< Which of the lines are given.
    QList<VDBDamage> damage;
};

VDBStatus VDBSalvagePrivate::scan(const QString &key)
{
    const Signer signer(key);
    const std::optional<Header> header = findHeader(bytes);
    hasHeader = header.has_value();
    if (!header
        && headerVersion(QByteArrayView(bytes).first(std::min(bytes.size(), kMaxHeaderSize)))
            > kFormatVersion)
        return VDBStatus::NewerFormat;
    isKeyed = header && !header->keyCheck.isEmpty();
    if (header && signer.isKeyed() && signer.keyCheck() != header->keyCheck)
        return VDBStatus::WrongKey;

    SalvageScanner scanner(bytes, signer, header ? header->keyField : keyField);
    scanner.run();
    lines = std::move(scanner.lines);
    damage = std::move(scanner.damage);
    isKeyed = isKeyed || scanner.hasCodes;
    const bool isProven = std::any_of(lines.begin(), lines.end(), [](const SalvagedLine &line) {
        return line.proof != Proof::None;
    });
    if (!header && signer.isKeyed() && !isProven && !lines.empty())
        return VDBStatus::WrongKey;
    records = chosen(lines);
    if (header || !lines.empty())
        return VDBStatus::Ok;
    return bytes.contains(kHeaderStart) ? VDBStatus::DamagedHeader : VDBStatus::NotADatabase;
}

VDBSalvage::VDBSalvage(const QString &keyField)
    : d(std::make_unique<VDBSalvagePrivate>())
{
    d->keyField = keyField;
}

VDBSalvage::~VDBSalvage() = default;

VDBStatus VDBSalvage::read(QIODevice *device, const QString &key,
                           std::chrono::milliseconds lockTimeout)
{
    const QString keyField = d->keyField;
    *d = VDBSalvagePrivate();
    d->keyField = keyField;
    Device access;
    const VDBStatus status = access.open(device, Device::Intent::Read, lockTimeout);
    d->error = access.errorString();
    if (status != VDBStatus::Ok)
        return status;
    std::optional<QByteArray> bytes = access.readAll();
    d->error = access.errorString();
    if (!bytes)
        return VDBStatus::Io;
    if (bytes->isEmpty())
        return VDBStatus::Empty;
    d->bytes = std::move(*bytes);
    return d->scan(key);
}

QString VDBSalvage::errorString() const
{
    return d->error;
}

bool VDBSalvage::isKeyed() const
{
    return d->isKeyed;
}

bool VDBSalvage::hasHeader() const
{
    return d->hasHeader;
}

qsizetype VDBSalvage::count() const
{
    return qsizetype(d->records.size());
}

VDBSalvagedRecord VDBSalvage::record(qsizetype index) const
{
    const SalvagedLine &line = d->lines[std::size_t(d->records[std::size_t(index)])];
    VDBSalvagedRecord result{.id = line.id,
                             .record = {},
                             .proof = line.proof,
                             .isUnfinished = line.batch != Batch::Completed};
    result.record.d->payload = VBytes(
        d->bytes, QByteArrayView(d->bytes).sliced(line.payloadAt, line.end - line.payloadAt));
    result.record.d->lastFieldAt = lastFieldAt(result.record.d->payload.view());
    result.record.d->isSigned = line.proof != Proof::None;
    result.record.d->line = line.line;
    result.record.d->offset = line.offset;
    return result;
}

const QList<VDBDamage> &VDBSalvage::damage() const
{
    return d->damage;
}

} // namespace Norvane::Database
