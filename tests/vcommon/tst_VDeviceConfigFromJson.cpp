// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The registry, and records from bytes that may be anything.

#include "support/Seed.h"
#include "support/TestConfig.h"
#include "support/Threads.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

using namespace Support;
using Config = TestConfig<>;

namespace {

std::unique_ptr<IVDeviceConfig> read(const QByteArray &json)
{
    return std::unique_ptr<IVDeviceConfig>(VDeviceConfig::fromJson(json));
}

Config family()
{
    Config config(u"top é 中"_s);
    config.setPayload(u"payload \\ \" \n"_s);
    Config *const child = newConfig(u"child"_s);
    child->insert(newConfig(u"grandchild"_s), true);
    config.insert(child, true);
    return config;
}

QByteArray bytesOf(const IVDeviceConfig &config)
{
    return QJsonDocument(config.toJsonObject()).toJson(QJsonDocument::Compact);
}

QByteArray kindText(const QUuid &kind = Config::kind())
{
    return kind.toByteArray();
}

} // namespace

class tst_VDeviceConfigFromJson : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void registry_keepsTheLastPrototypeOfAKind();
    void registry_forgetsWithoutDeleting();
    void registry_forgetsAReplacedOne();
    void registry_takesNull();
    void registry_isUsedFromAnyThread();
    void record_isRebuilt();
    void plainJson_isReadAndNothingElse();
    void record_ofAnUnknownKindIsNull();
    void bytes_mayBeAnything_data();
    void bytes_mayBeAnything();
    void bytes_mayEndAnywhere();
    void bytes_mayBeFlipped();
    void nesting_mayBeDeep_data();
    void nesting_mayBeDeep();
    void strings_mayBeHuge();
};

void tst_VDeviceConfigFromJson::initTestCase()
{
    VDeviceConfig::registerConfig(std::make_unique<Config>().release());
}

void tst_VDeviceConfigFromJson::registry_keepsTheLastPrototypeOfAKind()
{
    using Replaced = TestConfig<10>;
    QVERIFY(!VDeviceConfig::isRegistered(Replaced::kind()));
    auto refusing = std::make_unique<Replaced>();
    refusing->setRefuses(true); // Prototypes are cloned, with all that they hold.
    VDeviceConfig::registerConfig(refusing.release());
    QVERIFY(VDeviceConfig::isRegistered(Replaced::kind()));
    QVERIFY(read(bytesOf(Replaced())) == nullptr);
    VDeviceConfig::registerConfig(std::make_unique<Replaced>().release());
    QVERIFY(read(bytesOf(Replaced())) != nullptr);
    QVERIFY(Replaced::liveCount() == 2); // The replaced one is not deleted.
}

void tst_VDeviceConfigFromJson::registry_forgetsWithoutDeleting()
{
    using Forgotten = TestConfig<12>;
    auto *const first = std::make_unique<Forgotten>().release();
    auto *const second = std::make_unique<Forgotten>().release();
    second->setRefuses(true);
    VDeviceConfig::registerConfig(first);
    VDeviceConfig::registerConfig(second);
    QVERIFY(read(bytesOf(Forgotten())) == nullptr);
    VDeviceConfig::unregisterConfig(second);
    QVERIFY(read(bytesOf(Forgotten())) != nullptr); // The one that was replaced is back.
    VDeviceConfig::unregisterConfig(first);
    QVERIFY(!VDeviceConfig::isRegistered(Forgotten::kind()));
    QVERIFY(read(bytesOf(Forgotten())) == nullptr);
    VDeviceConfig::unregisterConfig(first); // It is known no longer.
    VDeviceConfig::unregisterConfig(nullptr);
    QVERIFY(Forgotten::liveCount() == 2);
}

void tst_VDeviceConfigFromJson::registry_forgetsAReplacedOne()
{
    using Forgotten = TestConfig<13>;
    auto *const first = std::make_unique<Forgotten>().release();
    auto *const second = std::make_unique<Forgotten>().release();
    VDeviceConfig::registerConfig(first);
    VDeviceConfig::registerConfig(second);
    VDeviceConfig::unregisterConfig(first);
    QVERIFY(VDeviceConfig::isRegistered(Forgotten::kind()));
    VDeviceConfig::unregisterConfig(second);
    QVERIFY(!VDeviceConfig::isRegistered(Forgotten::kind()));
}

void tst_VDeviceConfigFromJson::registry_takesNull()
{
    VDeviceConfig::registerConfig(nullptr);
    QVERIFY(!VDeviceConfig::isRegistered(QUuid()));
}

void tst_VDeviceConfigFromJson::registry_isUsedFromAnyThread()
{
    const QByteArray json = bytesOf(family());
    std::atomic<int> good = 0;
    inThreads(16, [&](int i) {
        if (i % 4 == 0)
            VDeviceConfig::registerConfig(std::make_unique<Config>().release());
        const auto config = read(json);
        good += config && bytesOf(*config) == json ? 1 : 0;
    });
    QCOMPARE(good.load(), 16);
}

void tst_VDeviceConfigFromJson::plainJson_isReadAndNothingElse()
{
    const auto readPlain = [](const QByteArray &json) {
        return std::unique_ptr<IVDeviceConfig>(VDeviceConfig::fromPlainJson(Norvane::VBytes(json)));
    };
    const Config plain(u"é 中"_s);
    const auto rebuilt = readPlain(bytesOf(plain));
    QVERIFY(rebuilt != nullptr);
    QVERIFY(rebuilt->equalsTo(&plain));
    // All of these are JSON, and records.
    for (const QByteArray &json : {bytesOf(family()), "\xEF\xBB\xBF" + bytesOf(plain),
                                   bytesOf(plain).replace("\"name\"", "\"n\\u0061me\"")}) {
        QVERIFY(read(json) != nullptr);
        QVERIFY(readPlain(json) == nullptr);
    }
    QVERIFY(readPlain("{}") == nullptr);
    QVERIFY(readPlain({}) == nullptr);
}

void tst_VDeviceConfigFromJson::record_isRebuilt()
{
    const Config config = family();
    const auto rebuilt = read(bytesOf(config));
    QVERIFY(rebuilt != nullptr);
    QVERIFY(rebuilt->equalsTo(&config));
    QVERIFY(read("\xEF\xBB\xBF" + bytesOf(config)) != nullptr); // A byte order mark is no harm.
    QVERIFY(read(" \n" + bytesOf(config) + "\n ") != nullptr);
}

void tst_VDeviceConfigFromJson::record_ofAnUnknownKindIsNull()
{
    QVERIFY(read(bytesOf(TestConfig<11>())) == nullptr);
}

void tst_VDeviceConfigFromJson::bytes_mayBeAnything_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<bool>("isRecord");
    const QByteArray start = "{\"id\":\"" + kindText() + "\"";
    const auto row = [](const char *name, const QByteArray &json, bool isRecord) {
        QTest::newRow(name) << json << isRecord;
    };
    row("nothing", "", false);
    row("null", "null", false);
    row("a text", "\"x\"", false);
    row("an array of a record", '[' + start + "}]", false);
    row("an empty object", "{}", false);
    row("only zeros", QByteArray(100, '\0'), false);
    row("an id of null", "{\"id\":null}", false);
    row("the null id", "{\"id\":\"" + kindText(QUuid()) + "\"}", false);
    row("only an id", start + '}', true);
    row("text behind it", start + "} x", false);
    row("two records", start + '}' + start + '}', false);
    row("a comma too many", start + ",}", false);
    row("invalid UTF-8 in a text", start + ",\"name\":\"\xC3\x28\"}", false);
    row("an overlong form of a slash", start + ",\"name\":\"\xC0\xAF\"}", false);
    row("a lone surrogate", start + ",\"name\":\"\\ud800\"}", true);
    row("a NUL in a text", start + ",\"name\":\"a\\u0000b\"}", true);
    row("a key twice", start + ",\"name\":\"a\",\"name\":5}", true);
    row("the id twice, the first unknown", "{\"id\":\"x\"," + start.sliced(1) + '}', true);
    row("the id twice, the last unknown", start + ",\"id\":\"x\"}", false);
    row("wrong types everywhere",
        start
            + ",\"deviceId\":1,\"version\":[],\"name\":{},\"description\":true,\"dateTime\":-1,"
              "\"config\":\"x\",\"children\":{\"a\":1},\"metadata\":7}",
        true);
    row("children of every type",
        start + ",\"children\":[1,\"x\",null,true,[[]],{},{\"id\":5},{\"children\":[1]}]}", true);
    row("numbers out of range", start + ",\"config\":{\"payload\":1e999},\"x\":-1e-999}", false);
}

void tst_VDeviceConfigFromJson::bytes_mayBeAnything()
{
    QFETCH(const QByteArray, json);
    const auto config = read(json);
    QTEST(config != nullptr, "isRecord");
    if (config)
        QVERIFY(read(bytesOf(*config)) != nullptr); // What comes out can be read again.
}

void tst_VDeviceConfigFromJson::bytes_mayEndAnywhere()
{
    const QByteArray json = bytesOf(family());
    for (qsizetype size = 0; size < json.size(); ++size)
        QVERIFY2(read(json.first(size)) == nullptr, qPrintable(u"at byte %1"_s.arg(size)));
    QVERIFY(read(json) != nullptr);
}

void tst_VDeviceConfigFromJson::bytes_mayBeFlipped()
{
    const QByteArray json = bytesOf(family());
    QRandomGenerator random(seed());
    int records = 0;
    for (int run = 0; run < 5000; ++run) {
        QByteArray damaged = json;
        for (int i = random.bounded(1, 4); i > 0; --i)
            damaged[random.bounded(int(damaged.size()))] = char(random.bounded(256));
        const auto config = read(damaged);
        records += config ? 1 : 0;
        if (config)
            QVERIFY(read(bytesOf(*config)) != nullptr);
    }
    QVERIFY(records > 0 && records < 5000);
}

void tst_VDeviceConfigFromJson::nesting_mayBeDeep_data()
{
    QTest::addColumn<int>("levels");
    QTest::addColumn<bool>("isRecord");
    QTest::newRow("as deep as JSON may be") << 500 << true;
    QTest::newRow("deeper") << 600 << false;
    QTest::newRow("100 000 levels") << 100000 << false;
}

void tst_VDeviceConfigFromJson::nesting_mayBeDeep()
{
    QFETCH(const int, levels);
    for (const QUuid &kind : {Config::kind(), TestConfig<11>::kind()}) {
        const QByteArray open = "{\"id\":\"" + kindText(kind) + "\",\"children\":[";
        const QByteArray json = "{\"id\":\"" + kindText() + "\",\"children\":["
            + open.repeated(levels) + QByteArray("]}").repeated(levels) + "]}";
        onThePool([&] { // Where the stack may be smaller.
            const auto config = read(json);
            QTEST(config != nullptr, "isRecord");
            if (!config)
                return;
            const auto copy = read(bytesOf(*config));
            QVERIFY(copy && copy->equalsTo(config.get()));
            QCOMPARE(copy->hash(), config->hash());
            const bool isKnown = kind == Config::kind();
            QCOMPARE(config->count(QUuid(), true), isKnown ? levels : 1);
        });
    }
    QVERIFY(read(QByteArray("[").repeated(levels)) == nullptr);
    QVERIFY(read(QByteArray("{\"a\":").repeated(levels)) == nullptr);
}

void tst_VDeviceConfigFromJson::strings_mayBeHuge()
{
    const QByteArray huge(8 << 20, 'x');
    const QByteArray start = "{\"id\":\"" + kindText() + "\",\"";
    const auto config = read(start + "name\":\"" + huge + "\"}");
    QVERIFY(config != nullptr);
    QCOMPARE(config->name().size(), huge.size());
    QVERIFY(read(start + huge + "\":1}") != nullptr);
    QVERIFY(read("{\"id\":\"" + huge + "\"}") == nullptr);
    QVERIFY(read(start + "version\":\"" + huge + "\",\"dateTime\":\"" + huge + "\",\"deviceId\":\""
                 + huge + "\"}")
            != nullptr);
    QVERIFY(read(start + "children\":[" + QByteArray("{},").repeated(100000) + "{}]}") != nullptr);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigFromJson)
#include "tst_VDeviceConfigFromJson.moc"
