// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "KeyValueStore.h"

#include <rocksdb/db.h>
#include <rocksdb/write_batch.h>

namespace Bench {

namespace {

rocksdb::Slice slice(const QByteArray &bytes)
{
    return {bytes.constData(), std::size_t(bytes.size())};
}

QByteArrayView view(const rocksdb::Slice &slice)
{
    return {slice.data(), qsizetype(slice.size())};
}

/// A database with the defaults, but for two: a commit is synced, and texts are not compressed, as
/// they are not in the other stores.
class RocksDb : public KeyValueStore
{
public:
    bool open(const QString &folder) override
    {
        rocksdb::Options options;
        options.create_if_missing = true;
        options.compression = rocksdb::kNoCompression;
        rocksdb::DB *db = nullptr;
        if (!rocksdb::DB::Open(options, folder.toStdString(), &db).ok())
            return false;
        m_db.reset(db);
        return true;
    }

    void close() override { m_db.reset(); }

    bool readAll(const Visitor &visit) override
    {
        const std::unique_ptr<rocksdb::Iterator> it(m_db->NewIterator(rocksdb::ReadOptions()));
        for (it->SeekToFirst(); it->Valid(); it->Next()) {
            if (!visit(view(it->key()), view(it->value())))
                return false;
        }
        return it->status().ok();
    }

    QByteArray read(const QByteArray &key) override
    {
        std::string text;
        const bool isFound = m_db->Get(rocksdb::ReadOptions(), slice(key), &text).ok();
        return isFound ? QByteArray::fromStdString(text) : QByteArray();
    }

    bool write(const QList<Change> &changes) override
    {
        rocksdb::WriteBatch batch;
        for (const Change &change : changes) {
            if (change.text.isNull())
                batch.Delete(slice(change.key));
            else
                batch.Put(slice(change.key), slice(change.text));
        }
        rocksdb::WriteOptions options;
        options.sync = true;
        return m_db->Write(options, &batch).ok();
    }

    bool compact() override
    {
        return m_db->CompactRange(rocksdb::CompactRangeOptions(), nullptr, nullptr).ok();
    }

private:
    std::unique_ptr<rocksdb::DB> m_db;
};

} // namespace

std::unique_ptr<KeyValueStore> makeRocksDb()
{
    return std::make_unique<RocksDb>();
}

} // namespace Bench
