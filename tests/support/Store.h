// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/VDBIterator.h>
#include <vcommon/VDBText.h>

#include <QtCore/QBuffer>
#include <QtCore/QMap>

#include <vector>

// A small vocabulary for tests of the text database.

namespace Support {

using namespace Qt::StringLiterals;
using namespace Norvane::Database;

inline QString toRead()
{
    return u""_s; // Empty, not null.
}

inline QString toWrite()
{
    return {};
}

inline VDBRecord record(const QString &id, const QString &text)
{
    VDBRecord record;
    record.insert(u"id"_s, id);
    record.insert(u"text"_s, text);
    return record;
}

[[nodiscard]] inline bool createStore(VDBText &store, QIODevice *device, const QString &key = {})
{
    store.setKey(key, toWrite());
    return store.create(device, u"id"_s, VDBText::WithCulture | VDBText::WithSignature,
                        QLocale(QLocale::English, QLocale::UnitedStates), u"2"_s);
}

/// One batch on an existing store; a null text removes. True when it became durable.
[[nodiscard]] inline bool commit(QIODevice *device, const QMap<QString, QString> &changes,
                                 const QString &key = {})
{
    VDBText store;
    store.setKey(key, toWrite());
    if (!store.open(device))
        return false;
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isNull())
            store.remove(change.key());
        else
            store.insert(record(change.key(), *change));
    }
    store.close();
    return store.wasDurable();
}

/// A store in memory: one batch for each element.
inline QByteArray storeWith(const QList<QMap<QString, QString>> &batches, const QString &key = {})
{
    QBuffer buffer;
    VDBText store;
    if (!createStore(store, &buffer, key))
        return {};
    store.close();
    for (const auto &batch : batches) {
        if (!commit(&buffer, batch, key))
            return {};
    }
    return buffer.data();
}

/// What a reader of the bytes sees.
struct Seen
{
    VDBStatus status = VDBStatus::Ok;
    QMap<QString, QString> sound; ///< Records whose signature matches.
    int damagedRecords = 0;
    std::vector<VDBDamage> damage;

    bool hears(VDBDamage::Reason reason) const
    {
        return std::any_of(damage.begin(), damage.end(),
                           [=](const VDBDamage &one) { return one.reason == reason; });
    }
};

inline Seen readStore(QIODevice *device, const QString &key = {})
{
    Seen seen;
    VDBText store;
    store.setKey(key, toRead());
    store.setReporter([&](const VDBDamage &damage) { seen.damage.push_back(damage); });
    const bool opened = store.open(device);
    seen.status = store.status();
    if (!opened)
        return seen;
    VDBRecord first;
    VDBRecord last;
    store.first(first);
    store.last(last);
    VDBIterator it(store, first);
    VDBIterator end(store, last);
    ++end;
    for (; it != end; ++it) {
        if ((*it).checkSignature())
            seen.sound.insert((*it).search(u"id"_s).value().toString(),
                              (*it).search(u"text"_s).value().toString());
        else
            ++seen.damagedRecords;
    }
    store.close();
    return seen;
}

inline Seen readStore(QByteArray bytes, const QString &key = {})
{
    QBuffer buffer(&bytes);
    return readStore(&buffer, key);
}

} // namespace Support
