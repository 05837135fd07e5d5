// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/IMetadatable.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Interfaces;
using namespace Qt::StringLiterals;

namespace {

int g_alive = 0;

/// An entry that counts its living kind. Equality is that of key and text.
class Entry final : public IMetadata
{
public:
    Entry(quint64 key, const QString &text, MetadataFlags flags = MetadataFlags::None)
        : m_key(key)
        , m_text(text)
        , m_flags(flags)
    {
        ++g_alive;
    }
    ~Entry() override { --g_alive; }
    Q_DISABLE_COPY_MOVE(Entry)

    ICloneable *clone() const override { return new Entry(m_key, m_text, m_flags); }
    bool equalsTo(const IEquatable *other) const override
    {
        return sameTypeAs(other) && static_cast<const Entry *>(other)->m_key == m_key
            && static_cast<const Entry *>(other)->m_text == m_text;
    }
    quint64 key() const override { return m_key; }
    MetadataFlags flags() const override { return m_flags; }
    QJsonValue value() const override { return m_text; }

private:
    quint64 m_key;
    QString m_text;
    MetadataFlags m_flags;
};

/// Writes down which keys changed, and refuses the entries whose text it is told to.
class Record final : public IMetadatable
{
public:
    void onMetadataChanged(quint64 key) override { changes.append(key); }
    bool acceptMetadata(IMetadata *entry, bool takeOwnership) override
    {
        asked.append(takeOwnership);
        return entry->value() != refused;
    }
    QString textOf(quint64 key) const { return metadata(key)->value().toString(); }

    QList<quint64> changes;
    QList<bool> asked;
    QJsonValue refused;
};

} // namespace

class tst_Metadatable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void insert_refusesNull();
    void insert_leavesARefusedEntryToTheCaller();
    void insert_takesAnEntryOver();
    void insert_storesACloneWithoutOwnership();
    void insert_changesNothingForAnEqualEntry();
    void insert_keepsAnEqualEntryAliveWhenItTakesItOver();
    void insert_ofTheStoredEntryItselfChangesNothing();
    void insert_deletesWhatItReplaces();
    void remove_dropsAndReportsTheKey();
    void remove_doesNothingForAnAbsentKey();
    void clear_deletesEverythingAndReportsKeyZero();
    void copy_takesClonesOfTheEntriesThatMayTravel();
    void copy_skipsWhatIsRefused();
    void list_isInAscendingOrderOfTheKeys();
    void hooks_acceptEverythingByDefault();
    void objects_doNotShareEntriesWithTheirCopies();
};

void tst_Metadatable::cleanup()
{
    QCOMPARE(g_alive, 0);
}

void tst_Metadatable::insert_refusesNull()
{
    Record record;
    QVERIFY(!record.insertMetadata(nullptr, true));
    QVERIFY(!record.insertMetadata(nullptr, false));
    QVERIFY(record.asked.isEmpty());
    QVERIFY(record.changes.isEmpty());
    QCOMPARE(record.metadataCount(), 0);
}

void tst_Metadatable::insert_leavesARefusedEntryToTheCaller()
{
    Record record;
    record.refused = u"secret"_s;
    Entry entry(1, u"secret"_s);
    QVERIFY(!record.insertMetadata(&entry, true));
    QVERIFY(!record.insertMetadata(&entry, false));
    QCOMPARE(record.asked, (QList<bool>{true, false}));
    QVERIFY(!record.containsMetadata(1));
    QVERIFY(record.changes.isEmpty());
}

void tst_Metadatable::insert_takesAnEntryOver()
{
    Record record;
    auto *const entry = new Entry(1, u"a"_s);
    QVERIFY(record.insertMetadata(entry, true));
    QCOMPARE(record.metadata(1), entry);
    QVERIFY(record.containsMetadata(1));
    QCOMPARE(record.metadataCount(), 1);
    QCOMPARE(record.changes, QList<quint64>{1});
    QCOMPARE(g_alive, 1);
}

void tst_Metadatable::insert_storesACloneWithoutOwnership()
{
    Record record;
    {
        Entry entry(1, u"a"_s);
        QVERIFY(record.insertMetadata(&entry, false));
        QVERIFY(record.metadata(1) != &entry);
        QVERIFY(record.metadata(1)->equalsTo(&entry));
    }
    QCOMPARE(record.textOf(1), u"a"_s);
    QCOMPARE(g_alive, 1);
}

void tst_Metadatable::insert_changesNothingForAnEqualEntry()
{
    Record record;
    Entry entry(1, u"a"_s);
    QVERIFY(record.insertMetadata(&entry, false));
    const IMetadata *const stored = record.metadata(1);
    record.changes.clear();
    Entry equal(1, u"a"_s, MetadataFlags::KillOnSave);
    QVERIFY(record.insertMetadata(&equal, false));
    QCOMPARE(record.metadata(1), stored);
    QVERIFY(record.changes.isEmpty());
}

// Whoever handed an entry over may go on using it, whether or not it was needed.
void tst_Metadatable::insert_keepsAnEqualEntryAliveWhenItTakesItOver()
{
    Record record;
    QVERIFY(record.insertMetadata(new Entry(1, u"a"_s), true));
    auto *const equal = new Entry(1, u"a"_s);
    QVERIFY(record.insertMetadata(equal, true));
    QCOMPARE(g_alive, 2);
    QVERIFY(record.metadata(1) != equal);
    QCOMPARE(equal->value().toString(), u"a"_s);
    record.clearMetadata();
    QCOMPARE(g_alive, 0);
}

void tst_Metadatable::insert_ofTheStoredEntryItselfChangesNothing()
{
    Record record;
    auto *const entry = new Entry(1, u"a"_s);
    QVERIFY(record.insertMetadata(entry, true));
    QVERIFY(record.insertMetadata(entry, true));
    QVERIFY(record.insertMetadata(record.metadata(1), false));
    QCOMPARE(record.metadata(1), entry);
    QCOMPARE(record.changes, QList<quint64>{1});
    QCOMPARE(g_alive, 1);
}

void tst_Metadatable::insert_deletesWhatItReplaces()
{
    Record record;
    QVERIFY(record.insertMetadata(new Entry(1, u"a"_s), true));
    QVERIFY(record.insertMetadata(new Entry(1, u"b"_s), true));
    QCOMPARE(g_alive, 1);
    Entry third(1, u"c"_s);
    QVERIFY(record.insertMetadata(&third, false));
    QCOMPARE(g_alive, 2);
    QCOMPARE(record.textOf(1), u"c"_s);
    QCOMPARE(record.metadataCount(), 1);
    QCOMPARE(record.changes, (QList<quint64>{1, 1, 1}));
}

void tst_Metadatable::remove_dropsAndReportsTheKey()
{
    Record record;
    QVERIFY(record.insertMetadata(new Entry(1, u"a"_s), true));
    QVERIFY(record.insertMetadata(new Entry(2, u"b"_s), true));
    record.changes.clear();
    record.removeMetadata(1);
    QVERIFY(!record.containsMetadata(1));
    QCOMPARE(record.metadata(1), nullptr);
    QVERIFY(record.containsMetadata(2));
    QCOMPARE(record.changes, QList<quint64>{1});
}

void tst_Metadatable::remove_doesNothingForAnAbsentKey()
{
    Record record;
    record.removeMetadata(1);
    QVERIFY(record.changes.isEmpty());
}

void tst_Metadatable::clear_deletesEverythingAndReportsKeyZero()
{
    Record record;
    QVERIFY(record.insertMetadata(new Entry(1, u"a"_s), true));
    QVERIFY(record.insertMetadata(new Entry(2, u"b"_s), true));
    record.changes.clear();
    record.clearMetadata();
    QCOMPARE(g_alive, 0);
    QCOMPARE(record.metadataCount(), 0);
    QVERIFY(record.metadataList().isEmpty());
    QCOMPARE(record.changes, QList<quint64>{0});
}

void tst_Metadatable::copy_takesClonesOfTheEntriesThatMayTravel()
{
    Record source;
    QVERIFY(source.insertMetadata(new Entry(1, u"free"_s), true));
    QVERIFY(source.insertMetadata(new Entry(2, u"saved"_s, MetadataFlags::KillOnSave), true));
    QVERIFY(source.insertMetadata(new Entry(3, u"bound"_s, MetadataFlags::KillOnCopy), true));
    QVERIFY(source.insertMetadata(new Entry(4, u"brief"_s, MetadataFlags::Volatile), true));
    Record target;
    target.copyMetadata(source.metadataList() + QList<IMetadata *>{nullptr},
                        MetadataFlags::KillOnCopy);
    QCOMPARE(target.metadataCount(), 2);
    QCOMPARE(target.textOf(1), u"free"_s);
    QCOMPARE(target.textOf(2), u"saved"_s);
    QVERIFY(target.metadata(1) != source.metadata(1));
    QCOMPARE(source.metadataCount(), 4);
}

void tst_Metadatable::copy_skipsWhatIsRefused()
{
    Record source;
    QVERIFY(source.insertMetadata(new Entry(1, u"secret"_s), true));
    QVERIFY(source.insertMetadata(new Entry(2, u"open"_s), true));
    Record target;
    target.refused = u"secret"_s;
    target.copyMetadata(source.metadataList(), MetadataFlags::None);
    QCOMPARE(target.changes, QList<quint64>{2});
    QVERIFY(!target.asked.contains(true));
}

void tst_Metadatable::list_isInAscendingOrderOfTheKeys()
{
    constexpr quint64 kLargestKey = std::numeric_limits<quint64>::max();
    Record record;
    for (const quint64 key : {kLargestKey, quint64(5), quint64(0), quint64(7)})
        QVERIFY(record.insertMetadata(new Entry(key, u"a"_s), true));
    QList<quint64> keys;
    for (const IMetadata *entry : record.metadataList())
        keys.append(entry->key());
    QCOMPARE(keys, (QList<quint64>{0, 5, 7, kLargestKey}));
}

void tst_Metadatable::hooks_acceptEverythingByDefault()
{
    IMetadatable plain;
    QVERIFY(plain.acceptMetadata(nullptr, true));
    plain.onMetadataChanged(1);
    QVERIFY(plain.insertMetadata(new Entry(1, u"a"_s), true));
    QCOMPARE(plain.metadataCount(), 1);
}

void tst_Metadatable::objects_doNotShareEntriesWithTheirCopies()
{
    Record record;
    QVERIFY(record.insertMetadata(new Entry(1, u"a"_s), true));
    Record copy(record);
    QCOMPARE(copy.metadataCount(), 0);
    QVERIFY(copy.insertMetadata(new Entry(2, u"b"_s), true));
    copy = record;
    QCOMPARE(copy.metadataCount(), 1);
    QCOMPARE(copy.textOf(2), u"b"_s);
}

QTEST_GUILESS_MAIN(tst_Metadatable)
#include "tst_Metadatable.moc"
