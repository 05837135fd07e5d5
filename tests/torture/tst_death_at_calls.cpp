// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Operations.h"
#include "support/Child.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <set>

using namespace Torture;

Q_DECLARE_METATYPE(const Torture::Operation *)

/// Programs that die at each call of the system that an operation makes about its files.
class tst_death_at_calls : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void death_leavesTheOldStateOrTheNew_data();
    void death_leavesTheOldStateOrTheNew();
    void secondDeath_leavesWhatTheFirstDid();

private:
    void die(const Operation &operation, std::size_t call, std::optional<std::size_t> bytes = {});
    void dieAgain(const Operation &operation, const QByteArray &legacy, int &deaths);
    void check(const Operation &operation);
    void checkThatLifeGoesOn();

    QTemporaryDir m_folder;
    std::optional<Watchdog> m_watchdog;
    std::set<QStringList> m_found;
};

namespace {

std::vector<std::size_t> cutsOf(std::size_t size)
{
    const std::size_t count = std::min(size, std::size_t(rounds(3, 64)));
    std::vector<std::size_t> cuts;
    for (std::size_t i = 0; i < count; ++i)
        cuts.push_back(count == 1 ? 0 : i * (size - 1) / (count - 1)); // None of it to all but one.
    return cuts;
}

} // namespace

void tst_death_at_calls::initTestCase()
{
    m_watchdog.emplace("dying programs", tortureLimit());
    FileCalls::watch(m_folder.path().toStdString());
}

void tst_death_at_calls::death_leavesTheOldStateOrTheNew_data()
{
    QTest::addColumn<const Operation *>("operation");
    QTest::addColumn<bool>("writes");
    for (const Operation &operation : operations()) {
        const QByteArray name = operation.name;
        QTest::newRow(operation.name) << &operation << (name != "load" && name != "reindex");
    }
}

void tst_death_at_calls::death_leavesTheOldStateOrTheNew()
{
    QFETCH(const Operation *, operation);
    QFETCH(bool, writes);
    QVERIFY(layOut(*operation, m_folder.path()));
    const std::vector<RecordedCall> calls = callsOf(*operation, m_folder.path());
    QVERIFY(!calls.empty());
    m_found.clear();
    int deaths = 0;
    int tornWrites = 0;
    std::set<FileCall::Kind> kinds;
    for (std::size_t call = 0; call < calls.size(); ++call) {
        kinds.insert(calls[call].kind);
        QVERIFY(layOut(*operation, m_folder.path()));
        die(*operation, call);
        check(*operation);
        ++deaths;
        if (calls[call].kind != FileCall::Write)
            continue;
        for (const std::size_t bytes : cutsOf(calls[call].size)) {
            QVERIFY(layOut(*operation, m_folder.path()));
            die(*operation, call, bytes);
            check(*operation);
            ++tornWrites;
        }
        if (QTest::currentTestFailed())
            return;
    }
    // Else deaths were missed: the calls that matter are among those that were seen.
    QCOMPARE(kinds.count(FileCall::Write) == 1 && kinds.count(FileCall::Sync) == 1, writes);
    if (operation->before != operation->after)
        QCOMPARE(m_found.size(), 2);
    figure(u"%1: died behind each of %2 calls and inside writes %3 times: "
           "the old state or the new"_s.arg(QLatin1StringView(operation->name))
               .arg(deaths)
               .arg(tornWrites));
}

void tst_death_at_calls::die(const Operation &operation, std::size_t call,
                             std::optional<std::size_t> bytes)
{
    QStringList arguments = {m_folder.path(), QLatin1StringView(operation.name),
                             QString::number(call + 1)};
    if (bytes)
        arguments.append(QString::number(*bytes));
    Child child(QStringLiteral(VICTIM), arguments);
    QCOMPARE(child.wait(), -SIGKILL);
}

void tst_death_at_calls::check(const Operation &operation)
{
    const QString path = fileIn(m_folder.path());
    if (operation.before.isEmpty()) {
        // Nothing, or a database that has nothing in it.
        VPrintersDb database(path, QString());
        database.init(false);
        QVERIFY(database.isReady());
        QCOMPARE(database.count(), 0);
        m_found.insert(QStringList());
        checkThatLifeGoesOn();
        return;
    }
    const Stored found = stored(path);
    const bool isOld = found == storedFrom(printers(operation.before));
    const bool isNew = found == storedFrom(printers(operation.after));
    QVERIFY(isOld || isNew);
    m_found.insert(isOld ? operation.before : operation.after);
    QCOMPARE(stored(m_folder.filePath(u"Other.tdb"_s)), storedFrom(printers(kOther)));
    checkThatLifeGoesOn();
}

// A commit puts right what a death has left of another one, and may die over it as well.
void tst_death_at_calls::secondDeath_leavesWhatTheFirstDid()
{
    const auto named = [](const char *name) {
        return *std::find_if(operations().begin(), operations().end(), [&](const Operation &one) {
            return QByteArrayView(one.name) == name;
        });
    };
    const Operation first = named("insert");
    const Operation second = named("remove");
    QVERIFY(layOut(first, m_folder.path()));
    const std::vector<RecordedCall> calls = callsOf(first, m_folder.path());
    std::set<QByteArray> legacies;
    for (std::size_t call = 0; call < calls.size(); ++call) {
        std::vector<std::size_t> cuts = {calls[call].size};
        if (calls[call].kind == FileCall::Write)
            cuts = cutsOf(calls[call].size);
        for (const std::size_t cut : cuts) {
            QVERIFY(layOut(first, m_folder.path()));
            die(first, call, cut);
            legacies.insert(bytesOf(fileIn(m_folder.path())));
        }
    }
    int deaths = 0;
    for (const QByteArray &legacy : legacies)
        dieAgain(second, legacy, deaths);
    figure(u"died over %1 things that a death had left, %2 times in all: "
           "the state before or after"_s.arg(legacies.size())
               .arg(deaths));
}

void tst_death_at_calls::dieAgain(const Operation &operation, const QByteArray &legacy, int &deaths)
{
    const QString path = fileIn(m_folder.path());
    QVERIFY(writeBytes(path, legacy));
    const Stored before = stored(path);
    Stored after = before;
    after.remove(idText(printer(u"A"_s)));
    const std::vector<RecordedCall> calls = callsOf(operation, m_folder.path());
    QVERIFY(!calls.empty());
    QCOMPARE(stored(path), after);
    for (std::size_t call = 0; call < calls.size(); ++call) {
        // The others change nothing that a death could cut short.
        if (calls[call].kind < FileCall::Write)
            continue;
        QVERIFY(writeBytes(path, legacy));
        die(operation, call, calls[call].size / 2);
        const Stored found = stored(path);
        QVERIFY(found == before || found == after);
        checkThatLifeGoesOn();
        ++deaths;
    }
}

// Who comes next finds no obstacle, and leaves nothing of the dead one behind.
void tst_death_at_calls::checkThatLifeGoesOn()
{
    const QString path = fileIn(m_folder.path());
    VPrintersDb database(path, QString());
    database.init(false);
    const int count = database.count();
    database.insert(printer(u"Z"_s));
    database.commit();
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(path).size(), count + 1);
    QVERIFY(database.purge());
    QCOMPARE(stored(path), storedFrom(database.values()));
    QVERIFY(!QFile::exists(path + u".new"_s));
}

QTEST_GUILESS_MAIN(tst_death_at_calls)
#include "tst_death_at_calls.moc"
