// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Records are read from JSON text and written to it directly, and may be decoded late. None of it
// may show: whatever the bytes, the record is the one that a tree of values gives.

#include "support/Drivers.h"
#include "support/RecordJson.h"
#include "support/Seed.h"
#include "support/TestConfig.h"

#include <vcore/VMetadata.h>

#include <QtCore/QJsonDocument>
#include <QtTest/QTest>

#include <atomic>
#include <memory>
#include <random>
#include <thread>
#include <vector>

using namespace Support;
using Norvane::VBytes;
using Norvane::Hardware::Interfaces::IVDeviceConfig;

namespace {

using Record = std::unique_ptr<IVDeviceConfig>;

/// The record as a tree of values gives it.
Record fromTree(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    const QUuid kind = QUuid::fromString(object.value("id"_L1).toString());
    Record record;
    if (kind == VPrinterDriver().id())
        record = std::make_unique<VPrinterDriver>();
    else if (kind == VPrintUnitDriver().id())
        record = std::make_unique<VPrintUnitDriver>();
    else if (kind == VElaborationDriver().id())
        record = std::make_unique<VElaborationDriver>();
    return record && record->setJsonObject(object) ? std::move(record) : nullptr;
}

QByteArray treeText(const IVDeviceConfig &record)
{
    return QJsonDocument(record.toJsonObject()).toJson(QJsonDocument::Compact);
}

/// Says where the records that `json` gives by the other roads differ; empty when nowhere.
QString differenceIn(const QByteArray &json)
{
    const Record expected = fromTree(json);
    const Record direct(VDeviceConfig::fromJson(json));
    const Record late(VDeviceConfig::fromJson(VBytes(json)));
    if ((expected == nullptr) != (direct == nullptr) || (expected == nullptr) != (late == nullptr))
        return u"accepted by one road only"_s;
    if (!expected)
        return {};
    const auto &lateConfig = static_cast<const VDeviceConfig &>(*late);
    if (late->dataId() != expected->dataId() || direct->dataId() != expected->dataId())
        return u"the content id"_s;
    const Record copy(static_cast<IVDeviceConfig *>(late->clone()));
    if (static_cast<const VDeviceConfig &>(*copy).toJson() != treeText(*expected))
        return u"the text of a copy that was not decoded"_s;
    if (lateConfig.toJson() != treeText(*expected))
        return u"the text"_s;
    for (const Record *record : {&direct, &late, &copy}) {
        if (treeText(**record) != treeText(*expected))
            return u"the JSON"_s;
        if (!(*record)->equalsTo(expected.get()) || !expected->equalsTo(record->get()))
            return u"equality"_s;
        if ((*record)->isValid() != expected->isValid()
            || (*record)->isEmpty() != expected->isEmpty() || (*record)->hash() != expected->hash())
            return u"what is said about it"_s;
    }
    return {};
}

/// What differenceIn() says, with the JSON that shows it.
QString complaintAbout(const QByteArray &json)
{
    const QString difference = differenceIn(json);
    return difference.isEmpty() ? difference : difference + u": "_s + QString::fromUtf8(json);
}

#define COMPARE_ROADS(json) QCOMPARE(complaintAbout(json), QString())

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// A driver of which nothing keeps a load from decoding it late.
QJsonObject plainPrinterJson(const QString &name)
{
    return without(printerJson(name), u"/metadata"_s);
}

} // namespace

class tst_direct_json : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { QLocale::setDefault(QLocale(u"it_IT"_s)); }

    void randomRecords();
    void indentedText();
    void bytesChangedAtRandom();
    void partsExchangedAtRandom();
    void textInOddForms_data();
    void textInOddForms();
    void metadata_travelAsTheyAlwaysDid();
    void aChildOfAnUnknownKind_isKept();
    void aKindRegisteredLater_doesNotChangeWhatWasRead();
    void aClassDerivedByTheHost_readsItsOwnWay();
    void aDriver_isDecodedWhenItIsLookedAt();
    void lateRecords_mayBeChanged();
    void lateRecords_mayBeAssigned();
    void copiesOfALateRecord_mayBeLookedAtOnManyThreads();
};

void tst_direct_json::randomRecords()
{
    RandomDrivers random(seed());
    for (int run = 0; run < 300; ++run) {
        COMPARE_ROADS(random.printer().toJson());
        COMPARE_ROADS(random.printUnit().toJson());
        COMPARE_ROADS(random.elaboration().toJson());
    }
}

void tst_direct_json::indentedText()
{
    RandomDrivers random(seed());
    for (int run = 0; run < 100; ++run)
        COMPARE_ROADS(QJsonDocument(random.printer().toJsonObject()).toJson());
}

void tst_direct_json::bytesChangedAtRandom()
{
    std::mt19937 random(seed());
    const QByteArray json = compact(without(plainPrinterJson(u"Naïve 日本"_s), u"/config/icon"_s));
    const QByteArray bytes = "\"\\{}[],:.-+eE0129 \t\ntfn\x80\xc3\xff";
    for (int run = 0; run < 3000; ++run) {
        QByteArray changed = json;
        for (auto changes = 1 + random() % 3; changes > 0; --changes) {
            const auto at = qsizetype(random() % std::size_t(changed.size()));
            const char byte = bytes[qsizetype(random() % std::size_t(bytes.size()))];
            switch (random() % 3) {
            case 0:
                changed[at] = byte;
                break;
            case 1:
                changed.insert(at, byte);
                break;
            default:
                changed.remove(at, 1);
            }
        }
        COMPARE_ROADS(changed);
    }
}

// Every value at every place: what has the wrong type takes its fallback on each road.
void tst_direct_json::partsExchangedAtRandom()
{
    std::mt19937 random(seed());
    const QByteArray json = compact(without(plainPrinterJson(u"A"_s), u"/config/icon"_s));
    const QByteArrayList parts{"null",
                               "true",
                               "0",
                               "-1",
                               "4.0",
                               "4.5",
                               "1e1",
                               "3000000000",
                               "12345678901234567890",
                               "\"\"",
                               "\"x\"",
                               "[]",
                               "{}",
                               "[[]]",
                               "\"Inkjet\"",
                               "\" Inkjet \"",
                               "\"Rle, Lzw\"",
                               "\"Rle,\"",
                               "\"2\"",
                               "\"{0}\"",
                               "[{}]",
                               "[null,1,\"Cyan\"]",
                               "\"1.0.0\"",
                               "\"2026-11-21T09:30:00\""};
    QList<std::pair<qsizetype, qsizetype>> places;
    for (qsizetype at = json.indexOf("\":"); at >= 0; at = json.indexOf("\":", at + 2)) {
        const qsizetype end = json.indexOf(',', at);
        if (end > 0)
            places.append({at + 2, end - at - 2});
    }
    for (int run = 0; run < 3000; ++run) {
        const auto [at, size] = places.at(qsizetype(random() % std::size_t(places.size())));
        const QByteArray &part = parts.at(qsizetype(random() % std::size_t(parts.size())));
        COMPARE_ROADS(QByteArray(json).replace(at, size, part));
    }
}

void tst_direct_json::textInOddForms_data()
{
    QTest::addColumn<QByteArray>("json");
    const QByteArray json = compact(plainPrinterJson(u"A"_s));
    const QByteArray kind = VPrinterDriver().id().toByteArray();
    QTest::newRow("a byte order mark") << "\xef\xbb\xbf" + json;
    QTest::newRow("trailing text") << json + "x";
    QTest::newRow("a NUL behind") << json + QByteArray(1, '\0');
    QTest::newRow("the kind twice")
        << QByteArray(json).replace("{\"children\"", "{\"id\":\"x\",\"children\"");
    QTest::newRow("the kind in capitals") << QByteArray(json).replace(kind, kind.toUpper());
    QTest::newRow("the kind without braces")
        << QByteArray(json).replace(kind, kind.sliced(1, kind.size() - 2));
    QTest::newRow("text behind the kind") << QByteArray(json).replace(kind, kind + "é");
    QTest::newRow("only the kind") << QByteArray("{\"id\":\"" + kind + "\"}");
    QTest::newRow("children that are no list")
        << QByteArray("{\"children\":{},\"id\":\"" + kind + "\"}");
    QTest::newRow("children that are no objects")
        << QByteArray("{\"children\":[1,\"x\",null,[]],\"id\":\"" + kind + "\"}");
    QTest::newRow("a child without a kind")
        << QByteArray("{\"children\":[{}],\"id\":\"" + kind + "\"}");
    QTest::newRow("a driver in a driver")
        << QByteArray("{\"children\":[" + json + "],\"id\":\"" + kind + "\"}");
    QTest::newRow("escapes") << compact(printerJson(u"\"quoted\" \\ \u0001"_s));
}

void tst_direct_json::textInOddForms()
{
    QFETCH(QByteArray, json);
    COMPARE_ROADS(json);
}

void tst_direct_json::metadata_travelAsTheyAlwaysDid()
{
    QJsonObject printer = plainPrinterJson(u"A"_s);
    const auto metadata = [](const char *flags) {
        return QJsonArray{QJsonObject{
            {"key"_L1, u"7"_s}, {"flags"_L1, QLatin1StringView(flags)}, {"value"_L1, 1}}};
    };
    printer.insert("metadata"_L1, metadata("None"));
    COMPARE_ROADS(compact(printer));
    printer.insert("metadata"_L1, metadata("KillOnCopy"));
    const Record late(VDeviceConfig::fromJson(VBytes(compact(printer))));
    QCOMPARE(late->metadataCount(), 1);
    const Record copy(static_cast<IVDeviceConfig *>(late->clone()));
    QCOMPARE(copy->metadataCount(), 0);
}

void tst_direct_json::aChildOfAnUnknownKind_isKept()
{
    const QJsonObject unknown{{"id"_L1, u"{11111111-2222-3333-4444-555555555555}"_s},
                              {"config"_L1, QJsonObject{{"new"_L1, 1.5}}},
                              {"extra"_L1, u"kept"_s}};
    QJsonObject printer = plainPrinterJson(u"A"_s);
    QJsonArray children = printer.value("children"_L1).toArray();
    children.append(unknown);
    printer.insert("children"_L1, children);
    COMPARE_ROADS(compact(printer));
}

// What counts is what was registered when the record was read, whenever it is decoded.
void tst_direct_json::aKindRegisteredLater_doesNotChangeWhatWasRead()
{
    using Later = TestConfig<77>;
    QJsonObject printer = plainPrinterJson(u"A"_s);
    printer.insert("children"_L1, QJsonArray{Later(u"late"_s).toJsonObject()});
    const QByteArray json = compact(printer);
    const Record late(VDeviceConfig::fromJson(VBytes(json)));
    VDeviceConfig::registerConfig(std::make_unique<Later>().release());
    QVERIFY(dynamic_cast<Later *>(late->values(QUuid()).constFirst()) == nullptr);
    const Record after(VDeviceConfig::fromJson(VBytes(json)));
    QVERIFY(dynamic_cast<Later *>(after->values(QUuid()).constFirst()) != nullptr);
    COMPARE_ROADS(json);
}

namespace {

/// A host's own kind of driver, which knows more than the driver itself.
class HostDriver : public VPrinterDriver
{
public:
    HostDriver() = default;
    explicit HostDriver(const VPrinterDriver &driver)
        : VPrinterDriver(driver)
    { }
    QString extra;

protected:
    QJsonObject toInnerJsonObject() const override
    {
        QJsonObject object = VPrinterDriver::toInnerJsonObject();
        object.insert("extra"_L1, extra);
        return object;
    }
    bool setInnerJsonObject(const QJsonObject &object) override
    {
        extra = object.value("extra"_L1).toString();
        return VPrinterDriver::setInnerJsonObject(object);
    }
    QUuid innerDataId(bool *) const override { return QUuid::createUuidV5(deviceId(), extra); }
};

VPrinterDriver lateDriver(const QString &name)
{
    const Record record(VDeviceConfig::fromJson(VBytes(compact(plainPrinterJson(name)))));
    return static_cast<const VPrinterDriver &>(*record);
}

} // namespace

void tst_direct_json::aClassDerivedByTheHost_readsItsOwnWay()
{
    HostDriver driver(lateDriver(u"A"_s));
    QCOMPARE(driver.dataId(), QUuid::createUuidV5(driver.deviceId(), QString()));
    QCOMPARE(driver.name(), u"A"_s);
    driver.extra = u"more"_s;
    HostDriver back;
    QVERIFY(back.setJsonObject(QJsonDocument::fromJson(driver.toJson()).object()));
    QCOMPARE(back.extra, u"more"_s);
    QCOMPARE(back.printerClass(), driver.printerClass());
}

// It holds on to its bytes until then. Copying it and asking for its content id are no looks.
void tst_direct_json::aDriver_isDecodedWhenItIsLookedAt()
{
    QByteArray json = compact(plainPrinterJson(u"A"_s));
    const Record late(VDeviceConfig::fromJson(VBytes(json)));
    const VPrinterDriver copy = static_cast<const VPrinterDriver &>(*late);
    QCOMPARE(copy.dataId(), late->dataId());
    QVERIFY(!json.isDetached());
    QCOMPARE(copy.name(), u"A"_s);
    QVERIFY(json.isDetached());
    QCOMPARE(late->name(), u"A"_s);

    QByteArray annotated = compact(printerJson(u"A"_s));
    const Record eager(VDeviceConfig::fromJson(VBytes(annotated)));
    QVERIFY(annotated.isDetached());
}

void tst_direct_json::lateRecords_mayBeChanged()
{
    const VPrinterDriver original = lateDriver(u"A"_s);
    const QUuid id = original.dataId();
    VPrinterDriver named = original;
    named.setName(u"B"_s);
    VPrinterDriver limited = original;
    limited.setMaximumFaces(99);
    VPrinterDriver childless = original;
    QVERIFY(childless.remove(QUuid(), false));
    VPrinterDriver annotated = original;
    Norvane::VMetadata entry(5, u"note"_s, Norvane::MetadataFlags::None);
    QVERIFY(annotated.insertMetadata(&entry, false));
    QCOMPARE(annotated.name(), u"A"_s);
    QCOMPARE(annotated.metadataCount(), 1);
    VPrinterDriver reread = original;
    QVERIFY(reread.setJsonObject(printerJson(u"C"_s)));

    QCOMPARE(named.name(), u"B"_s);
    QVERIFY(named != original);
    QCOMPARE(named.maximumFaces(), original.maximumFaces());
    QVERIFY(limited.dataId() != id);
    QVERIFY(!childless.isValid());
    QCOMPARE(reread.name(), u"C"_s);
    QVERIFY(original.isValid());
    QCOMPARE(original.name(), u"A"_s);
    QCOMPARE(original.dataId(), id);
    QCOMPARE(treeText(original), treeText(*fromTree(compact(plainPrinterJson(u"A"_s)))));
}

void tst_direct_json::lateRecords_mayBeAssigned()
{
    const VPrinterDriver a = lateDriver(u"A"_s);
    VPrinterDriver b = lateDriver(u"B"_s);
    b.setMaximumFaces(50);
    VPrinterDriver target;
    target = a;
    QCOMPARE(target, a);
    VPrinterDriver late = lateDriver(u"B"_s);
    late = b;
    QCOMPARE(late.maximumFaces(), 50);
    // The base alone: the own fields stay those of the target.
    VPrinterDriver mixed = b;
    static_cast<VDeviceConfig &>(mixed) = lateDriver(u"A"_s);
    QCOMPARE(mixed.name(), u"A"_s);
    QCOMPARE(mixed.maximumFaces(), 50);
    VPrinterDriver own = lateDriver(u"A"_s);
    static_cast<VDeviceConfig &>(own) = b;
    QCOMPARE(own.name(), u"B"_s);
    QCOMPARE(own.maximumFaces(), a.maximumFaces());
    // A base made from a driver has no driver's fields to be given.
    const TestConfig<78> base = [] {
        TestConfig<78> config;
        static_cast<VDeviceConfig &>(config) = lateDriver(u"A"_s);
        return config;
    }();
    QCOMPARE(base.name(), u"A"_s);
}

void tst_direct_json::copiesOfALateRecord_mayBeLookedAtOnManyThreads()
{
    const QByteArray expected = treeText(*fromTree(compact(plainPrinterJson(u"A"_s))));
    for (int run = 0; run < 50; ++run) {
        const VPrinterDriver original = lateDriver(u"A"_s);
        std::vector<VPrinterDriver> copies(8, original);
        std::atomic<int> good = 0;
        {
            std::vector<std::jthread> threads;
            threads.reserve(copies.size());
            for (VPrinterDriver &copy : copies) {
                threads.emplace_back([&] {
                    auto *child = copy.values(QUuid()).constFirst();
                    child->setName(child->name() + u"!"_s);
                    child->setName(child->name().chopped(1));
                    good += copy.toJson() == expected ? 1 : 0;
                });
            }
        }
        QCOMPARE(good.load(), 8);
    }
}

QTEST_GUILESS_MAIN(tst_direct_json)
#include "tst_direct_json.moc"
