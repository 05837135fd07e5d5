// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "PrivateMounts.h"
#include "support/Printers.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <sys/statvfs.h>

using namespace Torture;
using namespace Support;

/// A file system with 0 to 63 free blocks, and operations that need a few of them or many.
class tst_full_disk : public QObject
{
    Q_OBJECT

public:
    /// `refusal` says why there can be no file system of our own; empty when there can.
    explicit tst_full_disk(const QString &refusal)
        : m_refusal(refusal)
    { }

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void commit_isWrittenWholeOrKept();
    void purge_keepsTheFileWhenThereIsNoRoom();
    void create_leavesNothingInTheWay();
    void backup_harmsNothing();

private:
    [[nodiscard]] bool fill(qint64 freeBlocks);
    void empty();
    QString path(const QString &name) const { return m_folder.filePath(name); }

    static constexpr qint64 kBlock = 4096;
    static constexpr int kLevels = 64;

    const QString m_refusal;
    QTemporaryDir m_folder;
    std::optional<Watchdog> m_watchdog;
};

namespace {

/// So many drivers take about as much room as half of the levels have.
constexpr int kMany = 30;

/// Drivers of about a block each; there are as many as kMany and one more.
QList<VPrinterDriver> numbered(int first, int count)
{
    static const QList<VPrinterDriver> all = [] {
        QList<VPrinterDriver> drivers;
        for (int i = 0; i <= kMany; ++i) {
            drivers.append(printer(QString::number(i)));
            drivers.last().setDescription(QString(3'300, u'x'));
        }
        return drivers;
    }();
    return all.mid(first, count);
}

} // namespace

void tst_full_disk::initTestCase()
{
    if (!m_refusal.isEmpty())
        QSKIP(qPrintable(u"no file system of our own: "_s + m_refusal));
    if (!mountMemory(m_folder.path(), 256 * kBlock))
        QSKIP(qPrintable(u"a file system in memory cannot be mounted: "_s
                         + QString::fromLocal8Bit(std::strerror(errno))));
    m_watchdog.emplace("full disks", tortureLimit());
}

void tst_full_disk::cleanupTestCase()
{
    ::umount2(m_folder.path().toLocal8Bit().constData(), MNT_DETACH);
}

/// Leaves so many blocks free.
bool tst_full_disk::fill(qint64 freeBlocks)
{
    struct statvfs state = {};
    if (::statvfs(m_folder.path().toLocal8Bit().constData(), &state) != 0)
        return false;
    const qint64 surplus = qint64(state.f_bavail) - freeBlocks;
    return surplus >= 0 && writeBytes(path(u"ballast"_s), QByteArray(surplus * kBlock, 'x'));
}

void tst_full_disk::empty()
{
    for (const QString &name : QDir(m_folder.path()).entryList(QDir::Files))
        QFile::remove(path(name));
}

void tst_full_disk::commit_isWrittenWholeOrKept()
{
    int refusals = 0;
    for (int level = 0; level < kLevels; ++level) {
        empty();
        VPrintersDb database(path(u"Printers.tdb"_s), u"key"_s);
        database.init(false);
        database.insert(numbered(0, 3));
        database.commit();
        const Stored before = stored(path(u"Printers.tdb"_s), u"key"_s);
        QVERIFY(fill(level));
        database.insert(numbered(1, kMany));
        QSignalSpy errors(&database, &VPrintersDb::error);
        database.commit();
        const Stored found = stored(path(u"Printers.tdb"_s), u"key"_s);
        QCOMPARE(database.isDirty(), errors.size() == 1);
        QCOMPARE(found, errors.isEmpty() ? storedFrom(database.values()) : before);
        refusals += int(errors.size());
        QFile::remove(path(u"ballast"_s));
        database.commit();
        QVERIFY(!database.isDirty());
        QCOMPARE(stored(path(u"Printers.tdb"_s), u"key"_s), storedFrom(database.values()));
    }
    QVERIFY(refusals > 0 && refusals < kLevels);
    figure(
        u"commit on a full disk at %1 fill levels: %2 refused, none torn, none lost"_s.arg(kLevels)
            .arg(refusals));
}

void tst_full_disk::purge_keepsTheFileWhenThereIsNoRoom()
{
    int refusals = 0;
    for (int level = 0; level < kLevels; ++level) {
        empty();
        VPrintersDb database(path(u"Printers.tdb"_s), QString());
        database.init(false);
        database.insert(numbered(0, kMany));
        database.commit();
        database.removes(numbered(0, kMany / 2));
        database.commit();
        QVERIFY(fill(level));
        const bool isPurged = database.purge();
        refusals += isPurged ? 0 : 1;
        QCOMPARE(stored(path(u"Printers.tdb"_s)), storedFrom(database.values()));
        QVERIFY(!QFile::exists(path(u"Printers.tdb.new"_s)));
        QFile::remove(path(u"ballast"_s));
        database.insert(printer(u"more"_s));
        database.commit();
        QVERIFY(!database.isDirty());
        QVERIFY(database.purge());
        QCOMPARE(stored(path(u"Printers.tdb"_s)), storedFrom(database.values()));
    }
    QVERIFY(refusals > 0 && refusals < kLevels);
    figure(u"purge on a full disk at %1 fill levels: %2 refused, no content changed"_s.arg(kLevels)
               .arg(refusals));
}

void tst_full_disk::create_leavesNothingInTheWay()
{
    int refusals = 0;
    for (int level = 0; level < kLevels; ++level) {
        empty();
        QVERIFY(fill(level));
        VPrintersDb database(path(u"Printers.tdb"_s), QString());
        database.init(false);
        refusals += database.isNull() ? 1 : 0;
        QFile::remove(path(u"ballast"_s));
        database.init(false);
        QVERIFY(database.isReady());
        database.insert(printer(u"A"_s));
        database.commit();
        QCOMPARE(stored(path(u"Printers.tdb"_s)), storedFrom({printer(u"A"_s)}));
    }
    QVERIFY(refusals > 0 && refusals < kLevels);
    figure(u"creation on a full disk at %1 fill levels: %2 refused, none in the way of the next"_s
               .arg(kLevels)
               .arg(refusals));
}

void tst_full_disk::backup_harmsNothing()
{
    int unfinished = 0;
    for (int level = 0; level < kLevels; ++level) {
        empty();
        VPrintersDb database(path(u"Printers.tdb"_s), QString());
        database.init(false);
        database.insert(numbered(0, kMany));
        database.commit();
        QVERIFY(fill(level));
        database.backup(m_folder.path(), u"Copy.tdb"_s);
        QCOMPARE(stored(path(u"Printers.tdb"_s)), storedFrom(database.values()));
        QFile::remove(path(u"ballast"_s));
        unfinished += stored(path(u"Copy.tdb"_s)) == storedFrom(database.values()) ? 0 : 1;
        QVERIFY(database.backup(m_folder.path(), u"Copy.tdb"_s));
        QCOMPARE(stored(path(u"Copy.tdb"_s)), storedFrom(database.values()));
    }
    QVERIFY(unfinished > 0 && unfinished < kLevels);
    figure(u"backup onto a full disk at %1 fill levels: %2 copies unfinished, none of them in the "
           "way of the next, no original changed"_s.arg(kLevels)
               .arg(unfinished));
}

int main(int argc, char *argv[])
{
    const QString refusal = enterPrivateMounts();
    const QCoreApplication app(argc, argv);
    tst_full_disk test(refusal);
    return QTest::qExec(&test, argc, argv);
}

#include "tst_full_disk.moc"
