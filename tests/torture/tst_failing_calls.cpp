// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Operations.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <cerrno>

using namespace Torture;

Q_DECLARE_METATYPE(const Torture::Operation *)

/// Calls of the system that fail, once or from then on: what is acknowledged is in the file, what
/// is not is not lost.
class tst_failing_calls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void failure_isHeardAndNothingIsLost_data();
    void failure_isHeardAndNothingIsLost();
    void shortTransfers_areNoFailure_data();
    void shortTransfers_areNoFailure();
    void bufferedFile_thatCannotBeFlushedIsNoSuccess();

private:
    void fail(const Operation &operation, std::size_t call, int error, bool isLasting);
    void repeat(VPrintersDb &database, const Operation &operation);

    QTemporaryDir m_folder;
    std::optional<Watchdog> m_watchdog;
    int m_failures = 0;
    int m_refusals = 0;
    int m_failedSyncs = 0;
};

namespace {

struct Error
{
    const char *name;
    int number;
    bool mayLast;
};

constexpr Error kErrors[] = {{"EIO", EIO, true},
                             {"ENOSPC", ENOSPC, true},
                             {"EROFS", EROFS, true},
                             {"EMFILE", EMFILE, true},
                             {"EINTR", EINTR, false}};

bool isPossible(int error, FileCall::Kind kind)
{
    switch (error) {
    case EMFILE:
        return kind == FileCall::Open;
    case ENOSPC:
    case EROFS:
        return kind == FileCall::Open || kind >= FileCall::Write;
    case EINTR:
        return kind == FileCall::Open || kind == FileCall::Lock || kind == FileCall::Read
            || kind == FileCall::Write || kind == FileCall::Sync;
    default:
        return kind != FileCall::Harmless;
    }
}

void addOperations()
{
    QTest::addColumn<const Operation *>("operation");
    for (const Operation &operation : operations())
        QTest::newRow(operation.name) << &operation;
}

} // namespace

void tst_failing_calls::initTestCase()
{
    m_watchdog.emplace("failing calls", tortureLimit());
    FileCalls::watch(m_folder.path().toStdString());
}

void tst_failing_calls::failure_isHeardAndNothingIsLost_data()
{
    addOperations();
}

void tst_failing_calls::failure_isHeardAndNothingIsLost()
{
    QFETCH(const Operation *, operation);
    m_failures = m_refusals = m_failedSyncs = 0;
    QVERIFY(layOut(*operation, m_folder.path()));
    const std::vector<RecordedCall> calls = callsOf(*operation, m_folder.path());
    QVERIFY(!calls.empty());
    for (std::size_t call = 0; call < calls.size(); ++call) {
        for (const Error &error : kErrors) {
            if (!isPossible(error.number, calls[call].kind))
                continue;
            for (const bool isLasting : {false, true}) {
                if (isLasting && !error.mayLast)
                    continue;
                fail(*operation, call, error.number, isLasting);
                if (QTest::currentTestFailed()) {
                    qWarning("%s at call %zu (%s), %s", error.name, call, calls[call].name.c_str(),
                             isLasting ? "from then on" : "once");
                    return;
                }
            }
        }
    }
    QVERIFY(m_refusals > 0);
    figure(u"%1: failures at each of %2 calls, %3 runs, %4 refused, %5 with failed syncs: "
           "none acknowledged in vain, none lost"_s.arg(QLatin1StringView(operation->name))
               .arg(calls.size())
               .arg(m_failures)
               .arg(m_refusals)
               .arg(m_failedSyncs));
}

void tst_failing_calls::fail(const Operation &operation, std::size_t call, int error,
                             bool isLasting)
{
    QVERIFY(layOut(operation, m_folder.path()));
    const QString path = fileIn(m_folder.path());
    VPrintersDb database(path, QString());
    operation.prepare(database);
    const bool wasDirty = database.isDirty();
    QSignalSpy errors(&database, &VPrintersDb::error);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    std::size_t count = 0;
    int failedSyncs = 0;
    FileCalls::setJudge([&](const FileCall &one) {
        const bool fails =
            (isLasting ? count >= call : count == call) && isPossible(error, one.kind);
        ++count;
        failedSyncs += fails && error != EINTR && one.kind == FileCall::Sync ? 1 : 0;
        FileCallFate fate;
        fate.error = fails ? error : 0;
        return fate;
    });
    const bool isDone = operation.run(database, m_folder.path());
    FileCalls::setJudge(nullptr);
    ++m_failures;
    m_refusals += isDone ? 0 : 1;
    m_failedSyncs += failedSyncs > 0 ? 1 : 0;
    // The copy that a backup makes is not part of what it acknowledges.
    if (failedSyncs > 0 && QByteArrayView(operation.name) != "backup")
        QVERIFY(!isDone);
    if (operation.isOnFile) {
        const Stored found = stored(path);
        const bool isNew = found == storedFrom(printers(operation.after));
        QVERIFY(isNew || (!isDone && found == storedFrom(printers(operation.before))));
    }
    if (wasDirty) {
        QCOMPARE(commits.size(), isDone ? 1 : 0);
        QCOMPARE(errors.size(), isDone ? 0 : 1);
        QCOMPARE(database.isDirty(), !isDone);
    }
    repeat(database, operation);
}

// The same object goes on as if nothing had been.
void tst_failing_calls::repeat(VPrintersDb &database, const Operation &operation)
{
    if (!database.isReady())
        database.init(false);
    QVERIFY(database.isReady());
    database.insert(printer(u"Z"_s));
    database.commit();
    QVERIFY(!database.isDirty());
    const Stored found = stored(fileIn(m_folder.path()));
    QCOMPARE(found, storedFrom(database.values()));
    if (QByteArrayView(operation.name) == "restore")
        return; // It may have been refused before anything changed.
    QCOMPARE(found, storedFrom(printers(operation.after + QStringList{u"Z"_s})));
    QVERIFY(database.purge());
    QCOMPARE(stored(fileIn(m_folder.path())), found);
}

void tst_failing_calls::shortTransfers_areNoFailure_data()
{
    addOperations();
}

void tst_failing_calls::shortTransfers_areNoFailure()
{
    QFETCH(const Operation *, operation);
    QVERIFY(layOut(*operation, m_folder.path()));
    const std::vector<RecordedCall> calls = callsOf(*operation, m_folder.path());
    int runs = 0;
    // 0: all of them; a byte at a time, then half of what was asked for.
    for (std::size_t only = 0; only <= calls.size(); ++only) {
        if (only > 0 && calls[only - 1].kind != FileCall::Read
            && calls[only - 1].kind != FileCall::Write)
            continue;
        for (const std::size_t divisor : {std::size_t(0), std::size_t(2)}) {
            QVERIFY(layOut(*operation, m_folder.path()));
            VPrintersDb database(fileIn(m_folder.path()), QString());
            operation->prepare(database);
            std::size_t count = 0;
            FileCalls::setJudge([&](const FileCall &call) {
                FileCallFate fate;
                if (only == 0 || ++count == only)
                    fate.part = divisor == 0 ? 1 : std::max(call.size / divisor, std::size_t(1));
                return fate;
            });
            const bool isDone = operation->run(database, m_folder.path());
            FileCalls::setJudge(nullptr);
            QVERIFY(isDone);
            if (operation->isOnFile)
                QCOMPARE(stored(fileIn(m_folder.path())), storedFrom(printers(operation->after)));
            ++runs;
        }
    }
    figure(u"%1: short reads and writes, %2 runs: none failed"_s
               .arg(QLatin1StringView(operation->name))
               .arg(runs));
}

// Qt takes the bytes of a file that has a buffer, and says later that it could not write them.
void tst_failing_calls::bufferedFile_thatCannotBeFlushedIsNoSuccess()
{
    QFile file(m_folder.filePath(u"buffered.tdb"_s));
    QVERIFY(file.open(QIODevice::ReadWrite));
    VPrintersDb database(&file, QString());
    database.init(false);
    database.insert(printer(u"A"_s));
    database.commit();
    QVERIFY(!database.isDirty());
    database.insert(printer(u"B"_s));
    FileCalls::setJudge([](const FileCall &call) {
        FileCallFate fate;
        fate.error = call.kind == FileCall::Write ? ENOSPC : 0;
        return fate;
    });
    database.commit();
    FileCalls::setJudge(nullptr);
    QVERIFY(database.isDirty());
    database.commit();
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(file.fileName()), storedFrom(database.values()));
}

QTEST_GUILESS_MAIN(tst_failing_calls)
#include "tst_failing_calls.moc"
