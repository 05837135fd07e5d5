// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "KeyValueStore.h"

#include <sqlite3.h>

namespace Bench {

namespace {

QByteArrayView bytesIn(sqlite3_stmt *statement, int column)
{
    const auto *data = static_cast<const char *>(sqlite3_column_blob(statement, column));
    return {data, sqlite3_column_bytes(statement, column)};
}

void bind(sqlite3_stmt *statement, int index, const QByteArray &key)
{
    sqlite3_bind_blob(statement, index, key.constData(), int(key.size()), SQLITE_STATIC);
}

/// One table in one file; synchronous=FULL, which makes a commit durable in either mode.
class Sqlite : public KeyValueStore
{
public:
    explicit Sqlite(SqliteJournal journal)
        : m_journal(journal)
    { }
    ~Sqlite() override { close(); }

    bool open(const QString &folder) override
    {
        const QByteArray path = (folder + QLatin1String("/drivers.sqlite")).toUtf8();
        return sqlite3_open(path.constData(), &m_db) == SQLITE_OK
            && run(m_journal == SqliteJournal::Wal ? "PRAGMA journal_mode=WAL"
                                                   : "PRAGMA journal_mode=DELETE")
            && run("PRAGMA synchronous=FULL")
            && run("CREATE TABLE IF NOT EXISTS drivers (id BLOB PRIMARY KEY, driver TEXT)")
            && prepare("SELECT id, driver FROM drivers", m_readAll)
            && prepare("SELECT driver FROM drivers WHERE id = ?", m_read)
            && prepare("INSERT INTO drivers VALUES (?1, ?2) "
                       "ON CONFLICT (id) DO UPDATE SET driver = ?2",
                       m_put)
            && prepare("DELETE FROM drivers WHERE id = ?", m_remove);
    }

    void close() override
    {
        for (sqlite3_stmt **statement : {&m_readAll, &m_read, &m_put, &m_remove}) {
            sqlite3_finalize(*statement);
            *statement = nullptr;
        }
        sqlite3_close(m_db);
        m_db = nullptr;
    }

    bool readAll(const Visitor &visit) override
    {
        int result = SQLITE_ROW;
        while ((result = sqlite3_step(m_readAll)) == SQLITE_ROW) {
            if (!visit(bytesIn(m_readAll, 0), bytesIn(m_readAll, 1)))
                break;
        }
        sqlite3_reset(m_readAll);
        return result == SQLITE_DONE;
    }

    QByteArray read(const QByteArray &key) override
    {
        bind(m_read, 1, key);
        QByteArray text;
        if (sqlite3_step(m_read) == SQLITE_ROW)
            text = bytesIn(m_read, 0).toByteArray();
        sqlite3_reset(m_read);
        return text;
    }

    bool write(const QList<Change> &changes) override
    {
        if (!run("BEGIN IMMEDIATE"))
            return false;
        for (const Change &change : changes) {
            if (!apply(change)) {
                run("ROLLBACK");
                return false;
            }
        }
        return run("COMMIT");
    }

    bool compact() override
    {
        // In WAL mode the smaller file is in the journal until a checkpoint has copied it.
        return run("VACUUM")
            && (m_journal == SqliteJournal::Rollback || run("PRAGMA wal_checkpoint(TRUNCATE)"));
    }

private:
    bool run(const char *sql)
    {
        return sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr) == SQLITE_OK;
    }

    bool prepare(const char *sql, sqlite3_stmt *&statement)
    {
        return sqlite3_prepare_v2(m_db, sql, -1, &statement, nullptr) == SQLITE_OK;
    }

    bool apply(const Change &change)
    {
        sqlite3_stmt *statement = change.text.isNull() ? m_remove : m_put;
        bind(statement, 1, change.key);
        if (!change.text.isNull())
            sqlite3_bind_text(statement, 2, change.text.constData(), int(change.text.size()),
                              SQLITE_STATIC);
        const bool isDone = sqlite3_step(statement) == SQLITE_DONE;
        sqlite3_reset(statement);
        return isDone;
    }

    SqliteJournal m_journal;
    sqlite3 *m_db = nullptr;
    sqlite3_stmt *m_readAll = nullptr;
    sqlite3_stmt *m_read = nullptr;
    sqlite3_stmt *m_put = nullptr;
    sqlite3_stmt *m_remove = nullptr;
};

} // namespace

std::unique_ptr<KeyValueStore> makeSqlite(SqliteJournal journal)
{
    return std::make_unique<Sqlite>(journal);
}

} // namespace Bench
