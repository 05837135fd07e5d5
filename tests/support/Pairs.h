// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "support/Pool.h"
#include "support/Printers.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtTest/QTest>

#include <QtCore/QTemporaryDir>

#include <atomic>
#include <memory>

// Operations of a database, for tests that run them back to back.

namespace Support {

enum class Operation
{
    InitBackground,
    InitForeground,
    Commit,
    Reindex,
    Backup,
    Restore,
    Purge,
    Wait,
    Destroy
};

constexpr Operation kOperations[] = {
    Operation::InitBackground, Operation::InitForeground, Operation::Commit,
    Operation::Reindex,        Operation::Backup,         Operation::Restore,
    Operation::Purge,          Operation::Wait,           Operation::Destroy,
};

inline const char *nameOf(Operation operation)
{
    static const char *const kNames[] = {"init(true)", "init(false)", "commit",
                                         "reindex",    "backup",      "restore",
                                         "purge",      "wait",        "destruction"};
    return kNames[int(operation)];
}

/// True for what drops a change that nobody has committed yet.
inline bool isLoad(Operation operation)
{
    return operation == Operation::InitBackground || operation == Operation::InitForeground;
}

/// True for what only the owner's thread may do.
inline bool isForTheOwner(Operation operation)
{
    return isLoad(operation) || operation == Operation::Destroy;
}

/// True for what writes the changes made before it.
inline bool isCommit(Operation operation)
{
    return operation == Operation::Commit || operation == Operation::Reindex
        || operation == Operation::Restore || operation == Operation::Destroy;
}

/// True for the operations whose pairs run most often under torture.
inline bool isOfTheMatrix(Operation operation)
{
    return operation != Operation::InitForeground && operation != Operation::Purge
        && operation != Operation::Wait;
}

/// How often a pair runs.
inline int pairRounds(Operation first, Operation second)
{
    bool isGiven = false;
    const int given = qEnvironmentVariableIntValue("KILNJET_PAIR_ROUNDS", &isGiven);
    const bool isOfBoth = isOfTheMatrix(first) && isOfTheMatrix(second);
    return isGiven ? given : rounds(20, isOfBoth ? 2'000 : 200);
}

/// What no row of a test reaches unless it hangs.
inline std::chrono::seconds pairLimit()
{
    return std::chrono::seconds(rounds(60, 600));
}

/// One row for each pair of operations that `takes` accepts, with and without idle pool threads.
template<typename Filter>
void addPairs(Filter takes)
{
    QTest::addColumn<Operation>("first");
    QTest::addColumn<Operation>("second");
    QTest::addColumn<bool>("isWarm");
    for (const Operation first : kOperations) {
        for (const Operation second : kOperations) {
            if (!takes(first, second))
                continue;
            for (const bool isWarm : {true, false})
                QTest::addRow("%s, then %s, %s", nameOf(first), nameOf(second),
                              isWarm ? "idle threads" : "new threads")
                    << first << second << isWarm;
        }
    }
}

/// A database on a file, loaded in the background, and a backup beside it.
class Subject
{
public:
    Subject()
    {
        // Made once: what is tested here is not the making of files, which waits for the disk.
        static const QByteArray loaded = bytesWith({printer(u"loaded"_s)});
        static const QByteArray restored = bytesWith({printer(u"restored"_s)});
        if (!writeBytes(livePath(), loaded) || !writeBytes(m_dir.filePath(u"from.tdb"_s), restored))
            qFatal("cannot write to %s", qPrintable(m_dir.path()));
        reopen();
        m_database->waitForFinished();
    }

    VPrintersDb &database() { return *m_database; }
    QString livePath() const { return m_dir.filePath(u"live.tdb"_s); }

    /// A change that no other has made.
    VPrinterDriver edit()
    {
        const VPrinterDriver driver = printer(u"edit "_s + QString::number(++m_edits));
        m_database->insert(driver);
        return driver;
    }

    void run(Operation operation) { run(operation, *m_database); }
    /// The same for a slot, which may be called while the database is destroyed.
    void run(Operation operation, VPrintersDb &database)
    {
        switch (operation) {
        case Operation::InitBackground:
        case Operation::InitForeground:
            database.init(operation == Operation::InitBackground);
            break;
        case Operation::Commit:
            database.commit();
            break;
        case Operation::Reindex:
            expect(database.reindex());
            break;
        case Operation::Backup:
            expect(database.backup(m_dir.path(), u"to.tdb"_s));
            break;
        case Operation::Restore:
            expect(database.restore(m_dir.path(), u"from.tdb"_s, true));
            break;
        case Operation::Purge:
            expect(database.purge());
            break;
        case Operation::Wait:
            database.waitForFinished();
            break;
        case Operation::Destroy:
            reopen();
            break;
        }
    }

    /// Destroys the database; true when its file then holds what it held, and nothing has failed.
    [[nodiscard]] bool endsInAgreement()
    {
        m_database->waitForFinished();
        const Stored expected = storedFrom(m_database->values());
        m_database.reset();
        return m_succeeds && stored(livePath()) == expected;
    }

private:
    void expect(bool success)
    {
        if (!success)
            m_succeeds = false;
    }
    void reopen()
    {
        m_database.reset();
        m_database = std::make_unique<VPrintersDb>(livePath(), QString());
        m_database->init(true);
    }

    QTemporaryDir m_dir{folderInMemory()};
    std::unique_ptr<VPrintersDb> m_database;
    int m_edits = 0;
    std::atomic<bool> m_succeeds = true;
};

} // namespace Support
