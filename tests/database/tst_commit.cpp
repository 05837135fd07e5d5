// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/Printers.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

using namespace Support;

/// What a commit writes, and when.
class tst_commit : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_device = std::make_unique<FaultyDevice>();
        m_database = std::make_unique<VPrintersDb>(m_device.get(), QString());
        m_database->init(false);
    }
    void cleanup()
    {
        m_database.reset();
        m_device.reset();
    }

    void commit_writesAnEntryUnderItsId();
    void commit_writesTheFieldsInOrder();
    void commit_withNothingDirtyDoesNotOpenTheFile();
    void commit_saysSoOncePerWrite();
    void commit_writesOnlyWhatIsDirty();
    void commit_deletesWhatWasRemoved();
    void commit_deletesWhatBecameInvalid();
    void commit_replacesAChangedEntry();
    void commit_ofAnUnknownIdChangesNothing();
    void commit_doesNotWriteVolatileEntries();
    void commit_beforeAnyLoadNeedsAFile();
    void commit_thatCannotOpenKeepsTheChanges();
    void commit_signsUnderTheKey();

private:
    std::unique_ptr<FaultyDevice> m_device;
    std::unique_ptr<VPrintersDb> m_database;
};

void tst_commit::commit_writesAnEntryUnderItsId()
{
    m_database->insert(printer(u"A"_s));
    QVERIFY(m_database->isDirty());
    m_database->commit();
    QVERIFY(!m_database->isDirty());
    QCOMPARE(stored(m_device->bytes()), storedFrom({printer(u"A"_s)}));
}

void tst_commit::commit_writesTheFieldsInOrder()
{
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    Norvane::Database::VDBText store;
    Norvane::Database::VDBRecord record;
    store.setKey(QString(), u""_s);
    QVERIFY(store.open(m_device.get()));
    store.first(record);
    QStringList keys = record.keys();
    keys.removeAll(Norvane::Database::VDBRecord::cultureKey());
    QCOMPARE(keys, QStringList({u"id"_s, u"driver"_s}));
    QVERIFY(record.checkSignature());
    store.close();
}

void tst_commit::commit_withNothingDirtyDoesNotOpenTheFile()
{
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    QSignalSpy errors(m_database.get(), &VPrintersDb::error);
    const int opens = m_device->calls(FaultyDevice::Open);
    m_database->commit();
    QCOMPARE(m_device->calls(FaultyDevice::Open), opens);
    QCOMPARE(commits.size(), 0);
    QCOMPARE(errors.size(), 0);
}

void tst_commit::commit_saysSoOncePerWrite()
{
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    m_database->insert(printers({u"A"_s, u"B"_s, u"C"_s}));
    m_database->commit();
    m_database->commit();
    QCOMPARE(commits.size(), 1);
    m_database->remove(printer(u"A"_s));
    m_database->commit();
    QCOMPARE(commits.size(), 2);
}

void tst_commit::commit_writesOnlyWhatIsDirty()
{
    m_database->insert(printers({u"A"_s, u"B"_s}));
    m_database->commit();
    const QByteArray before = m_device->bytes();
    m_database->insert(printer(u"C"_s));
    m_database->commit();
    // The file is a log: what stood there stays, and what is new mentions only the new entry.
    QVERIFY(m_device->bytes().startsWith(before));
    const QByteArray added = m_device->bytes().sliced(before.size());
    QVERIFY(added.contains(idText(printer(u"C"_s)).toLatin1()));
    QVERIFY(!added.contains(idText(printer(u"A"_s)).toLatin1()));
    QVERIFY(!added.contains(idText(printer(u"B"_s)).toLatin1()));
}

void tst_commit::commit_deletesWhatWasRemoved()
{
    m_database->insert(printers({u"A"_s, u"B"_s}));
    m_database->commit();
    QVERIFY(m_database->remove(printer(u"A"_s).dataId()));
    m_database->commit();
    QCOMPARE(stored(m_device->bytes()), storedFrom({printer(u"B"_s)}));
}

void tst_commit::commit_deletesWhatBecameInvalid()
{
    m_database->insert(printers({u"A"_s, u"B"_s}));
    m_database->commit();
    m_database->insert(invalidPrinter(u"A"_s));
    QVERIFY(!m_database->contains(printer(u"A"_s).dataId()));
    m_database->commit();
    QCOMPARE(stored(m_device->bytes()), storedFrom({printer(u"B"_s)}));
}

void tst_commit::commit_replacesAChangedEntry()
{
    const VPrinterDriver changed = renamed(printer(u"A"_s), u"other"_s);
    m_database->insert(printer(u"A"_s));
    m_database->commit();
    m_database->insert(changed);
    m_database->commit();
    QCOMPARE(stored(m_device->bytes()), storedFrom({changed}));
}

void tst_commit::commit_ofAnUnknownIdChangesNothing()
{
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    m_database->insert(invalidPrinter(u"never there"_s));
    QVERIFY(m_database->isDirty());
    m_database->commit();
    QVERIFY(!m_database->isDirty());
    QCOMPARE(commits.size(), 1);
    QCOMPARE(stored(m_device->bytes()), Stored());
}

void tst_commit::commit_doesNotWriteVolatileEntries()
{
    m_database->insertVolatile(printer(u"A"_s));
    QVERIFY(!m_database->isDirty());
    m_database->insert(printer(u"B"_s));
    m_database->commit();
    QCOMPARE(stored(m_device->bytes()), storedFrom({printer(u"B"_s)}));
}

void tst_commit::commit_beforeAnyLoadNeedsAFile()
{
    FaultyDevice device;
    VPrintersDb database(&device, QString());
    QSignalSpy errors(&database, &VPrintersDb::error);
    database.insert(printer(u"A"_s));
    database.commit();
    // Only a load creates the file.
    QCOMPARE(errors.size(), 1);
    QVERIFY(database.isDirty());
    QVERIFY(device.bytes().isEmpty());

    FaultyDevice existing(m_device->bytes());
    VPrintersDb second(&existing, QString());
    second.insert(printer(u"A"_s));
    second.commit();
    QCOMPARE(stored(existing.bytes()), storedFrom({printer(u"A"_s)}));
}

void tst_commit::commit_thatCannotOpenKeepsTheChanges()
{
    QSignalSpy errors(m_database.get(), &VPrintersDb::error);
    QSignalSpy commits(m_database.get(), &VPrintersDb::committed);
    m_database->insert(printer(u"A"_s));
    m_device->failAt(FaultyDevice::Open, 1);
    m_database->commit();
    QCOMPARE(errors.size(), 1);
    QCOMPARE(commits.size(), 0);
    QVERIFY(m_database->isDirty());
    QVERIFY(!m_database->isNull());
    m_database->commit();
    QCOMPARE(commits.size(), 1);
    QCOMPARE(stored(m_device->bytes()), storedFrom({printer(u"A"_s)}));
}

void tst_commit::commit_signsUnderTheKey()
{
    QBuffer buffer;
    VPrintersDb database(&buffer, u"key"_s);
    database.init(false);
    database.insert(printer(u"A"_s));
    database.commit();
    QCOMPARE(stored(buffer.data(), u"key"_s), storedFrom({printer(u"A"_s)}));
    QVERIFY(stored(buffer.data(), u"another"_s).contains(u"cannot be opened"_s));
}

QTEST_GUILESS_MAIN(tst_commit)
#include "tst_commit.moc"
