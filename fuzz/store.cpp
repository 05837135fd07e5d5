// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Any bytes as a database file: read, written to, and then cut off in the middle of that commit or
// purged.
// Whatever they are, a reader changes nothing, what is refused stays as it is, what was readable
// stays readable, and a commit is there as a whole or not at all.

#include "Fuzz.h"
#include "StoreText.h"

#include <vcommon/VDBText.h>

#include <QtCore/QBuffer>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;
using namespace Norvane::Database;

namespace {

using Fuzz::require;
using Fuzz::StoreControl;
using Fuzz::textOf;

struct Record
{
    QList<std::pair<QString, QVariant>> fields;
    bool isSound = false;
    qint64 offset = 0;

    bool operator==(const Record &other) const
    {
        return isSound == other.isSound && fields == other.fields;
    }
};
using Records = QList<Record>;

Record recordOf(const VDBRecord &stored)
{
    Record record;
    for (const QString &key : stored.keys())
        record.fields.append({key, stored.search(key).value()});
    record.isSound = stored.checkSignature();
    record.offset = stored.offset();
    return record;
}

/// The records of an open store, in order.
Records recordsOf(VDBText &store)
{
    Records records;
    VDBRecord record;
    for (store.first(record); record.offset() >= 0; store.next(record))
        records.append(recordOf(record));
    require(store.count() == records.size(), "a store counts what it gives");
    store.last(record);
    require(records.isEmpty() ? record.isNull() : recordOf(record) == records.last(),
            "the last record is the end of the walk");
    return records;
}

struct Seen
{
    VDBStatus status = VDBStatus::Ok;
    Records records;
};

void checkDamage(const std::vector<VDBDamage> &damage, const Records &records, qsizetype size)
{
    qint64 last = 0;
    for (const VDBDamage &one : damage) {
        require(one.offset >= last && one.offset <= size && one.offset + one.size <= size
                    && one.line >= 1,
                "damage is reported in order, and where it is");
        last = one.offset;
    }
    for (const Record &record : records) {
        const bool isReported = std::any_of(damage.begin(), damage.end(), [&](const auto &one) {
            return one.offset == record.offset && one.reason == VDBDamage::Reason::BadSignature;
        });
        require(record.isSound != isReported, "unsound records are reported, and no others");
    }
}

Seen read(const QByteArray &bytes, const QString &key)
{
    Seen seen;
    QByteArray copy(bytes.constData(), bytes.size());
    QBuffer buffer(&copy);
    std::vector<VDBDamage> damage;
    VDBText store;
    store.setKey(key, u""_s);
    store.setReporter([&](const VDBDamage &one) { damage.push_back(one); });
    const bool opened = store.open(&buffer);
    seen.status = store.status();
    require(opened == (seen.status == VDBStatus::Ok), "an open store is fine");
    if (opened) {
        seen.records = recordsOf(store);
        checkDamage(damage, seen.records, bytes.size());
        store.close();
    }
    require(copy == bytes && !buffer.isOpen(), "a reader leaves the device as it was");
    return seen;
}

/// Creates a store in `bytes` if that is allowed; true when it was.
bool create(QByteArray &bytes, const QString &key)
{
    const QByteArray before(bytes.constData(), bytes.size());
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey(key, QString());
    const bool created =
        store.create(&buffer, u"id"_s, VDBText::WithCulture | VDBText::WithSignature,
                     QLocale(u"en_US"_s), u"2"_s);
    require(created || bytes == before, "what is no empty file is not created over");
    store.close();
    return created;
}

/// The changes of one batch.
struct Edit
{
    QByteArray keyField;
    QByteArray inserted; ///< A key.
    QString text; ///< The content of what is inserted.
    QByteArray removed; ///< A key, or nothing.
};

VDBRecord recordFor(const Edit &edit)
{
    VDBRecord record;
    record.insert(textOf(edit.keyField), textOf(edit.inserted));
    record.insert(u"fuzzed text"_s, edit.text);
    return record;
}

/// Commits the edit to `bytes`; how the store was opened, and `bytes` untouched if it was not.
VDBStatus commit(QByteArray &bytes, const QString &key, const Edit &edit)
{
    const QByteArray before(bytes.constData(), bytes.size());
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey(key, QString());
    if (!store.open(&buffer)) {
        require(bytes == before, "what is refused is not touched");
        return store.status();
    }
    require(store.insert(recordFor(edit)), "an open store takes a record");
    require(store.contains(textOf(edit.inserted)), "what is inserted is there");
    if (!edit.removed.isEmpty()) {
        require(store.remove(textOf(edit.removed)), "a sound record can be removed");
        require(!store.contains(textOf(edit.removed)), "what is removed is gone");
    }
    require(bytes == before, "nothing is written before the end of the batch");
    store.close();
    require(store.wasDurable(), "a commit to memory succeeds");
    return VDBStatus::Ok;
}

/// What a reader of `bytes` must see once the edit is there too; nothing when that cannot be known,
/// because a record's key is spelt with an escape.
std::optional<Records> expected(const QByteArray &bytes, const Records &records, const Edit &edit)
{
    Records left;
    for (const Record &record : records) {
        const auto key = Fuzz::recordKeyAt(bytes, record.offset, record.isSound, edit.keyField);
        if (!key)
            return std::nullopt;
        const QString id = textOf(*key);
        if (id != textOf(edit.inserted) && (edit.removed.isEmpty() || id != textOf(edit.removed)))
            left.append(record);
    }
    return left;
}

/// True when `seen` is `old` and behind it the record of the edit.
bool isWithEdit(const Records &seen, const Records &old, const Edit &edit)
{
    if (seen.isEmpty() || !seen.last().isSound || seen.sliced(0, seen.size() - 1) != old)
        return false;
    const auto &fields = seen.last().fields;
    return fields.contains({textOf(edit.keyField), textOf(edit.inserted)})
        && fields.contains({u"fuzzed text"_s, edit.text});
}

/// Which records to change, if the file has such that are easy to name.
Edit editFor(const QByteArray &bytes, const Records &records, const StoreControl &control,
             const QByteArray &keyField)
{
    const QByteArray text = bytes.last(std::min(bytes.size(), qsizetype(control.choice)));
    Edit edit{keyField, "fuzzed", QString::fromUtf8(text), {}};
    QList<QByteArray> keys;
    for (const Record &record : records) {
        const auto key = Fuzz::recordKeyAt(bytes, record.offset, record.isSound, keyField);
        if (record.isSound && key && !key->isEmpty() && *key != "fuzzed")
            keys.append(*key);
    }
    if (!control.edits || keys.isEmpty())
        return edit;
    edit.removed = keys.at(control.choice % keys.size());
    if ((control.choice & 0x80) != 0)
        std::swap(edit.removed, edit.inserted); // Replaced instead, ...
    if (edit.removed == "fuzzed")
        edit.removed.clear(); // ... and nothing is removed that is not there.
    return edit;
}

/// The power fails after some byte of the commit that made `now` of `old`.
void checkCut(const QByteArray &old, const QByteArray &now, const Records &before,
              const Records &after, const StoreControl &control)
{
    const auto same = std::mismatch(old.begin(), old.end(), now.begin(), now.end());
    const qsizetype from = same.second - now.begin();
    const qsizetype cut = from + control.cut % (now.size() - from + 1);
    QByteArray torn = now.first(cut) + old.sliced(std::min(cut, old.size()));
    const Seen seen = read(torn, control.openKey);
    if (seen.status == VDBStatus::Empty && before.isEmpty())
        return; // A single copy of the header and no more counts as none.
    require(seen.status == VDBStatus::Ok, "a file opens after a torn commit");
    require(seen.records == before || seen.records == after, "a commit is whole or not there");

    const Edit late{Fuzz::keyFieldOf(torn).value_or("id"), "late", u"late"_s, {}};
    const auto left = expected(torn, seen.records, late);
    require(commit(torn, control.openKey, late) == VDBStatus::Ok, "a torn file can be written");
    const Seen again = read(torn, control.openKey);
    require(again.status == VDBStatus::Ok, "a torn file opens after a further commit");
    require(!left || isWithEdit(again.records, *left, late),
            "a commit behind a torn one costs nothing");
}

Records soundOnes(const Records &records, bool isSound)
{
    Records chosen;
    std::copy_if(records.begin(), records.end(), std::back_inserter(chosen),
                 [=](const Record &record) { return record.isSound == isSound; });
    return chosen;
}

QByteArray purged(QByteArray bytes, const QString &key)
{
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey(key, QString());
    require(store.open(&buffer), "a file that was written can be opened to purge it");
    require(store.purge(), "a purge in memory succeeds");
    const Records here = recordsOf(store);
    require(store.reindex() && recordsOf(store) == here, "reading again shows the same");
    store.close();
    return bytes;
}

void checkPurge(const QByteArray &bytes, const Records &records, const QString &key)
{
    const QByteArray once = purged(bytes, key);
    const Seen seen = read(once, key);
    require(seen.status == VDBStatus::Ok, "a purged file opens");
    require(soundOnes(seen.records, true) == soundOnes(records, true),
            "a purge keeps every sound record");
    require(soundOnes(seen.records, false) == soundOnes(records, false),
            "a purge keeps every damaged record");
    require(purged(once, key) == once, "a second purge changes nothing");
}

/// Writes to a file that a reader could open.
void checkEdits(const QByteArray &bytes, const Seen &before, const StoreControl &control)
{
    const auto keyField = Fuzz::keyFieldOf(bytes);
    if (!keyField || keyField->isEmpty() || *keyField == "fuzzed text" || *keyField == "culture")
        return; // Nobody creates such a store, and its records could not be told apart.
    const Edit edit = editFor(bytes, before.records, control, *keyField);
    const auto left = expected(bytes, before.records, edit);
    if (!left)
        return;
    QByteArray now(bytes.constData(), bytes.size());
    const VDBStatus status = commit(now, control.openKey, edit);
    if (status == VDBStatus::KeyRequired)
        return;
    require(status == VDBStatus::Ok, "what a reader opens with the key, a writer opens");
    const Seen after = read(now, control.openKey);
    require(after.status == VDBStatus::Ok, "a file opens after a commit");
    require(isWithEdit(after.records, *left, edit), "a commit changes what it names, only");
    if (control.purges)
        checkPurge(now, after.records, control.openKey);
    else
        checkCut(bytes, now, before.records, after.records, control);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray input = Fuzz::bytesOf(data, size);
    const StoreControl control(input);
    QByteArray bytes = input.sliced(std::min(input.size(), StoreControl::kSize));
    Seen seen = read(bytes, control.openKey);
    if (seen.status != VDBStatus::Ok || control.choice == 0) {
        const bool created = create(bytes, control.openKey);
        require(created == (seen.status == VDBStatus::Empty), "only empty files are taken");
    }
    if (seen.status == VDBStatus::Empty) {
        seen = read(bytes, control.openKey);
        require(seen.status == VDBStatus::Ok && seen.records.isEmpty(),
                "a new store is open and empty");
    }
    if (seen.status == VDBStatus::Ok)
        checkEdits(bytes, seen, control);
    return 0;
}
