// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VBytes.h>
#include <vcore/VParallel.h>

#include <QtTest/QTest>

#include <atomic>
#include <vector>

using namespace Norvane;

class tst_Parallel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyElementIsVisitedOnce_data();
    void everyElementIsVisitedOnce();
    void piecesHoldAtLeastTheGrain();
    void nothingMeansNoCall();
    void callsMayNest();

    void aPartKeepsItsBufferAlive();
    void theWholeIsTheBufferItself();
};

void tst_Parallel::everyElementIsVisitedOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("grain");
    QTest::newRow("one element") << 1 << 1;
    QTest::newRow("fewer than two grains") << 100 << 64;
    QTest::newRow("exactly two grains") << 128 << 64;
    QTest::newRow("many pieces") << 10007 << 3;
    QTest::newRow("no grain at all") << 1000 << 0;
}

void tst_Parallel::everyElementIsVisitedOnce()
{
    QFETCH(int, count);
    QFETCH(int, grain);
    std::vector<std::atomic<int>> visits(static_cast<std::size_t>(count));
    parallelFor(visits.size(), std::size_t(grain), [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            ++visits[i];
    });
    for (const auto &visited : visits)
        QCOMPARE(visited.load(), 1);
}

void tst_Parallel::piecesHoldAtLeastTheGrain()
{
    std::atomic<std::size_t> smallest = 1000;
    parallelFor(1000, 300, [&](std::size_t begin, std::size_t end) {
        std::size_t known = smallest;
        while (end - begin < known && !smallest.compare_exchange_weak(known, end - begin)) { }
    });
    QVERIFY(smallest >= 300);
}

void tst_Parallel::nothingMeansNoCall()
{
    parallelFor(0, 1, [](std::size_t, std::size_t) { QFAIL("called for nothing"); });
}

void tst_Parallel::callsMayNest()
{
    std::atomic<int> visits = 0;
    parallelFor(8, 1, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            parallelFor(100, 1,
                        [&](std::size_t from, std::size_t to) { visits += int(to - from); });
    });
    QCOMPARE(visits.load(), 800);
}

void tst_Parallel::aPartKeepsItsBufferAlive()
{
    VBytes part;
    {
        const QByteArray buffer(QByteArray("some words ") + QByteArray::number(42));
        const VBytes whole(buffer);
        part = whole.part(whole.view().sliced(5, 5));
    }
    QCOMPARE(part.view(), QByteArrayView("words"));
    QCOMPARE(part.toByteArray(), QByteArray("words"));
    QCOMPARE(part.size(), 5);
    QVERIFY(VBytes().isEmpty());
}

void tst_Parallel::theWholeIsTheBufferItself()
{
    const QByteArray buffer(100, 'x');
    QCOMPARE(static_cast<const void *>(VBytes(buffer).toByteArray().constData()),
             static_cast<const void *>(buffer.constData()));
}

QTEST_APPLESS_MAIN(tst_Parallel)

#include "tst_Parallel.moc"
