// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Seed.h"
#include "support/Store.h"
#include "support/Torture.h"

#include <QtTest/QTest>

using namespace Support;

class tst_VDBTextKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void key_opensWhatItSigned();
    void key_ofAnotherOpensNothing();
    void key_isRefusedByAStoreWithoutOne();
    void emptyKey_readsAnyStore();
    void emptyKey_isRefusedForWriting();
    void changedKey_readsAnew();
    void forgedRecord_isNotAccepted();
    void key_isGivenBack();
};

void tst_VDBTextKeys::key_opensWhatItSigned()
{
    const QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}}}, u"schlüssel"_s);
    const Seen seen = readStore(bytes, u"schlüssel"_s);
    QCOMPARE(seen.sound.size(), 1);
    QVERIFY(seen.damage.empty());
    QVERIFY(!bytes.contains("schl"));
}

void tst_VDBTextKeys::key_ofAnotherOpensNothing()
{
    const QByteArray before = storeWith({{{u"A"_s, u"x"_s}}}, u"right"_s);
    QByteArray bytes = before;
    QBuffer buffer(&bytes);
    QRandomGenerator random(seed());
    const int keys = rounds(1'000, 100'000);
    for (int i = 0; i < keys; ++i) {
        const QString key = QString::number(random.generate64(), 36);
        QCOMPARE(readStore(&buffer, key).status, VDBStatus::WrongKey);
        QVERIFY(!commit(&buffer, {{u"B"_s, u"y"_s}}, key));
        VDBText store;
        QVERIFY(!createStore(store, &buffer, key));
    }
    QCOMPARE(bytes, before);
    figure(u"%1 random keys: 0 opened a store, 0 changed a byte of it"_s.arg(keys));
}

void tst_VDBTextKeys::key_isRefusedByAStoreWithoutOne()
{
    QCOMPARE(readStore(storeWith({{{u"A"_s, u"x"_s}}}), u"key"_s).status, VDBStatus::WrongKey);
}

void tst_VDBTextKeys::emptyKey_readsAnyStore()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}}}, u"key"_s);
    QCOMPARE(readStore(bytes).sound.size(), 1);
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toRead());
    QVERIFY(store.open(&buffer));
    QVERIFY(store.isKeyed());
    QVERIFY(!store.insert(record(u"B"_s, u"y"_s)));
    QVERIFY(!store.remove(u"A"_s));
}

void tst_VDBTextKeys::emptyKey_isRefusedForWriting()
{
    const QByteArray before = storeWith({{{u"A"_s, u"x"_s}}}, u"key"_s);
    QByteArray bytes = before;
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey({}, toWrite());
    QVERIFY(!store.open(&buffer));
    QCOMPARE(store.status(), VDBStatus::KeyRequired);
    QCOMPARE(bytes, before);
}

void tst_VDBTextKeys::changedKey_readsAnew()
{
    QByteArray bytes = storeWith({{{u"A"_s, u"x"_s}}}, u"key"_s);
    QBuffer buffer(&bytes);
    VDBText store;
    store.setKey(u"key"_s, toRead());
    QVERIFY(store.open(&buffer));
    store.close();
    store.setKey(u"other"_s, toRead());
    QVERIFY(!store.open(&buffer));
    QCOMPARE(store.status(), VDBStatus::WrongKey);
}

// Whoever has no key can compute the sums, but not the codes.
void tst_VDBTextKeys::forgedRecord_isNotAccepted()
{
    const QByteArray header = storeWith({}, u"key"_s);
    const QByteArray unkeyed = storeWith({{{u"A"_s, u"forged"_s}}});
    const QByteArray forged = header + unkeyed.mid(storeWith({}).size());
    QCOMPARE(readStore(forged).sound.size(), 1);
    const Seen seen = readStore(forged, u"key"_s);
    QVERIFY(seen.sound.isEmpty());
    QVERIFY(seen.hears(VDBDamage::Reason::BadSignature));
}

void tst_VDBTextKeys::key_isGivenBack()
{
    VDBText store;
    QVERIFY(store.key().isEmpty());
    store.setKey(u"key"_s, toWrite());
    QCOMPARE(store.key(), u"key"_s);
}

QTEST_GUILESS_MAIN(tst_VDBTextKeys)
#include "tst_VDBTextKeys.moc"
