// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "VDBContents.h"

#include <utility>

namespace Norvane::Database {

void Contents::add(Entry &&entry)
{
    if (entry.isSound) {
        kill(entry.id);
        if (entry.kind == LineKind::Remove)
            return;
        index.insert(entry.id, entries.size());
    } else if (entry.isRecord) {
        // An older sound record of the same key stays live: better an old one than none.
        damagedRecords.insert(entry.id, entries.size());
    }
    entries.push_back(std::move(entry));
}

void Contents::kill(const QString &id)
{
    if (const auto sound = index.constFind(id); sound != index.constEnd()) {
        entries[*sound].isLive = false;
        ++deadCount;
        index.erase(sound);
    }
    if (damagedRecords.isEmpty())
        return;
    for (const std::size_t damaged : damagedRecords.values(id))
        entries[damaged].isLive = false;
    deadCount += std::size_t(damagedRecords.remove(id));
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
