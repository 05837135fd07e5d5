// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#if defined(__linux__)
#include "support/FileCalls.h"
#endif
#include "support/Store.h"

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <atomic>
#include <cstdlib>

// A sanitizer has an allocator of its own, which is not to be replaced.
#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define COUNTS_ALLOCATIONS 1
#else
#define COUNTS_ALLOCATIONS 0
#endif

namespace {

std::atomic<int> allocations = 0;

} // namespace

#if COUNTS_ALLOCATIONS
// NOLINTBEGIN(bugprone-reserved-identifier): the system's functions have the system's names.
extern "C" {

void *__libc_malloc(std::size_t size);
void *__libc_realloc(void *memory, std::size_t size);

void *malloc(std::size_t size) noexcept
{
    ++allocations;
    return __libc_malloc(size);
}

void *realloc(void *memory, std::size_t size) noexcept
{
    ++allocations;
    return __libc_realloc(memory, size);
}

} // extern "C"
// NOLINTEND(bugprone-reserved-identifier)
#endif

using namespace Support;

namespace {

/// A device that counts what is written to it.
template<typename Base>
class Counting : public Base
{
public:
    using Base::Base;

    qint64 written() const { return m_written; }
    int writes() const { return m_writes; }
    void forget() { m_written = m_writes = 0; }

protected:
    qint64 writeData(const char *data, qint64 size) override
    {
        ++m_writes;
        m_written += size;
        return Base::writeData(data, size);
    }

private:
    qint64 m_written = 0;
    int m_writes = 0;
};

QByteArray storeOf(int count)
{
    QMap<QString, QString> batch;
    for (int i = 0; i < count; ++i)
        batch.insert(QString::number(i), QString(1000, u'x'));
    return storeWith({batch});
}

/// One batch of `count` records that are known already.
void commitTo(VDBText &store, QIODevice *device, int count)
{
    store.setKey({}, toWrite());
    QVERIFY(store.open(device));
    for (int i = 0; i < count; ++i)
        store.insert(record(QString::number(i), QString(1000, u'y')));
    store.close();
    QVERIFY(store.wasDurable());
}

} // namespace

/// What a commit costs, in figures that are the same on every machine.
class tst_VDBTextCost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commit_writesOnceAndNoMoreThanItsRecords();
    void commit_ofOneCostsTheSameInAnyFile();
    void commit_growsAFileSeldom();
    void commit_makesFewCalls();
};

void tst_VDBTextCost::commit_writesOnceAndNoMoreThanItsRecords()
{
    for (const int stored : {200, 5000}) {
        Counting<FaultyDevice> device(storeOf(stored));
        for (const int count : {1, 100}) {
            device.forget();
            const int syncs = device.calls(FaultyDevice::Sync);
            VDBText store;
            commitTo(store, &device, count);
            QCOMPARE(device.writes(), 2); // The batch, and its seal.
            QCOMPARE(device.calls(FaultyDevice::Sync), syncs + 1);
            QVERIFY(device.written() > qint64(count) * 1000);
            QVERIFY(device.written() < 200 + qint64(count) * 1100);
        }
    }
}

void tst_VDBTextCost::commit_ofOneCostsTheSameInAnyFile()
{
    QTemporaryDir folder;
    QList<qint64> written;
    QList<int> allocated;
    for (const int stored : {200, 5000}) {
        Counting<QFile> file(folder.filePath(QString::number(stored)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray bytes = storeOf(stored) + QByteArray(20'000, '\n');
        QVERIFY(file.write(bytes) == bytes.size());
        file.close();
        VDBText store;
        commitTo(store, &file, 1); // Reads the file.
        int least = INT_MAX; // Now and then a table of the index grows.
        for (int i = 0; i < 5; ++i) {
            file.forget();
            const int before = allocations;
            commitTo(store, &file, 1);
            least = std::min(least, allocations - before);
        }
        written.append(file.written());
        allocated.append(least);
    }
    QCOMPARE(written[0], written[1]);
    QCOMPARE(allocated[0] > 0, bool(COUNTS_ALLOCATIONS));
    QCOMPARE(allocated[0], allocated[1]);
}

void tst_VDBTextCost::commit_growsAFileSeldom()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray bytes = storeOf(1000);
    QVERIFY(file.write(bytes) == bytes.size());
    file.close();
    VDBText store;
    int growths = 0;
    for (int i = 0; i < 200; ++i) {
        const qint64 before = file.size();
        commitTo(store, &file, 1);
        growths += file.size() != before;
    }
    // 200 batches of about 1.3 kB, in steps of 64 KiB.
    QVERIFY2(growths <= 5, qPrintable(QString::number(growths)));
}

// Through a QFile it would be half as many again. None of these asks for the file's times, as all
// functions but statx() do: that would give the sync more to write.
void tst_VDBTextCost::commit_makesFewCalls()
{
#if defined(__linux__)
    QTemporaryDir folder;
    QFile file(folder.filePath(u"a.tdb"_s));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray bytes = storeOf(100) + QByteArray(20'000, '\n');
    QVERIFY(file.write(bytes) == bytes.size());
    file.close();
    VDBText store;
    commitTo(store, &file, 1); // Reads the file.
    QByteArrayList calls;
    FileCalls::watch(folder.path().toStdString());
    FileCalls::setJudge([&calls](const FileCall &call) {
        calls.append(QByteArray(call.name).replace("64", ""));
        return FileCallFate();
    });
    commitTo(store, &file, 1);
    FileCalls::setJudge(nullptr);
    const QByteArrayList expected = {"statx",  "open",   "flock",
                                     "statx",  "statx", // The file at the path, and the lock on it.
                                     "statx",  "pread", // It is as it was left.
                                     "statx",  "pwrite", "fdatasync",
                                     "pwrite", "statx", // The batch, and its seal.
                                     "flock",  "close"};
    QCOMPARE(calls, expected);
#endif
}

QTEST_GUILESS_MAIN(tst_VDBTextCost)
#include "tst_VDBTextCost.moc"
