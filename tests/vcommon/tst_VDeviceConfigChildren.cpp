// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/TestConfig.h"

#include <QtTest/QTest>

using namespace Support;
using Config = TestConfig<>;

namespace {

const QUuid kAny;

/// A tree: a and b of one kind, o of another, and below a two of either kind, a1 and ao.
Config family()
{
    Config config(u"top"_s);
    Config *a = newConfig(u"a"_s);
    a->insert({newConfig(u"a1"_s), newConfig<OtherConfig>(u"ao"_s)});
    config.insert({a, newConfig<OtherConfig>(u"o"_s), newConfig(u"b"_s)});
    return config;
}

IVDeviceConfig *childOf(const IVDeviceConfig &config, const QString &name)
{
    for (IVDeviceConfig *child : config.values(kAny)) {
        if (child->name() == name)
            return child;
    }
    return nullptr;
}

} // namespace

class tst_VDeviceConfigChildren : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_live = Config::liveCount(); }
    void cleanup() { QCOMPARE(Config::liveCount().load(), m_live); } // Nothing leaks.

    void insert_takesTheObjectOver();
    void insert_storesACloneWhenItDoesNotTakeOver();
    void insert_ofAListTakesEveryObjectOver();
    void insert_refusesWhatWouldMakeACircle();
    void insert_refusesToTakeOverTwice();
    void count_isOfTheKindAndTheDepthAskedFor_data();
    void count_isOfTheKindAndTheDepthAskedFor();
    void contains_comparesPointersByIdentity();
    void values_areTheDirectChildrenInOrder();
    void remove_ofAKindDeletesThem_data();
    void remove_ofAKindDeletesThem();
    void remove_ofAnObjectDeletesIt();

private:
    int m_live = 0;
};

void tst_VDeviceConfigChildren::insert_takesTheObjectOver()
{
    Config config;
    Config *child = newConfig(u"child"_s);
    config.insert(child, true);
    QCOMPARE(config.values(kAny), QList<IVDeviceConfig *>{child});
    child->setName(u"renamed"_s); // It is the child itself.
    QCOMPARE(childNames(config), QStringList{u"renamed"_s});
}

void tst_VDeviceConfigChildren::insert_storesACloneWhenItDoesNotTakeOver()
{
    Config config;
    Config child(u"child"_s);
    config.insert(&child, false);
    child.setName(u"renamed"_s);
    QCOMPARE(childNames(config), QStringList{u"child"_s});
    QVERIFY(!config.contains(&child, true));
    config.insert(&child, false); // Again: another clone.
    QCOMPARE(childNames(config), (QStringList{u"child"_s, u"renamed"_s}));
    config.insert(config.values(kAny).first(), false); // Also of a child.
    QCOMPARE(config.count(kAny, false), 3);
}

void tst_VDeviceConfigChildren::insert_ofAListTakesEveryObjectOver()
{
    Config config;
    Config *a = newConfig(u"a"_s);
    OtherConfig *o = newConfig<OtherConfig>(u"o"_s);
    config.insert({a, nullptr, o, a});
    QCOMPARE(config.values(kAny), (QList<IVDeviceConfig *>{a, o}));
}

void tst_VDeviceConfigChildren::insert_refusesWhatWouldMakeACircle()
{
    Config config(u"top"_s);
    Config *child = newConfig(u"child"_s);
    Config *grandchild = newConfig(u"grandchild"_s);
    child->insert(grandchild, true);
    config.insert(child, true);
    const QJsonObject before = config.toJsonObject();
    for (const bool takeOwnership : {true, false}) {
        config.insert(nullptr, takeOwnership);
        config.insert(&config, takeOwnership);
        child->insert(&config, takeOwnership);
        grandchild->insert(&config, takeOwnership);
        grandchild->insert(child, takeOwnership);
    }
    QCOMPARE(config.toJsonObject(), before);
}

void tst_VDeviceConfigChildren::insert_refusesToTakeOverTwice()
{
    Config config = family();
    IVDeviceConfig *const a = childOf(config, u"a"_s);
    IVDeviceConfig *const a1 = childOf(*a, u"a1"_s);
    const QJsonObject before = config.toJsonObject();
    config.insert(a, true);
    config.insert(a1, true); // A child's child has an owner too.
    QCOMPARE(config.toJsonObject(), before);
}

void tst_VDeviceConfigChildren::count_isOfTheKindAndTheDepthAskedFor_data()
{
    QTest::addColumn<QUuid>("kind");
    QTest::addColumn<bool>("deep");
    QTest::addColumn<int>("count");
    QTest::newRow("any kind") << kAny << false << 3;
    QTest::newRow("any kind, deep") << kAny << true << 5;
    QTest::newRow("a kind") << Config::kind() << false << 2;
    QTest::newRow("a kind, deep") << Config::kind() << true << 3;
    QTest::newRow("the other kind") << OtherConfig::kind() << false << 1;
    QTest::newRow("the other kind, deep") << OtherConfig::kind() << true << 2;
    QTest::newRow("a kind that is not there") << TestConfig<2>::kind() << true << 0;
}

void tst_VDeviceConfigChildren::count_isOfTheKindAndTheDepthAskedFor()
{
    QFETCH(const QUuid, kind);
    QFETCH(const bool, deep);
    QFETCH(const int, count);
    const Config config = family();
    QCOMPARE(config.count(kind, deep), count);
    QCOMPARE(config.contains(kind, deep), count > 0);
}

void tst_VDeviceConfigChildren::contains_comparesPointersByIdentity()
{
    Config config = family();
    IVDeviceConfig *const a = childOf(config, u"a"_s);
    IVDeviceConfig *const a1 = childOf(*a, u"a1"_s);
    Config twin(u"b"_s);
    QVERIFY(config.contains(a, false));
    QVERIFY(config.contains(a, true));
    QVERIFY(!config.contains(a1, false));
    QVERIFY(config.contains(a1, true));
    QVERIFY(!config.contains(&twin, true)); // Equal to a child is not a child.
    QVERIFY(!config.contains(&config, true));
    QVERIFY(!config.contains(static_cast<IVDeviceConfig *>(nullptr), true));
}

void tst_VDeviceConfigChildren::values_areTheDirectChildrenInOrder()
{
    const Config config = family();
    QCOMPARE(childNames(config), (QStringList{u"a"_s, u"o"_s, u"b"_s}));
    const auto ofKind = config.values(Config::kind());
    QCOMPARE(ofKind.size(), 2);
    QCOMPARE(ofKind.first()->name(), u"a"_s);
    QCOMPARE(ofKind.last()->name(), u"b"_s);
    QVERIFY(config.values(TestConfig<2>::kind()).isEmpty());
    QCOMPARE(config.values(kAny), config.values(kAny)); // The same objects each time.
}

void tst_VDeviceConfigChildren::remove_ofAKindDeletesThem_data()
{
    QTest::addColumn<QUuid>("kind");
    QTest::addColumn<bool>("deep");
    QTest::addColumn<bool>("removed");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<int>("leftDeep");
    const QStringList all{u"a"_s, u"o"_s, u"b"_s};
    QTest::newRow("any kind") << kAny << false << true << QStringList() << 0;
    QTest::newRow("a kind") << Config::kind() << false << true << QStringList{u"o"_s} << 1;
    QTest::newRow("the other kind")
        << OtherConfig::kind() << false << true << QStringList{u"a"_s, u"b"_s} << 4;
    QTest::newRow("the other kind, deep")
        << OtherConfig::kind() << true << true << QStringList{u"a"_s, u"b"_s} << 3;
    QTest::newRow("a kind that is not there") << TestConfig<2>::kind() << true << false << all << 5;
}

void tst_VDeviceConfigChildren::remove_ofAKindDeletesThem()
{
    QFETCH(const QUuid, kind);
    QFETCH(const bool, deep);
    Config config = family();
    QTEST(config.remove(kind, deep), "removed");
    QTEST(childNames(config), "left");
    QTEST(config.count(kAny, true), "leftDeep");
    QVERIFY(!config.remove(kind, deep));
}

void tst_VDeviceConfigChildren::remove_ofAnObjectDeletesIt()
{
    Config config = family();
    IVDeviceConfig *const a = childOf(config, u"a"_s);
    IVDeviceConfig *const a1 = childOf(*a, u"a1"_s);
    Config stranger(u"b"_s);
    QVERIFY(!config.remove(&stranger, true));
    QVERIFY(!config.remove(static_cast<IVDeviceConfig *>(nullptr), true));
    QVERIFY(!config.remove(a1, false)); // No direct child.
    QVERIFY(config.remove(a1, true));
    QCOMPARE(config.count(kAny, true), 4);
    QVERIFY(config.remove(a, false));
    QCOMPARE(childNames(config), (QStringList{u"o"_s, u"b"_s}));
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigChildren)
#include "tst_VDeviceConfigChildren.moc"
