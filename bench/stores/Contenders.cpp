// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Contender.h"

#include "JsonArray.h"
#include "KeyValueContender.h"
#include "PrintersDb.h"

using namespace Qt::StringLiterals;

namespace Bench {

std::vector<std::unique_ptr<Contender>> contenders()
{
    std::vector<std::unique_ptr<Contender>> list;
    const auto add = [&](const QString &name, std::unique_ptr<KeyValueStore> store,
                         Decoder decoder = Decoder::QtJson) {
        list.push_back(std::make_unique<KeyValueContender>(name, std::move(store), decoder));
    };
    list.push_back(std::make_unique<PrintersDb>());
    add(u"SQLite WAL"_s, makeSqlite(SqliteJournal::Wal));
    add(u"SQLite rollback"_s, makeSqlite(SqliteJournal::Rollback));
    add(u"LMDB"_s, makeLmdb());
    add(u"LMDB, our decoder"_s, makeLmdb(), Decoder::Ours);
    add(u"LevelDB"_s, makeLevelDb());
    add(u"RocksDB"_s, makeRocksDb());
    add(u"JSON lines"_s, makeJsonLines());
    list.push_back(std::make_unique<JsonArray>(u"JSON array"_s));
    return list;
}

} // namespace Bench
