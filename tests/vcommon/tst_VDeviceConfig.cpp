// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/FaultyDevice.h"
#include "support/TestConfig.h"

#include <vcore/VMetadata.h>

#include <QtCore/QBuffer>
#include <QtTest/QTest>

#include <functional>
#include <type_traits>

using namespace Support;
using Norvane::MetadataFlags;
using Norvane::VMetadata;
using Config = TestConfig<>;

static_assert(std::is_abstract_v<VDeviceConfig>);
static_assert(std::is_copy_constructible_v<Config>);
static_assert(std::is_copy_assignable_v<Config>);
static_assert(std::is_nothrow_destructible_v<Config>);

using Change = std::function<void(Config &)>;
Q_DECLARE_METATYPE(Change)

namespace {

const QUuid kDevice(u"{5f0c2a52-6f4e-4d6a-9d55-2a0c5c1b7a11}"_s);

/// Says that it has no content id.
class WithoutDataId : public Config
{
protected:
    QUuid innerDataId(bool *ok) const override
    {
        *ok = false;
        return kDevice;
    }
};

/// Does not touch the flag.
class IndifferentDataId : public Config
{
protected:
    QUuid innerDataId(bool *) const override { return kDevice; }
};

Config named(const QString &name)
{
    Config config(kDevice);
    config.setName(name);
    config.setDescription(u"What %n is"_s);
    return config;
}

} // namespace

class tst_VDeviceConfig : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void new_hasWhatItIsGiven();
    void setters_replaceTheField();
    void dateTime_isKeptInUtc();
    void null_emptyAndValid_areDifferentQuestions();
    void dataId_isTheInnerOneUnlessThereIsNone();
    void storedId_isWhatWasSet();
    void equality_comparesTheFields_data();
    void equality_comparesTheFields();
    void equality_ignoresMetadata();
    void equalsTo_needsTheSameClass();
    void toString_replacesTheCodes_data();
    void toString_replacesTheCodes();
    void toString_shortFormsForward();
    void hash_isOfTheContent();
    void save_writesWhatLoadReads();
    void save_reportsWhatTheDeviceDoesNotTake();
    void load_refusesWhatIsNoRecordOfItsKind_data();
    void load_refusesWhatIsNoRecordOfItsKind();
};

void tst_VDeviceConfig::new_hasWhatItIsGiven()
{
    const Config config(kDevice);
    QCOMPARE(config.deviceId(), kDevice);
    QVERIFY(config.version() == VVersion(1, 0, 0));
    QVERIFY(config.name().isEmpty() && config.description().isEmpty());
    QVERIFY(!config.dateTime().isValid());
    QCOMPARE(config.count(QUuid(), true), 0);
    QCOMPARE(config.metadataCount(), 0);
}

void tst_VDeviceConfig::setters_replaceTheField()
{
    Config config;
    config.setDeviceId(kDevice);
    config.setVersion(VVersion(3, 2, 1));
    config.setName(u"Name"_s);
    config.setDescription(u"Description"_s);
    QCOMPARE(config.deviceId(), kDevice);
    QVERIFY(config.version() == VVersion(3, 2, 1));
    QCOMPARE(config.name(), u"Name"_s);
    QCOMPARE(config.description(), u"Description"_s);
    QVERIFY(Config().deviceId().isNull()); // Other records keep their defaults.
}

void tst_VDeviceConfig::dateTime_isKeptInUtc()
{
    const QDateTime moment(QDate(2026, 11, 21), QTime(9, 30, 0, 7), Qt::OffsetFromUTC, 3600);
    Config config;
    config.setDateTime(moment);
    QCOMPARE(config.dateTime(), moment);
    QCOMPARE(config.dateTime().timeSpec(), Qt::UTC);
    config.setDateTime(QDateTime());
    QVERIFY(!config.dateTime().isValid());
    QVERIFY(config == Config());
}

void tst_VDeviceConfig::null_emptyAndValid_areDifferentQuestions()
{
    Config config;
    QVERIFY(config.isNull());
    QVERIFY(config.isEmpty());
    QVERIFY(!config.isValid());
    config.setDeviceId(kDevice);
    QVERIFY(!config.isNull());
    QVERIFY(config.isEmpty());
    QVERIFY(config.isValid());
    config.setName(u"x"_s);
    QVERIFY(!config.isEmpty());
    config.setName(QString());
    config.setDescription(u"x"_s);
    QVERIFY(!config.isEmpty());
    config.setDescription(QString());
    config.insert(newConfig(u"child"_s), true);
    QVERIFY(!config.isEmpty());
}

void tst_VDeviceConfig::dataId_isTheInnerOneUnlessThereIsNone()
{
    const Config config(kDevice);
    QCOMPARE(config.dataId(), kDevice);
    QCOMPARE(config.innerDataId(nullptr), kDevice);
    bool ok = false;
    QCOMPARE(config.innerDataId(&ok), kDevice);
    QVERIFY(ok);
    QVERIFY(WithoutDataId().dataId().isNull());
    QCOMPARE(IndifferentDataId().dataId(), kDevice);
}

void tst_VDeviceConfig::storedId_isWhatWasSet()
{
    Config config;
    QVERIFY(config.storedId().isNull());
    config.setId(kDevice);
    QCOMPARE(config.storedId(), kDevice);
    QCOMPARE(Config(config).storedId(), kDevice);
    QVERIFY(config.id() != kDevice);
}

void tst_VDeviceConfig::equality_comparesTheFields_data()
{
    QTest::addColumn<Change>("change");
    const auto row = [](const char *name, const Change &change) { QTest::newRow(name) << change; };
    row("device id", [](Config &c) { c.setDeviceId(QUuid()); });
    row("version", [](Config &c) { c.setVersion(VVersion(1, 0, 1)); });
    row("name", [](Config &c) { c.setName(u"other"_s); });
    row("description", [](Config &c) { c.setDescription(u"other"_s); });
    row("date", [](Config &c) { c.setDateTime(QDateTime::fromMSecsSinceEpoch(0)); });
    row("no child", [](Config &c) { c.remove(QUuid(), false); });
    row("a child more", [](Config &c) { c.insert(newConfig(u"c"_s), true); });
    row("a child of another class", [](Config &c) {
        c.remove(OtherConfig::kind(), false);
        c.insert(newConfig(u"b"_s), true);
    });
    row("a child's field", [](Config &c) { c.values(QUuid()).last()->setName(u"other"_s); });
    row("children in another order", [](Config &c) {
        c.remove(Config::kind(), false);
        c.insert(newConfig(u"a"_s), true);
    });
}

void tst_VDeviceConfig::equality_comparesTheFields()
{
    QFETCH(const Change, change);
    Config config = named(u"name"_s);
    config.insert(newConfig(u"a"_s), true);
    config.insert(newConfig<OtherConfig>(u"b"_s), true);
    Config changed = config;
    QVERIFY(changed == config);
    change(changed);
    const VDeviceConfig &base = config;
    QVERIFY(base != changed);
    QVERIFY(static_cast<const VDeviceConfig &>(changed) != base);
}

void tst_VDeviceConfig::equality_ignoresMetadata()
{
    Config config = named(u"name"_s);
    const Config before = config;
    VMetadata entry(1, u"note"_s);
    QVERIFY(config.insertMetadata(&entry, false));
    QVERIFY(config == before);
    QVERIFY(config.equalsTo(&before));
}

void tst_VDeviceConfig::equalsTo_needsTheSameClass()
{
    const Config config(kDevice);
    const OtherConfig other(kDevice);
    QVERIFY(!config.equalsTo(nullptr));
    QVERIFY(!config.equalsTo(&other));
    QVERIFY(config.equalsTo(&config));
    QVERIFY(static_cast<const VDeviceConfig &>(config) == other); // The bases alone are equal.
}

void tst_VDeviceConfig::toString_replacesTheCodes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("text");
    const QString id = kDevice.toString();
    QTest::newRow("no format: the name") << u"Bar"_s << u""_s << u"Bar"_s;
    QTest::newRow("no format and no name: the id") << u""_s << u""_s << id;
    QTest::newRow("every code") << u"Bar"_s << u"%n|%d|%v|%i|%c|%%"_s
                                << u"Bar|What %n is|1.0.0|%1|%1|%"_s.arg(id);
    QTest::newRow("codes side by side") << u"Bar"_s << u"%n%n%v"_s << u"BarBar1.0.0"_s;
    QTest::newRow("text without codes") << u"Bar"_s << u"plain"_s << u"plain"_s;
    QTest::newRow("a name that holds a code") << u"%d%%"_s << u"<%n>"_s << u"<%d%%>"_s;
    QTest::newRow("an escaped code") << u"Bar"_s << u"%%n"_s << u"%n"_s;
    QTest::newRow("an unknown code") << u"Bar"_s << u"%x%N%1"_s << u"%x%N%1"_s;
    QTest::newRow("a percent sign at the end") << u"Bar"_s << u"%n %"_s << u"Bar %"_s;
    QTest::newRow("a name of several code units")
        << u"中\U0001F3ED"_s << u"%n"_s << u"中\U0001F3ED"_s;
}

void tst_VDeviceConfig::toString_replacesTheCodes()
{
    QFETCH(const QString, name);
    QFETCH(const QString, format);
    QTEST(named(name).toString(format, QLocale::c()), "text");
}

void tst_VDeviceConfig::toString_shortFormsForward()
{
    const Config config = named(u"Bar"_s);
    QCOMPARE(config.toString(), u"Bar"_s);
    QCOMPARE(config.toString(u"<%v>"_s), u"<1.0.0>"_s);
    QCOMPARE(config.toString(QLocale(u"it_IT"_s)), u"Bar"_s);
}

void tst_VDeviceConfig::hash_isOfTheContent()
{
    Config config = named(u"name"_s);
    config.insert(newConfig(u"child"_s), true);
    Config changed = config;
    VMetadata entry(1, u"note"_s);
    IVDeviceConfig *const child = changed.values(QUuid()).first();
    for (IVDeviceConfig *annotated : {static_cast<IVDeviceConfig *>(&changed), child}) {
        annotated->setDateTime(QDateTime::fromMSecsSinceEpoch(0));
        annotated->insertMetadata(&entry, false);
    }
    QCOMPARE(config.hash().size(), 32);
    QCOMPARE(changed.hash(), config.hash());
    child->setName(u"other"_s);
    QVERIFY(changed.hash() != config.hash());
    // A new record's, computed from its text by another implementation of SHA-256.
    QCOMPARE(Config().hash().toHex(),
             "bb9f0c31e113687b4388a552fbd624a450a82ab0657ef7338cfdae5274ba7101");
}

void tst_VDeviceConfig::save_writesWhatLoadReads()
{
    Config config = named(u"name"_s);
    config.setPayload(u"payload"_s);
    QBuffer buffer;
    QVERIFY(buffer.open(QIODevice::ReadWrite));
    QVERIFY(config.save(&buffer));
    buffer.seek(0);
    Config read;
    QVERIFY(read.load(&buffer));
    QVERIFY(read == config);
}

void tst_VDeviceConfig::save_reportsWhatTheDeviceDoesNotTake()
{
    Config config = named(u"name"_s);
    QBuffer buffer;
    QVERIFY(!config.save(nullptr));
    QVERIFY(!config.save(&buffer)); // Not open.
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QVERIFY(!config.save(&buffer));
    FaultyDevice full;
    QVERIFY(full.open(QIODevice::ReadWrite));
    full.failAlways(FaultyDevice::Write);
    QVERIFY(!config.save(&full));
}

void tst_VDeviceConfig::load_refusesWhatIsNoRecordOfItsKind_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("nothing") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("name");
    QTest::newRow("an array") << QByteArray("[]");
    QTest::newRow("no id") << QByteArray("{\"name\": \"other\"}");
    QTest::newRow("another kind") << QByteArray("{\"id\": \"") + OtherConfig::kind().toByteArray()
            + QByteArray("\", \"name\": \"other\"}");
}

void tst_VDeviceConfig::load_refusesWhatIsNoRecordOfItsKind()
{
    QFETCH(QByteArray, bytes);
    Config config = named(u"name"_s);
    QBuffer buffer(&bytes);
    QVERIFY(!config.load(&buffer)); // Not open.
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    QVERIFY(!config.load(&buffer));
    QVERIFY(!config.load(nullptr));
    QVERIFY(config == named(u"name"_s));
}

QTEST_GUILESS_MAIN(tst_VDeviceConfig)
#include "tst_VDeviceConfig.moc"
