// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Copies of a record share what nobody can reach, and are independent of each other all the same.

#include "support/TestConfig.h"
#include "support/Threads.h"

#include <vcore/VMetadata.h>

#include <QtTest/QTest>

#include <optional>
#include <vector>

using namespace Support;
using Norvane::MetadataFlags;
using Norvane::VMetadata;
using Config = TestConfig<>;

namespace {

const QUuid kAny;

/// A record with two children, one of which has a child; nobody holds a pointer into it.
Config unreachable()
{
    Config child(u"a"_s);
    Config grandchild(u"a1"_s);
    child.insert(&grandchild, false);
    Config config(u"top"_s);
    config.insert(&child, false);
    child.setName(u"b"_s);
    config.insert(&child, false);
    return config;
}

IVDeviceConfig *first(const IVDeviceConfig &config)
{
    return config.values(kAny).first();
}

/// Tells every deletion of a child.
class Mortal : public TestConfig<3>
{
public:
    using TestConfig::TestConfig;
    Norvane::Interfaces::ICloneable *clone() const override { return new Mortal(*this); }
};

} // namespace

class tst_VDeviceConfigCopies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_live = Config::liveCount(); }
    void cleanup() { QCOMPARE(Config::liveCount().load(), m_live); }

    void copies_shareWhatNobodyCanReach();
    void copies_areIndependentInTheirFields();
    void copies_areIndependentWhoeverTookAPointerFirst();
    void copies_areIndependentOfAPointerHandedIn();
    void copies_areIndependentInGrandchildren();
    void copies_leaveChildrenOfTheirOwnAlone();
    void metadata_thatIsKilledByACopyStaysBehind();
    void metadata_ofChildrenThatIsKilledByACopyStaysBehind();
    void metadata_isReplacedByAssignment();
    void assignment_toItselfKeepsPointersAlive();
    void assignment_fromAChildReadsItBeforeItIsGone();
    void assignment_fromAGrandchildRepeatedly();
    void assignment_ofAParentToItsChildMakesNoCircle();
    void copies_areUsedOnSeveralThreadsAtOnce();

private:
    int m_live = 0;
};

void tst_VDeviceConfigCopies::copies_shareWhatNobodyCanReach()
{
    const Config config = unreachable();
    const int before = Config::liveCount();
    const std::vector<Config> copies(100, config);
    QCOMPARE(Config::liveCount() - before, 100); // Not one child was cloned.
    QVERIFY(copies.back() == config);
}

void tst_VDeviceConfigCopies::copies_areIndependentInTheirFields()
{
    Config config = unreachable();
    const Config before = config;
    Config copy = config;
    copy.setName(u"copy"_s);
    config.setDescription(u"original"_s);
    QCOMPARE(copy.description(), QString());
    QCOMPARE(config.name(), u"top"_s);
    QCOMPARE(before.name(), u"top"_s);
    QCOMPARE(before.description(), QString());
}

void tst_VDeviceConfigCopies::copies_areIndependentWhoeverTookAPointerFirst()
{
    const Config reference = unreachable();
    {
        Config config = unreachable();
        Config copy = config;
        first(copy)->setName(u"changed"_s); // Taken from the copy.
        QVERIFY(config == reference);
        QVERIFY(copy != reference);
    }
    {
        Config config = unreachable();
        Config copy = config;
        first(config)->setName(u"changed"_s); // Taken from the original, after the copy.
        QVERIFY(copy == reference);
    }
    {
        Config config = unreachable();
        IVDeviceConfig *const child = first(config); // Before the copy.
        Config copy = config;
        Config second = copy;
        child->setName(u"changed"_s);
        QVERIFY(copy == reference);
        QVERIFY(second == reference);
        QVERIFY(config.contains(child, false));
        QVERIFY(!copy.contains(child, true));
    }
}

void tst_VDeviceConfigCopies::copies_areIndependentOfAPointerHandedIn()
{
    Config config(u"top"_s);
    Config *const child = newConfig(u"child"_s);
    config.insert(child, true); // The caller still knows it.
    const Config copy = config;
    child->setName(u"changed"_s);
    QCOMPARE(childNames(copy), QStringList{u"child"_s});
}

void tst_VDeviceConfigCopies::copies_areIndependentInGrandchildren()
{
    Config config = unreachable();
    IVDeviceConfig *const grandchild = first(*first(config));
    const Config copy = config;
    grandchild->setName(u"changed"_s);
    QVERIFY(copy == unreachable());
    first(*first(copy))->setName(u"changed too"_s);
    QCOMPARE(grandchild->name(), u"changed"_s);
}

void tst_VDeviceConfigCopies::copies_leaveChildrenOfTheirOwnAlone()
{
    const Config config = unreachable();
    Config copy = config;
    copy.insert(newConfig(u"c"_s), true);
    Config fewer = config;
    QVERIFY(fewer.remove(kAny, false));
    QCOMPARE(config.count(kAny, false), 2);
    QCOMPARE(copy.count(kAny, false), 3);
    QCOMPARE(fewer.count(kAny, false), 0);
    QVERIFY(config == unreachable());
}

void tst_VDeviceConfigCopies::metadata_thatIsKilledByACopyStaysBehind()
{
    Config config;
    VMetadata stays(1, u"stays"_s, MetadataFlags::KillOnCopy);
    VMetadata travels(2, u"travels"_s, MetadataFlags::KillOnChanges);
    QVERIFY(config.insertMetadata(&stays, false));
    QVERIFY(config.insertMetadata(&travels, false));
    const Config copy = config;
    Config assigned;
    assigned = config;
    for (const Config *one : {&copy, &std::as_const(assigned)}) {
        QCOMPARE(one->metadataCount(), 1);
        QVERIFY(one->metadata(2)->equalsTo(&travels));
        QVERIFY(one->metadata(2) != config.metadata(2)); // A clone of it.
    }
    QCOMPARE(config.metadataCount(), 2);
}

void tst_VDeviceConfigCopies::metadata_ofChildrenThatIsKilledByACopyStaysBehind()
{
    // Read from JSON, so that nobody has ever held a pointer to the child.
    VDeviceConfig::registerConfig(std::make_unique<Config>().release());
    ++m_live; // The prototype stays.
    Config source(u"top"_s);
    Config child(u"child"_s);
    VMetadata entry(1, u"stays"_s, MetadataFlags::KillOnCopy);
    source.insert(&child, false);
    first(source)->insertMetadata(&entry, false);
    Config config;
    QVERIFY(config.setJsonObject(source.toJsonObject()));
    const Config copy = config;
    const Config second = copy;
    QCOMPARE(first(config)->metadataCount(), 1);
    QCOMPARE(first(copy)->metadataCount(), 0);
    QCOMPARE(first(second)->metadataCount(), 0);
}

void tst_VDeviceConfigCopies::metadata_isReplacedByAssignment()
{
    Config config;
    VMetadata entry(1, u"old"_s);
    QVERIFY(config.insertMetadata(&entry, false));
    config = Config(u"other"_s);
    QCOMPARE(config.metadataCount(), 0);
}

void tst_VDeviceConfigCopies::assignment_toItselfKeepsPointersAlive()
{
    Config config = unreachable();
    IVDeviceConfig *const child = first(config);
    const Config &alias = config;
    config = alias;
    QVERIFY(config.contains(child, false));
    QCOMPARE(child->name(), u"a"_s);
    QVERIFY(config == unreachable());
}

void tst_VDeviceConfigCopies::assignment_fromAChildReadsItBeforeItIsGone()
{
    Config config(u"top"_s);
    auto *const child = newConfig<Mortal>(u"child"_s);
    child->setPayload(u"the child's"_s);
    child->insert(newConfig(u"grandchild"_s), true);
    config.insert(child, true);
    Mortal top(u"top"_s);
    top.insert(config.values(kAny).first(), false);

    auto *const own = static_cast<Mortal *>(first(top));
    top = *own; // The derived class reads the payload after its base was assigned.
    QCOMPARE(top.name(), u"child"_s);
    QCOMPARE(top.payload(), u"the child's"_s);
    QCOMPARE(childNames(top), QStringList{u"grandchild"_s});
    const int before = Mortal::liveCount();
    top = Mortal(u"other"_s);
    QCOMPARE(Mortal::liveCount() - before, -1); // Now the replaced child is gone.
}

void tst_VDeviceConfigCopies::assignment_fromAGrandchildRepeatedly()
{
    Config config(u"top"_s);
    Config *const child = newConfig(u"child"_s);
    Config *const grandchild = newConfig(u"grandchild"_s);
    grandchild->setPayload(u"deep"_s);
    child->insert(grandchild, true);
    config.insert(child, true);
    for (int i = 0; i < 3; ++i) {
        config = *grandchild; // From the second time on it is in what was replaced before.
        QCOMPARE(config.name(), u"grandchild"_s);
        QCOMPARE(config.payload(), u"deep"_s);
        QCOMPARE(config.count(kAny, true), 0);
    }
}

void tst_VDeviceConfigCopies::assignment_ofAParentToItsChildMakesNoCircle()
{
    Config config = unreachable();
    auto *const child = static_cast<Config *>(first(config));
    *child = config;
    QCOMPARE(child->name(), u"top"_s);
    QCOMPARE(config.count(kAny, true), 2 + 4 + 1); // Its copy holds the tree as it was.
    QVERIFY(first(*child)->name() == u"a"_s);
    QVERIFY(first(*child) != child);
}

// Run it under a thread sanitizer.
void tst_VDeviceConfigCopies::copies_areUsedOnSeveralThreadsAtOnce()
{
    std::optional<Config> config = unreachable();
    const QJsonObject expected = config->toJsonObject();
    std::vector<Config> copies(8, *config);
    config.reset(); // The original may go while its copies are in use.
    std::atomic<int> good = 0;
    inThreads(8, [&](int i) {
        Config &copy = copies[size_t(i)];
        const Config second = copy;
        const bool same = copy.toJsonObject() == expected && second == copy;
        first(copy)->setName(u"changed"_s);
        copy.setName(u"changed"_s);
        good += same && second.toJsonObject() == expected ? 1 : 0;
    });
    QCOMPARE(good.load(), 8);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigCopies)
#include "tst_VDeviceConfigCopies.moc"
