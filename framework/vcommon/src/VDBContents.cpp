// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBContents.h"

#include <utility>

namespace Norvane::Database {

void Contents::reserve(std::size_t count)
{
    const std::size_t some = count + count / 4;
    entries.reserve(some);
    index.reserve(qsizetype(some));
}

void Contents::add(Entry &&entry)
{
    if (entry.isSound && entry.kind == LineKind::Remove) {
        kill(entry.id);
        return;
    }
    if (entry.isSound) {
        killDamaged(entry.id);
        const qsizetype known = index.size();
        std::size_t &place = index[entry.id];
        if (index.size() == known)
            killAt(place);
        place = entries.size();
    } else if (entry.isRecord) {
        // An older sound record of the same key stays live: better an old one than none.
        damagedRecords.insert(entry.id, entries.size());
    }
    entries.push_back(std::move(entry));
}

void Contents::kill(const QString &id)
{
    if (const auto sound = index.constFind(id); sound != index.constEnd()) {
        killAt(*sound);
        index.erase(sound);
    }
    killDamaged(id);
}

void Contents::killDamaged(const QString &id)
{
    if (damagedRecords.isEmpty())
        return;
    for (const std::size_t damaged : damagedRecords.values(id))
        killAt(damaged);
    damagedRecords.remove(id);
}

void Contents::killAt(std::size_t place)
{
    entries[place].isLive = false;
    ++deadCount;
}

void Contents::forgetDead()
{
    constexpr std::size_t kFew = 1024;
    if (deadCount < kFew || deadCount < entries.size() / 2)
        return;
    deadCount = 0;
    std::vector<Entry> all = std::exchange(entries, {});
    index.clear();
    damagedRecords.clear();
    for (Entry &entry : all) {
        if (entry.isLive)
            add(std::move(entry));
    }
}

} // namespace Norvane::Database
