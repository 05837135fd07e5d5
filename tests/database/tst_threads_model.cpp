// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Seed.h"
#include "support/Threads.h"
#include "support/Torture.h"
#include "support/Watchdog.h"

#include <QtTest/QTest>

#include <QtCore/QRandomGenerator>
#include <QtCore/QTemporaryDir>

#include <vector>

using namespace Support;

namespace {

constexpr int kThreads = 8;

/// One of the threads that share a database. Its drivers are its own, so that it knows at any time
/// what the database must say of them; the file they share.
class Part
{
public:
    Part(int number, quint32 seed, QString folder)
        : m_number(number)
        , m_random(seed + quint32(number))
        , m_folder(std::move(folder))
    { }

    const QMap<QUuid, VPrinterDriver> &drivers() const { return m_drivers; }
    /// The first thing that was not as it should be; empty when all was.
    const QString &complaint() const { return m_complaint; }

    void live(VPrintersDb &database, int steps)
    {
        for (int i = 0; i < steps && m_complaint.isEmpty(); ++i) {
            const VPrinterDriver driver =
                printer(u"%1/%2"_s.arg(m_number).arg(m_random.bounded(8)));
            step(database, driver, i);
            const QUuid id = driver.dataId();
            expect(database.contains(id) == m_drivers.contains(id), "contains", i);
            expect(database.value(id) == m_drivers.value(id, VPrinterDriver(QUuid())), "value", i);
        }
    }

private:
    void step(VPrintersDb &database, const VPrinterDriver &driver, int number)
    {
        switch (m_random.bounded(16)) {
        case 0:
        case 1:
            database.commit();
            break;
        case 2:
            expect(database.purge(), "purge", number);
            break;
        case 3:
            expect(database.reindex(), "reindex", number);
            break;
        case 4:
            expect(database.backup(m_folder, u"%1.tdb"_s.arg(m_number)), "backup", number);
            break;
        case 5:
            database.waitForFinished();
            break;
        case 6:
        case 7:
        case 8:
        case 9: {
            const bool isThere = m_drivers.remove(driver.dataId()) > 0;
            expect(database.remove(driver) == isThere, "remove", number);
            break;
        }
        default:
            m_drivers[driver.dataId()] = renamed(driver, QString::number(number));
            database.insert(m_drivers[driver.dataId()]);
            break;
        }
    }

    void expect(bool isSo, const char *what, int step)
    {
        if (!isSo && m_complaint.isEmpty())
            m_complaint =
                u"thread %1, step %2: %3"_s.arg(m_number).arg(step).arg(QString::fromLatin1(what));
    }

    const int m_number;
    QRandomGenerator m_random;
    const QString m_folder;
    QMap<QUuid, VPrinterDriver> m_drivers;
    QString m_complaint;
};

} // namespace

/// Random operations from eight threads, each of which compares what it is told with a model.
class tst_threads_model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomOperations_agreeWithTheModel_data();
    void randomOperations_agreeWithTheModel();
};

void tst_threads_model::randomOperations_agreeWithTheModel_data()
{
    QTest::addColumn<bool>("background");
    QTest::newRow("in the background") << true;
    QTest::newRow("in the callers' threads") << false;
}

void tst_threads_model::randomOperations_agreeWithTheModel()
{
    QFETCH(bool, background);
    const Watchdog watchdog(QTest::currentDataTag(), tortureLimit());
    const QTemporaryDir folder(folderInMemory());
    const QString path = folder.filePath(u"live.tdb"_s);
    const quint32 first = seed();
    const int steps = rounds(100, 1'000);
    std::vector<Part> parts;
    parts.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i)
        parts.emplace_back(i, first, folder.path());
    VPrintersDb database(path, u"key"_s);
    database.init(background);
    database.waitForFinished();
    inThreads(kThreads, [&](int i) { parts[std::size_t(i)].live(database, steps); });
    QMap<QUuid, VPrinterDriver> expected;
    for (const Part &part : parts) {
        QVERIFY2(part.complaint().isEmpty(), qPrintable(part.complaint()));
        expected.insert(part.drivers());
    }
    QCOMPARE(database.values(), expected.values());
    database.commit();
    database.waitForFinished();
    QCOMPARE(stored(path, u"key"_s), storedFrom(expected.values()));
    figure(u"%1 operations of 8 threads %2: each agreed with the model"_s.arg(kThreads * steps)
               .arg(QString::fromLatin1(QTest::currentDataTag())));
}

QTEST_GUILESS_MAIN(tst_threads_model)
#include "tst_threads_model.moc"
