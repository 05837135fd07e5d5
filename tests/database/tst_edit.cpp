// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

using namespace Support;

/// Persistent inserts, removals and queries.
class tst_edit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_buffer = std::make_unique<QBuffer>();
        m_database = std::make_unique<VPrintersDb>(m_buffer.get(), QString());
        m_database->init(false);
    }
    void cleanup()
    {
        m_database.reset();
        m_buffer.reset();
    }

    void insert_ofAnEmptyListIsTrueAndSilent();
    void insert_storesCopies();
    void insert_saysSoOnceForAList();
    void insert_ofAnEqualDriverStillMarksIt();
    void insert_replacesTheEntryOfTheSameContentId();
    void insert_ofAnInvalidDriverRemovesTheEntry();
    void insert_ofAnInvalidStrangerIsStillAChange();
    void insert_takesTheLastOfTwoWithOneId();
    void insert_emitsChangedInsideTheLock();
    void remove_ofAnUnknownIdIsFalseAndSilent();
    void removes_saysSoOnceForAList();
    void removes_countsADuplicateOnce();
    void clear_removesEverything();
    void clear_ofAnEmptyDatabaseIsFalseAndSilent();
    void value_ofAnUnknownIdIsAnEmptyDriver();
    void values_comeInAscendingOrderOfTheIds();
    void values_areCopies();

private:
    std::unique_ptr<QBuffer> m_buffer;
    std::unique_ptr<VPrintersDb> m_database;
};

void tst_edit::insert_ofAnEmptyListIsTrueAndSilent()
{
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->insert(QList<VPrinterDriver>()));
    QCOMPARE(changes.size(), 0);
    QVERIFY(!m_database->isDirty());
}

void tst_edit::insert_storesCopies()
{
    VPrinterDriver driver = printer(u"A"_s);
    m_database->insert(driver);
    driver.setName(u"changed outside"_s);
    QCOMPARE(m_database->value(driver).name(), u"A"_s);
}

void tst_edit::insert_saysSoOnceForAList()
{
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->insert(printers({u"A"_s, u"B"_s, u"C"_s})));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_database->count(), 3);
    QVERIFY(m_database->isDirty());
}

void tst_edit::insert_ofAnEqualDriverStillMarksIt()
{
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    m_database->insert(printer(u"A"_s));
    QCOMPARE(changes.size(), 1);
    QVERIFY(m_database->isDirty());
}

void tst_edit::insert_replacesTheEntryOfTheSameContentId()
{
    m_database->insert(printer(u"A"_s));
    m_database->insert(renamed(printer(u"A"_s), u"other"_s));
    QCOMPARE(namesIn(*m_database), QStringList({u"other"_s}));
}

void tst_edit::insert_ofAnInvalidDriverRemovesTheEntry()
{
    m_database->insert(printers({u"A"_s, u"B"_s}));
    m_database->commit();
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->insert(invalidPrinter(u"A"_s)));
    QCOMPARE(changes.size(), 1);
    QVERIFY(!m_database->contains(printer(u"A"_s).dataId()));
    QVERIFY(m_database->isDirty());
    m_database->commit();
    QCOMPARE(stored(m_buffer->data()), storedFrom({printer(u"B"_s)}));
}

void tst_edit::insert_ofAnInvalidStrangerIsStillAChange()
{
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->insert(invalidPrinter(u"A"_s)));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_database->count(), 0);
    QVERIFY(m_database->isDirty());
}

void tst_edit::insert_takesTheLastOfTwoWithOneId()
{
    m_database->insert({printer(u"A"_s), renamed(printer(u"A"_s), u"last"_s)});
    QCOMPARE(namesIn(*m_database), QStringList({u"last"_s}));
    m_database->insert({renamed(printer(u"A"_s), u"first"_s), invalidPrinter(u"A"_s)});
    QCOMPARE(m_database->count(), 0);
}

void tst_edit::insert_emitsChangedInsideTheLock()
{
    // A slot inside the lock sees the change and may edit again.
    int depth = 0;
    connect(m_database.get(), &VPrintersDb::changed, this, [&] {
        if (++depth == 1)
            m_database->insert(printer(u"from the slot"_s));
    });
    m_database->insert(printer(u"A"_s));
    QCOMPARE(depth, 2);
    QCOMPARE(m_database->count(), 2);
}

void tst_edit::remove_ofAnUnknownIdIsFalseAndSilent()
{
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(!m_database->remove(printer(u"B"_s).dataId()));
    QVERIFY(!m_database->remove(printer(u"B"_s)));
    QVERIFY(!m_database->removes(QList<QUuid>()));
    QVERIFY(!m_database->removes(printers({u"B"_s, u"C"_s})));
    QCOMPARE(changes.size(), 0);
    QVERIFY(!m_database->isDirty());
}

void tst_edit::removes_saysSoOnceForAList()
{
    m_database->insert(printers({u"A"_s, u"B"_s, u"C"_s}));
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->removes(printers({u"A"_s, u"unknown"_s, u"B"_s})));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(namesIn(*m_database), QStringList({u"C"_s}));
}

void tst_edit::removes_countsADuplicateOnce()
{
    m_database->insert(printer(u"A"_s));
    const QUuid id = printer(u"A"_s).dataId();
    QVERIFY(m_database->removes(QList<QUuid>{id, id}));
    QVERIFY(!m_database->removes(QList<QUuid>{id, id}));
}

void tst_edit::clear_removesEverything()
{
    m_database->insert(printers({u"A"_s, u"B"_s}));
    m_database->commit();
    m_database->insertVolatile(printer(u"C"_s));
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(m_database->clear());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(m_database->count(), 0);
    QCOMPARE(m_database->volatileCount(), 1);
    m_database->commit();
    QCOMPARE(stored(m_buffer->data()), Stored());
}

void tst_edit::clear_ofAnEmptyDatabaseIsFalseAndSilent()
{
    QSignalSpy changes(m_database.get(), &VPrintersDb::changed);
    QVERIFY(!m_database->clear());
    QCOMPARE(changes.size(), 0);
}

void tst_edit::value_ofAnUnknownIdIsAnEmptyDriver()
{
    QCOMPARE(m_database->value(QUuid::createUuid()), VPrinterDriver(QUuid()));
    QCOMPARE(m_database->value(printer(u"A"_s)), VPrinterDriver(QUuid()));
    QVERIFY(m_database->values().isEmpty());
    QVERIFY(m_database->idList().isEmpty());
}

void tst_edit::values_comeInAscendingOrderOfTheIds()
{
    for (int i = 0; i < 30; ++i)
        m_database->insert(printer(QString::number(i)));
    const QList<QUuid> ids = m_database->idList();
    const QList<VPrinterDriver> values = m_database->values();
    QCOMPARE(ids.size(), 30);
    QCOMPARE(values.size(), 30);
    for (qsizetype i = 0; i < ids.size(); ++i) {
        QVERIFY(i == 0 || ids.at(i - 1) < ids.at(i));
        QCOMPARE(values.at(i).dataId(), ids.at(i));
        QVERIFY(m_database->contains(ids.at(i)));
        QVERIFY(!m_database->isVolatile(ids.at(i)));
    }
}

void tst_edit::values_areCopies()
{
    m_database->insert(printer(u"A"_s));
    VPrinterDriver driver = m_database->value(printer(u"A"_s));
    driver.setName(u"changed outside"_s);
    QCOMPARE(namesIn(*m_database), QStringList({u"A"_s}));
}

QTEST_GUILESS_MAIN(tst_edit)
#include "tst_edit.moc"
