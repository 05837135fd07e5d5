// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QTimer>

using namespace Support;

namespace {

QList<QTimer *> timersOf(const VPrintersDb &database)
{
    return database.findChildren<QTimer *>();
}

/// What the passing of the interval does.
void fire(QTimer *timer)
{
    timer->stop();
    QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

} // namespace

/// The commit that follows the last change.
class tst_timer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void timer_doesNotExistBeforeALoad();
    void timer_doesNotExistAfterAFailedLoad();
    void timer_isSingleShotOfFiveSeconds();
    void timer_startsAtEveryChange();
    void timer_belongsToTheOwnersThreadAfterABackgroundLoad();
    void timer_commitsWhenItFires();
    void timer_makesOneWriteOfABurst();
    void twoLoads_makeTwoTimersAndOneWrite();
    void reindex_addsATimer();
    void volatileChange_startsTheTimerToo();
};

void tst_timer::timer_doesNotExistBeforeALoad()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.insert(printer(u"A"_s));
    QVERIFY(timersOf(database).isEmpty());
}

void tst_timer::timer_doesNotExistAfterAFailedLoad()
{
    VPrintersDb database(static_cast<QIODevice *>(nullptr), QString());
    database.init(false);
    QVERIFY(timersOf(database).isEmpty());
}

void tst_timer::timer_isSingleShotOfFiveSeconds()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QCOMPARE(timersOf(database).size(), 1);
    const QTimer *timer = timersOf(database).first();
    QCOMPARE(timer->interval(), 5000);
    QVERIFY(timer->isSingleShot());
    QVERIFY(!timer->isActive());
    QCOMPARE(timer->parent(), &database);
}

void tst_timer::timer_startsAtEveryChange()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QTimer *timer = timersOf(database).first();
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s}) {
        database.insert(printer(name));
        QVERIFY(timer->isActive());
        timer->stop();
    }
    database.remove(printer(u"unknown"_s));
    QVERIFY(!timer->isActive());
}

void tst_timer::timer_belongsToTheOwnersThreadAfterABackgroundLoad()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(true);
    database.waitForFinished();
    QVERIFY(timersOf(database).isEmpty());
    QCoreApplication::processEvents();
    QCOMPARE(timersOf(database).size(), 1);
    QCOMPARE(timersOf(database).first()->thread(), thread());
    database.insert(printer(u"A"_s));
    QVERIFY(timersOf(database).first()->isActive());
}

void tst_timer::timer_commitsWhenItFires()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    database.insert(printer(u"A"_s));
    fire(timersOf(database).first());
    QCOMPARE(commits.size(), 1);
    QVERIFY(!database.isDirty());
    QCOMPARE(stored(buffer.data()), storedFrom({printer(u"A"_s)}));
}

void tst_timer::timer_makesOneWriteOfABurst()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    QTimer *timer = timersOf(database).first();
    for (int i = 0; i < 20; ++i)
        database.insert(printer(QString::number(i)));
    QCOMPARE(commits.size(), 0);
    timer->setInterval(0);
    QVERIFY(commits.wait());
    QCOMPARE(commits.size(), 1);
    QVERIFY(!timer->isActive());
    QCOMPARE(stored(buffer.data()).size(), 20);
}

void tst_timer::twoLoads_makeTwoTimersAndOneWrite()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    database.init(false);
    QCOMPARE(timersOf(database).size(), 2);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    database.insert(printer(u"A"_s));
    for (QTimer *timer : timersOf(database)) {
        QVERIFY(timer->isActive());
        QCOMPARE(timer->interval(), 5000);
        fire(timer);
    }
    QCOMPARE(commits.size(), 1);
}

void tst_timer::reindex_addsATimer()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QVERIFY(database.reindex());
    QCOMPARE(timersOf(database).size(), 2);
}

void tst_timer::volatileChange_startsTheTimerToo()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, QString());
    database.init(false);
    QSignalSpy commits(&database, &VPrintersDb::committed);
    database.insertVolatile(printer(u"A"_s));
    QTimer *timer = timersOf(database).first();
    QVERIFY(timer->isActive());
    fire(timer);
    QCOMPARE(commits.size(), 0);
}

QTEST_GUILESS_MAIN(tst_timer)
#include "tst_timer.moc"
