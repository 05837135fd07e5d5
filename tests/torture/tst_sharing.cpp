// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Child.h"
#include "support/Store.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <memory>

using namespace Support;
using namespace std::chrono_literals;

/// Processes that commit to one file at a time.
class tst_sharing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writers_loseNothingAndReadersSeeNothingTorn_data();
    void writers_loseNothingAndReadersSeeNothingTorn();
    void lock_isWaitedForNoLongerThanAllowed();
    void lock_endsWithItsHolder();

private:
    QTemporaryDir m_folder;
    QString m_path;
    int m_count = 0;
};

namespace {

/// How many records of each writer there are; -1 when a later one is there without an earlier one.
QMap<QString, int> countedByWriter(const Seen &seen)
{
    QMap<QString, int> counts;
    QMap<QString, int> highest;
    for (const QString &id : seen.sound.keys()) {
        const QString name = id.section(u'-', 0, 0);
        ++counts[name];
        highest[name] = std::max(highest[name], id.section(u'-', 1).toInt());
    }
    for (const QString &name : counts.keys()) {
        if (highest[name] != counts[name] - 1)
            counts[name] = -1;
    }
    return counts;
}

} // namespace

void tst_sharing::init()
{
    m_path = m_folder.filePath(u"%1.tdb"_s.arg(++m_count));
    QFile file(m_path);
    VDBText store;
    QVERIFY(createStore(store, &file));
    store.close();
}

void tst_sharing::writers_loseNothingAndReadersSeeNothingTorn_data()
{
    QTest::addColumn<int>("writers");
    QTest::newRow("two writers") << 2;
    QTest::newRow("four writers") << 4;
}

// While they commit, holders of the lock are killed and a reader looks.
void tst_sharing::writers_loseNothingAndReadersSeeNothingTorn()
{
    QFETCH(int, writers);
    const Watchdog watchdog("processes that share a file", tortureLimit());
    const int commits = rounds(100, 1'000);
    std::vector<std::unique_ptr<Child>> children;
    for (int i = 0; i < writers; ++i)
        children.push_back(std::make_unique<Child>(
            QStringLiteral(SHARER),
            QStringList{m_path, u"commit"_s, QString::number(i), QString::number(commits)}));
    int reads = 0;
    int killedHolders = 0;
    QMap<QString, int> before;
    for (int least = 1; least <= commits; least += commits / 20) {
        // Each look comes behind commits that the writer has been told are there.
        QVERIFY(children[std::size_t(reads % writers)]->readUntil(least));
        Child holder(QStringLiteral(SHARER), {m_path, u"hold"_s});
        QVERIFY(holder.readUntil(1));
        holder.kill();
        QCOMPARE(holder.wait(), -SIGKILL);
        ++killedHolders;
        QFile file(m_path);
        const Seen seen = readStore(&file);
        QCOMPARE(seen.status, VDBStatus::Ok);
        QVERIFY(seen.damage.empty());
        const QMap<QString, int> counts = countedByWriter(seen);
        QVERIFY(counts.value(QString::number(reads % writers)) >= least);
        for (auto count = counts.begin(); count != counts.end(); ++count)
            QVERIFY(*count >= before.value(count.key()));
        before = counts;
        ++reads;
    }
    for (const auto &child : children) {
        QCOMPARE(child->wait(), 0);
        QCOMPARE(child->output().size(), commits);
    }
    QFile file(m_path);
    const Seen seen = readStore(&file);
    QCOMPARE(seen.sound.size(), writers * commits);
    QVERIFY(seen.damage.empty());
    figure(u"%1 processes committed %2 each, %3 holders of the lock killed, %4 looks: "
           "none lost, none torn"_s.arg(writers)
               .arg(commits)
               .arg(killedHolders)
               .arg(reads));
}

void tst_sharing::lock_isWaitedForNoLongerThanAllowed()
{
    const Watchdog watchdog("waiting for a lock");
    Child holder(QStringLiteral(SHARER), {m_path, u"hold"_s});
    QVERIFY(holder.readUntil(1));
    QFile file(m_path);
    VDBText store;
    store.setLockTimeout(50ms);
    for (const QString &intent : {toRead(), toWrite()}) {
        store.setKey({}, intent);
        QVERIFY(!store.open(&file));
        QCOMPARE(store.status(), VDBStatus::Locked);
    }
    QVERIFY(!store.create(&file, u"id"_s, 0, QLocale::c(), QString()));
    QCOMPARE(store.status(), VDBStatus::Locked);
}

// Who waits when the holder dies gets the file, as the holder found it.
void tst_sharing::lock_endsWithItsHolder()
{
    const Watchdog watchdog("waiting for a dead process");
    Child holder(QStringLiteral(SHARER), {m_path, u"hold"_s});
    QVERIFY(holder.readUntil(1));
    const QStringList arguments = {m_path, u"commit"_s, u"w"_s, u"1"_s};
    Child waiting(QStringLiteral(SHARER), arguments);
    holder.kill();
    QCOMPARE(holder.wait(), -SIGKILL);
    QCOMPARE(waiting.wait(), 0);
    QFile file(m_path);
    QCOMPARE(readStore(&file).sound.keys(), QStringList{u"w-0"_s});
}

QTEST_GUILESS_MAIN(tst_sharing)
#include "tst_sharing.moc"
