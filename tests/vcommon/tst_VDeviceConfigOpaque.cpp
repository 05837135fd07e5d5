// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Children of a kind that is not registered, as an older program meets them: nothing is lost.

#include "support/TestConfig.h"

#include <vcore/VMetadata.h>

#include <QtCore/QJsonArray>
#include <QtTest/QTest>

using namespace Support;
using Norvane::MetadataFlags;
using Norvane::VMetadata;
using Config = TestConfig<>;

namespace {

/// A record of a kind that nobody knows, with more keys than we would write.
QJsonObject stranger()
{
    return {
        {"id"_L1, u"{0c1b7a11-6f4e-4d6a-9d55-2a0c5c1b7a12}"_s},
        {"deviceId"_L1, u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s},
        {"name"_L1, u"Laser"_s},
        {"version"_L1, u"9.8.7"_s},
        {"dateTime"_L1, u"2026-11-21T10:30:00+01:00"_s},
        {"config"_L1, QJsonArray{1, u"no object"_s}},
        {"children"_L1, QJsonArray{5, QJsonObject{{"id"_L1, Config::kind().toString()}}}},
        {"metadata"_L1, QJsonArray{QJsonObject{{"key"_L1, u"5"_s}, {"flags"_L1, u"KillOnCopy"_s}}}},
        {"colour"_L1, u"red"_s}};
}

Config parentOf(const QJsonArray &children)
{
    Config config(u"parent"_s);
    QJsonObject envelope = config.toJsonObject();
    envelope.insert("children"_L1, children);
    config.setJsonObject(envelope);
    return config;
}

QJsonArray childrenOf(const Config &config)
{
    return config.toJsonObject().value("children"_L1).toArray();
}

} // namespace

class tst_VDeviceConfigOpaque : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void child_isWrittenBackUnchanged_data();
    void child_isWrittenBackUnchanged();
    void child_showsTheFieldsOfItsEnvelope();
    void child_isCountedAndRemoved();
    void child_isComparedByWhatItHolds();
    void child_takesWhatIsSetLater();
    void child_takesMoreChildrenAndMetadata();
    void child_readsAnotherRecordOfItsKind();
    void copies_areIndependent();
};

void tst_VDeviceConfigOpaque::initTestCase()
{
    VDeviceConfig::registerConfig(std::make_unique<Config>().release());
    auto refusing = std::make_unique<OtherConfig>();
    refusing->setRefuses(true);
    VDeviceConfig::registerConfig(refusing.release());
}

void tst_VDeviceConfigOpaque::child_isWrittenBackUnchanged_data()
{
    QTest::addColumn<QJsonObject>("child");
    QJsonObject object = stranger();
    QTest::newRow("of a kind that nobody knows") << object;
    object.remove("id"_L1);
    QTest::newRow("without a kind") << object;
    object.insert("id"_L1, 5);
    QTest::newRow("of a kind that is a number") << object;
    object.insert("id"_L1, u"laser"_s);
    QTest::newRow("of a kind that is no id") << object;
    object.insert("id"_L1, OtherConfig::kind().toString());
    QTest::newRow("that its class refuses") << object;
    QTest::newRow("with nothing in it") << QJsonObject();
    QTest::newRow("with ill-typed keys")
        << QJsonObject{{"name"_L1, 5},        {"version"_L1, QJsonArray()},
                       {"deviceId"_L1, true}, {"dateTime"_L1, u"never"_s},
                       {"children"_L1, 1},    {"metadata"_L1, 1}};
}

void tst_VDeviceConfigOpaque::child_isWrittenBackUnchanged()
{
    QFETCH(const QJsonObject, child);
    const Config known(u"known"_s);
    const QJsonArray children{child, known.toJsonObject(), child};
    const Config config = parentOf(children);
    QCOMPARE(childrenOf(config), children);
    const Config copy = config;
    QCOMPARE(copy.values(QUuid()).size(), 3); // From here on it has children of its own.
    QCOMPARE(childrenOf(copy), children);
    QVERIFY(copy == config);
}

void tst_VDeviceConfigOpaque::child_showsTheFieldsOfItsEnvelope()
{
    const Config config = parentOf({stranger()});
    const IVDeviceConfig *const child = config.values(QUuid()).first();
    QCOMPARE(child->id(), QUuid(u"{0c1b7a11-6f4e-4d6a-9d55-2a0c5c1b7a12}"_s));
    QCOMPARE(child->deviceId(), QUuid(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s));
    QCOMPARE(child->name(), u"Laser"_s);
    QVERIFY(child->version() == VVersion(9, 8, 7));
    QCOMPARE(child->dateTime(), QDateTime(QDate(2026, 11, 21), QTime(9, 30), Qt::UTC));
    QCOMPARE(child->dataId(), child->deviceId());
    QVERIFY(child->isValid());
    QVERIFY(!child->isEmpty());
    QCOMPARE(child->toString(), u"Laser"_s);
}

void tst_VDeviceConfigOpaque::child_isCountedAndRemoved()
{
    Config config = parentOf({stranger(), QJsonObject()});
    const QUuid kind(u"{0c1b7a11-6f4e-4d6a-9d55-2a0c5c1b7a12}"_s);
    QCOMPARE(config.count(QUuid(), true), 2);
    QCOMPARE(config.count(kind, false), 1);
    QVERIFY(!config.values(QUuid()).first()->isEmpty());
    QVERIFY(config.values(QUuid()).last()->isEmpty());
    QVERIFY(config.remove(kind, false));
    QCOMPARE(childrenOf(config), QJsonArray{QJsonObject()});
}

void tst_VDeviceConfigOpaque::child_isComparedByWhatItHolds()
{
    QJsonObject other = stranger();
    other.insert("colour"_L1, u"blue"_s);
    const Config config = parentOf({stranger()});
    QVERIFY(config == parentOf({stranger()}));
    QVERIFY(config != parentOf({other}));
    const Config known(u"known"_s);
    QVERIFY(config != parentOf({known.toJsonObject()}));
    const Config renamed = parentOf({stranger()});
    renamed.values(QUuid()).first()->setName(u"Other"_s);
    QVERIFY(config != renamed);
    QVERIFY(config.hash() != parentOf({other}).hash());
    other = stranger();
    other.remove("metadata"_L1);
    other.insert("dateTime"_L1, u"2000-01-01T00:00:00Z"_s);
    QCOMPARE(parentOf({other}).hash(), config.hash()); // Annotations take no part in it.
}

void tst_VDeviceConfigOpaque::child_takesWhatIsSetLater()
{
    const Config config = parentOf({stranger()});
    IVDeviceConfig *const child = config.values(QUuid()).first();
    child->setName(u"Renamed"_s);
    child->setDescription(u"New"_s);
    child->setDateTime(QDateTime());
    QJsonObject expected = stranger();
    expected.insert("name"_L1, u"Renamed"_s);
    expected.insert("description"_L1, u"New"_s);
    expected.remove("dateTime"_L1);
    QCOMPARE(childrenOf(config), QJsonArray{expected});
}

void tst_VDeviceConfigOpaque::child_takesMoreChildrenAndMetadata()
{
    const Config config = parentOf({stranger()});
    IVDeviceConfig *const child = config.values(QUuid()).first();
    const Config added(u"added"_s);
    child->insert(std::make_unique<Config>(added).release(), true);
    VMetadata note(1, u"note"_s);
    QVERIFY(child->insertMetadata(&note, false));
    QJsonObject expected = stranger();
    QJsonArray children = expected.value("children"_L1).toArray();
    children.append(added.toJsonObject());
    expected.insert("children"_L1, children);
    QJsonArray metadata = expected.value("metadata"_L1).toArray();
    metadata.append(
        QJsonObject{{"key"_L1, u"1"_s}, {"flags"_L1, u"None"_s}, {"value"_L1, u"note"_s}});
    expected.insert("metadata"_L1, metadata);
    QCOMPARE(childrenOf(config), QJsonArray{expected});
}

void tst_VDeviceConfigOpaque::child_readsAnotherRecordOfItsKind()
{
    const Config config = parentOf({stranger()});
    IVDeviceConfig *const child = config.values(QUuid()).first();
    QJsonObject other = stranger();
    other.insert("name"_L1, u"Second"_s);
    QVERIFY(child->setJsonObject(other));
    QCOMPARE(childrenOf(config), QJsonArray{other});
    QVERIFY(!child->setJsonObject(config.toJsonObject()));
    QCOMPARE(childrenOf(config), QJsonArray{other});
}

void tst_VDeviceConfigOpaque::copies_areIndependent()
{
    const Config config = parentOf({stranger()});
    const Config copy = config;
    copy.values(QUuid()).first()->setName(u"Renamed"_s);
    QCOMPARE(childrenOf(config), QJsonArray{stranger()});
    QVERIFY(copy != config);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigOpaque)
#include "tst_VDeviceConfigOpaque.moc"
