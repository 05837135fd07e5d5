// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

using namespace Support;

/// Entries that live in memory only.
class tst_volatile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_buffer = std::make_unique<QBuffer>();
        m_database = std::make_unique<VPrintersDb>(m_buffer.get(), QString());
        m_database->init(false);
        m_changes = std::make_unique<QSignalSpy>(m_database.get(), &VPrintersDb::changed);
    }
    void cleanup()
    {
        m_changes.reset();
        m_database.reset();
        m_buffer.reset();
    }

    void insertVolatile_marksButDoesNotDirty();
    void insertVolatile_skipsAnInvalidDriver();
    void insertVolatile_neverShadowsAPersistentEntry();
    void insertVolatile_ofAnEqualEntryKeepsTheMark();
    void insertVolatile_replacesAChangedVolatileEntry();
    void insertVolatile_takesTheFirstOfTwoWithOneId();
    void insertVolatile_unmarksWhatIsNotInTheList();
    void insertVolatile_ofNothingUnmarksAll();
    void unmarkedEntry_isNeverWritten();
    void unmarkedEntry_isProtectedLikeAPersistentOne();
    void replaceVolatile_dropsWhatIsNotInTheList();
    void replaceVolatile_ofNothingDropsAll();
    void replaceVolatile_countsARemovedEntryAsAChange();
    void replaceVolatile_withTheSameListChangesNothing();
    void insert_makesAVolatileEntryPersistent();
    void remove_keepsTheMark();
    void remove_thenInsertVolatile_isWrittenByTheNextCommit();
    void clearVolatile_dropsMarkedEntriesOnly();
    void clearVolatile_withoutMarksIsSilent();
    void clearVolatile_isASlot();

private:
    bool isThere(const QString &name) const { return m_database->contains(printer(name).dataId()); }
    bool isMarked(const QString &name) const
    {
        return m_database->isVolatile(printer(name).dataId());
    }
    Stored committed()
    {
        m_database->commit();
        return stored(m_buffer->data());
    }

    std::unique_ptr<QBuffer> m_buffer;
    std::unique_ptr<VPrintersDb> m_database;
    std::unique_ptr<QSignalSpy> m_changes;
};

void tst_volatile::insertVolatile_marksButDoesNotDirty()
{
    QVERIFY(m_database->insertVolatile(printers({u"A"_s, u"B"_s})));
    QCOMPARE(m_changes->size(), 1);
    QVERIFY(isThere(u"A"_s) && isMarked(u"A"_s));
    QCOMPARE(m_database->count(), 2);
    QCOMPARE(m_database->volatileCount(), 2);
    QVERIFY(!m_database->isDirty());
    QCOMPARE(committed(), Stored());
}

void tst_volatile::insertVolatile_skipsAnInvalidDriver()
{
    QVERIFY(!m_database->insertVolatile(invalidPrinter(u"A"_s)));
    QCOMPARE(m_changes->size(), 0);
    QVERIFY(!isThere(u"A"_s) && !isMarked(u"A"_s));
}

void tst_volatile::insertVolatile_neverShadowsAPersistentEntry()
{
    m_database->insert(printer(u"A"_s));
    m_changes->clear();
    QVERIFY(!m_database->insertVolatile(renamed(printer(u"A"_s), u"shadow"_s)));
    QCOMPARE(m_changes->size(), 0);
    QVERIFY(!isMarked(u"A"_s));
    QCOMPARE(namesIn(*m_database), QStringList({u"A"_s}));

    QVERIFY(m_database->insertVolatile({renamed(printer(u"A"_s), u"shadow"_s), printer(u"B"_s)}));
    QCOMPARE(namesIn(*m_database), QStringList({u"A"_s, u"B"_s}));
}

void tst_volatile::insertVolatile_ofAnEqualEntryKeepsTheMark()
{
    m_database->insertVolatile(printer(u"A"_s));
    m_changes->clear();
    QVERIFY(!m_database->insertVolatile(printer(u"A"_s)));
    QCOMPARE(m_changes->size(), 0);
    QVERIFY(isThere(u"A"_s) && isMarked(u"A"_s));
}

void tst_volatile::insertVolatile_replacesAChangedVolatileEntry()
{
    m_database->insertVolatile(printer(u"A"_s));
    QVERIFY(m_database->insertVolatile(renamed(printer(u"A"_s), u"other"_s)));
    QCOMPARE(namesIn(*m_database), QStringList({u"other"_s}));
    QVERIFY(isMarked(u"A"_s));
}

void tst_volatile::insertVolatile_takesTheFirstOfTwoWithOneId()
{
    // The marks that protect are those of before the call, so the first of a list is taken for a
    // persistent entry by the second.
    const QList<VPrinterDriver> twins{printer(u"A"_s), renamed(printer(u"A"_s), u"second"_s)};
    m_database->insertVolatile(twins);
    QCOMPARE(namesIn(*m_database), QStringList({u"A"_s}));
    QVERIFY(isMarked(u"A"_s));
    // Marked before, both are volatile, and the last one stays.
    m_database->insertVolatile(twins);
    QCOMPARE(namesIn(*m_database), QStringList({u"second"_s}));
}

void tst_volatile::insertVolatile_unmarksWhatIsNotInTheList()
{
    m_database->insertVolatile(printer(u"A"_s));
    QVERIFY(m_database->insertVolatile(printer(u"B"_s)));
    QVERIFY(isThere(u"A"_s) && !isMarked(u"A"_s));
    QVERIFY(isThere(u"B"_s) && isMarked(u"B"_s));
    QCOMPARE(m_database->count(), 2);
    QCOMPARE(m_database->volatileCount(), 1);
}

void tst_volatile::insertVolatile_ofNothingUnmarksAll()
{
    m_database->insertVolatile(printer(u"A"_s));
    m_changes->clear();
    QVERIFY(!m_database->insertVolatile(QList<VPrinterDriver>()));
    QCOMPARE(m_changes->size(), 0);
    QVERIFY(isThere(u"A"_s) && !isMarked(u"A"_s));
    QCOMPARE(m_database->volatileCount(), 0);
}

void tst_volatile::unmarkedEntry_isNeverWritten()
{
    m_database->insertVolatile(printer(u"A"_s));
    m_database->insertVolatile(printer(u"B"_s));
    m_database->insert(printer(u"C"_s));
    QCOMPARE(committed(), storedFrom({printer(u"C"_s)}));
    m_database->insert(printer(u"A"_s));
    QCOMPARE(committed(), storedFrom(printers({u"A"_s, u"C"_s})));
}

void tst_volatile::unmarkedEntry_isProtectedLikeAPersistentOne()
{
    m_database->insertVolatile(printer(u"A"_s));
    m_database->insertVolatile(printer(u"B"_s));
    QVERIFY(!m_database->insertVolatile(renamed(printer(u"A"_s), u"other"_s)));
    QVERIFY(!isMarked(u"A"_s));
    QCOMPARE(namesIn(*m_database), QStringList({u"A"_s, u"B"_s}));
}

void tst_volatile::replaceVolatile_dropsWhatIsNotInTheList()
{
    m_database->insert(printer(u"persistent"_s));
    m_database->insertVolatile(printer(u"A"_s));
    m_changes->clear();
    QVERIFY(m_database->replaceVolatile(printer(u"B"_s)));
    QCOMPARE(m_changes->size(), 1);
    QVERIFY(!isThere(u"A"_s) && !isMarked(u"A"_s));
    QVERIFY(isThere(u"B"_s) && isMarked(u"B"_s));
    QVERIFY(isThere(u"persistent"_s));
}

void tst_volatile::replaceVolatile_ofNothingDropsAll()
{
    m_database->insertVolatile(printers({u"A"_s, u"B"_s}));
    QVERIFY(m_database->replaceVolatile(QList<VPrinterDriver>()));
    QCOMPARE(m_database->count(), 0);
    QCOMPARE(m_database->volatileCount(), 0);
    QVERIFY(!m_database->isDirty());
    QVERIFY(!m_database->replaceVolatile(QList<VPrinterDriver>()));
}

void tst_volatile::replaceVolatile_countsARemovedEntryAsAChange()
{
    m_database->insertVolatile(printer(u"A"_s));
    m_database->remove(printer(u"A"_s));
    m_changes->clear();
    QVERIFY(m_database->replaceVolatile(QList<VPrinterDriver>()));
    QCOMPARE(m_changes->size(), 1);
    QCOMPARE(m_database->volatileCount(), 0);
}

void tst_volatile::replaceVolatile_withTheSameListChangesNothing()
{
    m_database->replaceVolatile(printers({u"A"_s, u"B"_s}));
    m_changes->clear();
    QVERIFY(!m_database->replaceVolatile(printers({u"B"_s, u"A"_s})));
    QCOMPARE(m_changes->size(), 0);
    QCOMPARE(m_database->volatileCount(), 2);
}

void tst_volatile::insert_makesAVolatileEntryPersistent()
{
    m_database->insertVolatile(printers({u"A"_s, u"B"_s}));
    m_database->insert(printer(u"A"_s));
    QVERIFY(isThere(u"A"_s) && !isMarked(u"A"_s));
    QCOMPARE(m_database->volatileCount(), 1);
    QCOMPARE(committed(), storedFrom({printer(u"A"_s)}));
}

void tst_volatile::remove_keepsTheMark()
{
    m_database->insertVolatile(printer(u"A"_s));
    QVERIFY(m_database->remove(printer(u"A"_s)));
    QVERIFY(!isThere(u"A"_s) && isMarked(u"A"_s));
    QCOMPARE(m_database->volatileCount(), 1);
    QVERIFY(m_database->isDirty());
    QCOMPARE(committed(), Stored());
}

void tst_volatile::remove_thenInsertVolatile_isWrittenByTheNextCommit()
{
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    m_database->remove(printer(u"A"_s));
    m_database->insertVolatile(renamed(printer(u"A"_s), u"volatile"_s));
    QVERIFY(isMarked(u"A"_s));
    QCOMPARE(committed(), storedFrom({renamed(printer(u"A"_s), u"volatile"_s)}));
    QVERIFY(isMarked(u"A"_s));
}

void tst_volatile::clearVolatile_dropsMarkedEntriesOnly()
{
    m_database->insert(printer(u"persistent"_s));
    m_database->commit();
    m_database->insertVolatile(printers({u"A"_s, u"B"_s}));
    m_database->remove(printer(u"B"_s));
    m_database->commit();
    m_changes->clear();
    m_database->clearVolatile();
    QCOMPARE(m_changes->size(), 1);
    QCOMPARE(namesIn(*m_database), QStringList({u"persistent"_s}));
    QCOMPARE(m_database->volatileCount(), 0);
    QVERIFY(!m_database->isDirty());
}

void tst_volatile::clearVolatile_withoutMarksIsSilent()
{
    m_database->insert(printer(u"A"_s));
    m_changes->clear();
    m_database->clearVolatile();
    QCOMPARE(m_changes->size(), 0);
    QCOMPARE(m_database->count(), 1);
}

void tst_volatile::clearVolatile_isASlot()
{
    m_database->insertVolatile(printer(u"A"_s));
    QVERIFY(QMetaObject::invokeMethod(m_database.get(), "clearVolatile"));
    QCOMPARE(m_database->count(), 0);
}

QTEST_GUILESS_MAIN(tst_volatile)
#include "tst_volatile.moc"
