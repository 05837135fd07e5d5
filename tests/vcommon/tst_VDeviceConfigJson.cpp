// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/TestConfig.h"

#include <vcore/VMetadata.h>

#include <QtCore/QJsonArray>
#include <QtTest/QTest>

#include <limits>

using namespace Support;
using Norvane::MetadataFlags;
using Norvane::VMetadata;
using Config = TestConfig<>;

namespace {

const QUuid kDevice(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);

Config full()
{
    Config config(kDevice);
    config.setName(u"Name"_s);
    config.setDescription(u"Beschreibung «é» 中文"_s);
    config.setVersion(VVersion(1, 2, 3));
    config.setDateTime(QDateTime(QDate(2026, 11, 21), QTime(9, 30, 0, 7), Qt::UTC));
    config.setPayload(u"payload"_s);
    return config;
}

QJsonObject fullEnvelope()
{
    return {{"id"_L1, Config::kind().toString()},
            {"deviceId"_L1, u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s},
            {"name"_L1, u"Name"_s},
            {"description"_L1, u"Beschreibung «é» 中文"_s},
            {"version"_L1, u"1.2.3"_s},
            {"dateTime"_L1, u"2026-11-21T09:30:00.007Z"_s},
            {"config"_L1, QJsonObject{{"payload"_L1, u"payload"_s}}}};
}

QJsonObject withKey(const QString &key, const QJsonValue &value)
{
    QJsonObject envelope = fullEnvelope();
    envelope.insert(key, value);
    return envelope;
}

QJsonObject entry(const QJsonValue &key, const QJsonValue &flags, const QJsonValue &value)
{
    return {{"key"_L1, key}, {"flags"_L1, flags}, {"value"_L1, value}};
}

} // namespace

class tst_VDeviceConfigJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void envelope_holdsTheFields();
    void envelope_leavesOutWhatThereIsNone();
    void envelope_takesDefaults_data();
    void envelope_takesDefaults();
    void envelope_ofAnotherKindIsRefused_data();
    void envelope_ofAnotherKindIsRefused();
    void envelope_thatTheClassRefusesChangesNothing();
    void class_readsItsFieldsLast();
    void dateTime_isReadAsUtc_data();
    void dateTime_isReadAsUtc();
    void dateTime_withoutIsoTextIsLeftOut();
    void children_areReadInOrder();
    void children_ofAnEarlierReadAreReplaced();
    void metadata_isWrittenByKey();
    void metadata_thatIsKilledByASaveIsLeftOut();
    void metadata_isReadBack_data();
    void metadata_isReadBack();
};

void tst_VDeviceConfigJson::initTestCase()
{
    qputenv("TZ", "Europe/Rome"); // Far enough from UTC to notice.
    VDeviceConfig::registerConfig(std::make_unique<Config>().release());
    VDeviceConfig::registerConfig(std::make_unique<OtherConfig>().release());
}

void tst_VDeviceConfigJson::envelope_holdsTheFields()
{
    QCOMPARE(full().toJsonObject(), fullEnvelope());
    Config read;
    QVERIFY(read.setJsonObject(fullEnvelope()));
    QVERIFY(read == full());
    QCOMPARE(read.deviceId(), kDevice);
}

void tst_VDeviceConfigJson::envelope_leavesOutWhatThereIsNone()
{
    const QStringList keys = Config().toJsonObject().keys();
    QCOMPARE(keys,
             (QStringList{u"config"_s, u"description"_s, u"deviceId"_s, u"id"_s, u"name"_s,
                          u"version"_s}));
    Config config;
    config.insert(newConfig(u"child"_s), true);
    QVERIFY(config.remove(QUuid(), false));
    VMetadata note(1, u"note"_s);
    QVERIFY(config.insertMetadata(&note, false));
    config.clearMetadata();
    QCOMPARE(config.toJsonObject().keys(), keys);
}

void tst_VDeviceConfigJson::envelope_takesDefaults_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QJsonValue>("read");
    QTest::addColumn<QJsonValue>("written");
    const QJsonValue gone = QJsonValue::Undefined;
    const QJsonValue nullId = QUuid().toString();
    const auto row = [](const char *name, const char *key, const QJsonValue &read,
                        const QJsonValue &written) {
        QTest::newRow(name) << QString::fromLatin1(key) << read << written;
    };
    row("no device id", "deviceId", gone, nullId);
    row("a device id that is no text", "deviceId", 5, nullId);
    row("a device id that is no id", "deviceId", u"Name"_s, nullId);
    row("a device id without braces", "deviceId", u"5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11"_s,
        kDevice.toString());
    row("no version", "version", gone, u"0.0.0"_s);
    row("a version that is a number", "version", 1.2, u"0.0.0"_s);
    row("a version of two numbers", "version", u"1.2"_s, u"0.0.0"_s);
    row("a version out of range", "version", u"1.2.256"_s, u"0.0.0"_s);
    row("no name", "name", gone, u""_s);
    row("a name that is a number", "name", 1, u""_s);
    row("a name that is null", "name", QJsonValue::Null, u""_s);
    row("no description", "description", gone, u""_s);
    row("a description that is an array", "description", QJsonArray{u"x"_s}, u""_s);
    row("no date", "dateTime", gone, gone);
    row("a date that is a number", "dateTime", 1700000000, gone);
    row("a date that is no date", "dateTime", u"yesterday"_s, gone);
    row("no class object", "config", gone, QJsonObject{{"payload"_L1, u""_s}});
    row("a class object that is a text", "config", u"x"_s, QJsonObject{{"payload"_L1, u""_s}});
    row("children that are an object", "children", QJsonObject(), gone);
    row("no child in the children", "children", QJsonArray(), gone);
    row("children that are no objects", "children", QJsonArray{1, u"x"_s, {}, QJsonArray{}}, gone);
    row("metadata that is a text", "metadata", u"x"_s, gone);
    row("an unknown key", "colour", u"red"_s, gone);
}

void tst_VDeviceConfigJson::envelope_takesDefaults()
{
    QFETCH(const QString, key);
    QFETCH(const QJsonValue, read);
    QFETCH(const QJsonValue, written);
    Config config = full(); // What was there before does not shine through.
    config.insert(newConfig(u"child"_s), true);
    VMetadata note(1, u"note"_s);
    QVERIFY(config.insertMetadata(&note, false));
    QVERIFY(config.setJsonObject(withKey(key, read)));
    QCOMPARE(config.toJsonObject(), withKey(key, written));
}

void tst_VDeviceConfigJson::envelope_ofAnotherKindIsRefused_data()
{
    QTest::addColumn<QJsonValue>("id");
    QTest::newRow("no id") << QJsonValue(QJsonValue::Undefined);
    QTest::newRow("null") << QJsonValue(QJsonValue::Null);
    QTest::newRow("a number") << QJsonValue(5);
    QTest::newRow("no id at all") << QJsonValue(u"Name"_s);
    QTest::newRow("the null id") << QJsonValue(QUuid().toString());
    QTest::newRow("another kind") << QJsonValue(OtherConfig::kind().toString());
}

void tst_VDeviceConfigJson::envelope_ofAnotherKindIsRefused()
{
    QFETCH(const QJsonValue, id);
    Config config(u"before"_s);
    config.insert(newConfig(u"child"_s), true);
    const QJsonObject before = config.toJsonObject();
    QVERIFY(!config.setJsonObject(withKey(u"id"_s, id)));
    QCOMPARE(config.toJsonObject(), before);
}

void tst_VDeviceConfigJson::envelope_thatTheClassRefusesChangesNothing()
{
    Config config(u"before"_s);
    config.insert(newConfig(u"child"_s), true);
    VMetadata note(1, u"note"_s);
    QVERIFY(config.insertMetadata(&note, false));
    config.setRefuses(true);
    const IVDeviceConfig *const child = config.values(QUuid()).first();
    const QJsonObject before = config.toJsonObject();
    QVERIFY(!config.setJsonObject(withKey(u"children"_s, QJsonArray{fullEnvelope()})));
    QCOMPARE(config.toJsonObject(), before);
    QCOMPARE(config.values(QUuid()).first(), child);
}

void tst_VDeviceConfigJson::class_readsItsFieldsLast()
{
    Config config;
    QVERIFY(config.setJsonObject(fullEnvelope()));
    QVERIFY(config.versionWhenRead() == VVersion(1, 2, 3));
}

void tst_VDeviceConfigJson::dateTime_isReadAsUtc_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("utc");
    const QString morning = u"2026-11-21T09:30:00.000Z"_s;
    QTest::newRow("in UTC") << morning << morning;
    QTest::newRow("with an offset") << u"2026-11-21T10:30:00+01:00"_s << morning;
    QTest::newRow("without a zone") << u"2026-11-21T09:30:00"_s << morning;
    QTest::newRow("without seconds") << u"2026-11-21T09:30"_s << morning;
    QTest::newRow("in an hour that summer time skips here")
        << u"2026-03-29T02:30:00"_s << u"2026-03-29T02:30:00.000Z"_s;
    QTest::newRow("a date alone") << u"2026-11-21"_s << u"2026-11-21T00:00:00.000Z"_s;
    QTest::newRow("milliseconds") << u"2026-11-21T09:30:00.1234567"_s
                                  << u"2026-11-21T09:30:00.123Z"_s;
    QTest::newRow("before 1970") << u"1899-12-31T23:59:59Z"_s << u"1899-12-31T23:59:59.000Z"_s;
    QTest::newRow("no such day") << u"2026-02-30T09:30:00Z"_s << QString();
    QTest::newRow("another form") << u"21.11.2026 09:30"_s << QString();
    QTest::newRow("empty") << u""_s << QString();
}

void tst_VDeviceConfigJson::dateTime_isReadAsUtc()
{
    QFETCH(const QString, text);
    QFETCH(const QString, utc);
    Config config;
    QVERIFY(config.setJsonObject(withKey(u"dateTime"_s, text)));
    QCOMPARE(config.dateTime().isValid(), !utc.isEmpty());
    QCOMPARE(config.toJsonObject().value("dateTime"_L1).toString(), utc);
}

void tst_VDeviceConfigJson::dateTime_withoutIsoTextIsLeftOut()
{
    Config config;
    config.setDateTime(QDateTime(QDate(12026, 1, 1), QTime(0, 0), Qt::UTC));
    QVERIFY(!config.toJsonObject().contains("dateTime"_L1));
}

void tst_VDeviceConfigJson::children_areReadInOrder()
{
    Config config = full();
    Config *const a = newConfig(u"a"_s);
    a->insert(newConfig<OtherConfig>(u"ao"_s), true);
    config.insert({newConfig<OtherConfig>(u"o"_s), a, newConfig(u"b"_s)});
    Config read;
    QVERIFY(read.setJsonObject(config.toJsonObject()));
    QVERIFY(read == config);
    QCOMPARE(childNames(read), (QStringList{u"o"_s, u"a"_s, u"b"_s}));
    QCOMPARE(read.count(OtherConfig::kind(), true), 2);
    QCOMPARE(read.toJsonObject(), config.toJsonObject());
}

void tst_VDeviceConfigJson::children_ofAnEarlierReadAreReplaced()
{
    Config config = full();
    QVERIFY(config.setJsonObject(
        withKey(u"children"_s, QJsonArray{fullEnvelope(), 5, fullEnvelope()})));
    QCOMPARE(config.count(Config::kind(), false), 2);
    QVERIFY(config.setJsonObject(fullEnvelope()));
    QCOMPARE(config.count(QUuid(), false), 0);
}

void tst_VDeviceConfigJson::metadata_isWrittenByKey()
{
    Config config = full();
    VMetadata large(std::numeric_limits<quint64>::max(), 1.5, MetadataFlags::KillOnChanges);
    VMetadata small(7, QJsonObject{{"a"_L1, QJsonArray{1, {}}}});
    VMetadata combined(8, true, MetadataFlags::KillOnCopy | MetadataFlags::KillOnChanges);
    for (VMetadata *one : {&large, &combined, &small})
        QVERIFY(config.insertMetadata(one, false));
    const QJsonArray expected{entry(u"7"_s, u"None"_s, QJsonObject{{"a"_L1, QJsonArray{1, {}}}}),
                              entry(u"8"_s, u"KillOnCopy, KillOnChanges"_s, true),
                              entry(u"18446744073709551615"_s, u"KillOnChanges"_s, 1.5)};
    QCOMPARE(config.toJsonObject().value("metadata"_L1), QJsonValue(expected));
    Config read;
    QVERIFY(read.setJsonObject(config.toJsonObject()));
    QCOMPARE(read.metadataCount(), 3);
    QVERIFY(read.metadata(large.key())->equalsTo(&large));
    QVERIFY(read.metadata(8)->equalsTo(&combined));
    QCOMPARE(read.toJsonObject(), config.toJsonObject());
}

void tst_VDeviceConfigJson::metadata_thatIsKilledByASaveIsLeftOut()
{
    Config config = full();
    VMetadata killed(1, 1, MetadataFlags::KillOnSave);
    VMetadata all(2, 2, MetadataFlags::Volatile);
    QVERIFY(config.insertMetadata(&killed, false));
    QVERIFY(config.insertMetadata(&all, false));
    QCOMPARE(config.toJsonObject(), fullEnvelope());
    QCOMPARE(config.metadataCount(), 2);
}

void tst_VDeviceConfigJson::metadata_isReadBack_data()
{
    QTest::addColumn<QJsonArray>("read");
    QTest::addColumn<QJsonArray>("written");
    const QJsonObject good = entry(u"5"_s, u"KillOnCopy"_s, u"v"_s);
    const auto row = [](const char *name, const QJsonArray &read, const QJsonArray &written) {
        QTest::newRow(name) << read << written;
    };
    row("what was written", {good}, {good});
    row("an entry twice: the last counts", {entry(u"5"_s, u"None"_s, 1), good}, {good});
    row("in any order", {good, entry(u"4"_s, u"None"_s, 1)}, {entry(u"4"_s, u"None"_s, 1), good});
    row("no objects", {1, u"x"_s, {}, QJsonArray(), good}, {good});
    row("no key", {QJsonObject{{"value"_L1, 1}}, good}, {good});
    row("a key that is a number", {entry(5, u"None"_s, 1)}, {});
    row("a key that is no number", {entry(u"five"_s, u"None"_s, 1)}, {});
    row("a key below 0", {entry(u"-5"_s, u"None"_s, 1)}, {});
    row("a key beyond 64 bits", {entry(u"18446744073709551616"_s, u"None"_s, 1)}, {});
    row("no flags", {QJsonObject{{"key"_L1, u"5"_s}, {"value"_L1, 1}}},
        {entry(u"5"_s, u"None"_s, 1)});
    row("flags that are no names", {entry(u"5"_s, u"KillOnCopy, Magic"_s, 1)},
        {entry(u"5"_s, u"KillOnCopy"_s, 1)});
    row("no value", {QJsonObject{{"key"_L1, u"5"_s}, {"flags"_L1, u"None"_s}}},
        {QJsonObject{{"key"_L1, u"5"_s}, {"flags"_L1, u"None"_s}}});
    row("a value that is null", {entry(u"5"_s, u"None"_s, QJsonValue::Null)},
        {entry(u"5"_s, u"None"_s, QJsonValue::Null)});
}

void tst_VDeviceConfigJson::metadata_isReadBack()
{
    QFETCH(const QJsonArray, read);
    QFETCH(const QJsonArray, written);
    Config config;
    VMetadata note(99, u"note"_s);
    QVERIFY(config.insertMetadata(&note, false));
    QVERIFY(config.setJsonObject(withKey(u"metadata"_s, read)));
    QCOMPARE(config.toJsonObject().value("metadata"_L1).toArray(), written);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigJson)
#include "tst_VDeviceConfigJson.moc"
