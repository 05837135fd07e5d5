// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DurableFile.h"
#include "KeyValueStore.h"

#include <QtCore/QFile>

#include <lmdb.h>

namespace Bench {

namespace {

MDB_val value(const QByteArray &bytes)
{
    return {std::size_t(bytes.size()), const_cast<char *>(bytes.constData())};
}

QByteArrayView view(const MDB_val &value)
{
    return {static_cast<const char *>(value.mv_data), qsizetype(value.mv_size)};
}

/// A transaction that is given up unless it is committed.
class Transaction
{
public:
    Transaction(MDB_env *environment, unsigned flags)
    {
        if (mdb_txn_begin(environment, nullptr, flags, &m_transaction) != 0)
            m_transaction = nullptr;
    }
    Transaction(const Transaction &) = delete;
    Transaction &operator=(const Transaction &) = delete;
    ~Transaction() { mdb_txn_abort(m_transaction); }

    explicit operator bool() const { return m_transaction; }
    operator MDB_txn *() const { return m_transaction; }
    bool commit() { return mdb_txn_commit(std::exchange(m_transaction, nullptr)) == 0; }

private:
    MDB_txn *m_transaction = nullptr;
};

/// The unnamed database of an environment in one file, which syncs at each commit by default.
class Lmdb : public KeyValueStore
{
public:
    ~Lmdb() override { close(); }

    bool open(const QString &folder) override
    {
        m_path = folder + QLatin1String("/drivers.mdb");
        return openFile();
    }

    void close() override
    {
        if (m_environment)
            mdb_env_close(m_environment);
        m_environment = nullptr;
    }

    bool readAll(const Visitor &visit) override
    {
        const Transaction transaction(m_environment, MDB_RDONLY);
        MDB_cursor *cursor = nullptr;
        if (!transaction || mdb_cursor_open(transaction, m_database, &cursor) != 0)
            return false;
        MDB_val key;
        MDB_val text;
        int result = 0;
        while ((result = mdb_cursor_get(cursor, &key, &text, MDB_NEXT)) == 0) {
            if (!visit(view(key), view(text)))
                break;
        }
        mdb_cursor_close(cursor);
        return result == MDB_NOTFOUND;
    }

    QByteArray read(const QByteArray &key) override
    {
        const Transaction transaction(m_environment, MDB_RDONLY);
        MDB_val search = value(key);
        MDB_val text;
        if (!transaction || mdb_get(transaction, m_database, &search, &text) != 0)
            return {};
        return view(text).toByteArray();
    }

    bool write(const QList<Change> &changes) override
    {
        Transaction transaction(m_environment, 0);
        if (!transaction)
            return false;
        for (const Change &change : changes) {
            if (!apply(transaction, change))
                return false;
        }
        return transaction.commit();
    }

    /// The pages of a file are never given back: a compacted copy takes its place.
    bool compact() override
    {
        const QString copy = m_path + QLatin1String(".new");
        const QByteArray path = QFile::encodeName(copy);
        QFile file(copy);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)
            || mdb_env_copyfd2(m_environment, file.handle(), MDB_CP_COMPACT) != 0
            || ::fsync(file.handle()) != 0)
            return false;
        file.close();
        close();
        return renameDurably(copy, m_path) && openFile();
    }

private:
    bool openFile()
    {
        // The size of the map bounds that of the file: address space, and no more.
        constexpr std::size_t kMapSize = std::size_t(64) << 30;
        const QByteArray path = QFile::encodeName(m_path);
        if (mdb_env_create(&m_environment) != 0 || mdb_env_set_mapsize(m_environment, kMapSize) != 0
            || mdb_env_open(m_environment, path.constData(), MDB_NOSUBDIR, 0644) != 0)
            return false;
        Transaction transaction(m_environment, 0);
        return transaction && mdb_dbi_open(transaction, nullptr, 0, &m_database) == 0
            && transaction.commit();
    }

    bool apply(MDB_txn *transaction, const Change &change)
    {
        MDB_val key = value(change.key);
        if (change.text.isNull()) {
            const int result = mdb_del(transaction, m_database, &key, nullptr);
            return result == 0 || result == MDB_NOTFOUND;
        }
        MDB_val text = value(change.text);
        return mdb_put(transaction, m_database, &key, &text, 0) == 0;
    }

    QString m_path;
    MDB_env *m_environment = nullptr;
    MDB_dbi m_database = 0;
};

} // namespace

std::unique_ptr<KeyValueStore> makeLmdb()
{
    return std::make_unique<Lmdb>();
}

} // namespace Bench
