// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Seed.h"

#include <DriverMap.h>

#include <QtCore/QMap>
#include <QtCore/QRandomGenerator>
#include <QtTest/QTest>

#include <memory>
#include <optional>
#include <vector>

using namespace Support;
using Norvane::Kilnjet::DriverMap;

namespace {

using Names = QMap<QUuid, QString>;

VPrinterDriver named(const QString &name)
{
    VPrinterDriver driver;
    driver.setName(name);
    return driver;
}

QUuid numbered(int number)
{
    return QUuid::createUuidV5(QUuid(), QString::number(number));
}

DriverMap::Item item(const QUuid &id, const QString &name)
{
    return {.id = id, .driver = std::make_unique<VPrinterDriver>(named(name))};
}

/// The map's content, asked for in every way, of which all must agree.
std::optional<Names> namesIn(const DriverMap &map)
{
    const QList<QUuid> ids = map.keys();
    const QList<VPrinterDriver> drivers = map.values();
    Names names;
    for (qsizetype i = 0; i < ids.size(); ++i) {
        const VPrinterDriver *const found = map.find(ids[i]);
        if (found == nullptr || i >= drivers.size() || found->name() != drivers[i].name())
            return std::nullopt;
        names.insert(ids[i], found->name());
    }
    // Of a map of Qt the keys are each there once, in ascending order.
    const bool agree = names.keys() == ids && drivers.size() == ids.size()
        && map.size() == ids.size() && !map.contains(numbered(-1));
    return agree ? std::optional(names) : std::nullopt;
}

/// Ids that are told apart by other parts than their first, and by the kind that they are of.
QList<QUuid> similarIds()
{
    QList<QUuid> ids;
    for (const uchar variant : {uchar(0x00), uchar(0x80), uchar(0xc0), uchar(0xe0)}) {
        for (const ushort part : {ushort(2), ushort(1), ushort(0)})
            ids.append(QUuid(7, part, 0x4000, variant, 0, 0, 0, 0, 0, 0, uchar(part)));
        ids.append(QUuid(6, 1, 0x4000, variant, 0, 0, 0, 0, 0, 0, 0));
    }
    return ids;
}

} // namespace

/// The drivers of a database by their ids.
class tst_driver_map : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void map_isEmptyAtFirst();
    void map_holdsWhatItIsMadeOf_data();
    void map_holdsWhatItIsMadeOf();
    void map_isMadeWithoutTheItemsThatHaveNoDriver();
    void map_isMadeOfTheLastItemOfAnId();
    void map_ordersIdsThatBeginAlike();
    void map_behavesAsAMapOfQtUnderAnyEdits();
    void insert_replacesWhatIsThere();
    void remove_ofWhatIsNotThereChangesNothing();
    void map_thatWasEmptiedTakesDriversAgain();
};

void tst_driver_map::map_isEmptyAtFirst()
{
    const DriverMap map;
    QCOMPARE(namesIn(map), Names());
    QCOMPARE(map.find(QUuid()), nullptr);
}

void tst_driver_map::map_holdsWhatItIsMadeOf_data()
{
    QTest::addColumn<int>("size");

    // Below, at and above the size of one block and of two, and many blocks.
    for (const int size : {0, 1, 127, 128, 129, 256, 257, 5000})
        QTest::addRow("%d", size) << size;
}

void tst_driver_map::map_holdsWhatItIsMadeOf()
{
    QFETCH(const int, size);
    std::vector<DriverMap::Item> items;
    Names expected;
    for (int i = 0; i < size; ++i) {
        items.push_back(item(numbered(i), QString::number(i)));
        expected.insert(numbered(i), QString::number(i));
    }

    QCOMPARE(namesIn(DriverMap(std::move(items))), expected);
}

void tst_driver_map::map_isMadeWithoutTheItemsThatHaveNoDriver()
{
    const QUuid id = numbered(1);
    std::vector<DriverMap::Item> items;
    items.push_back({.id = numbered(2), .driver = nullptr});
    items.push_back(item(id, u"here"_s));
    items.push_back({.id = id, .driver = nullptr});

    QCOMPARE(namesIn(DriverMap(std::move(items))), Names({{id, u"here"_s}}));
}

void tst_driver_map::map_isMadeOfTheLastItemOfAnId()
{
    Names expected;
    std::vector<DriverMap::Item> items;
    for (const QString &name : {u"first"_s, u"second"_s, u"third"_s}) {
        for (const QUuid &id : similarIds()) {
            items.push_back(item(id, name));
            expected.insert(id, name);
        }
    }

    QCOMPARE(namesIn(DriverMap(std::move(items))), expected);
}

void tst_driver_map::map_ordersIdsThatBeginAlike()
{
    Names expected;
    std::vector<DriverMap::Item> items;
    DriverMap edited;
    for (const QUuid &id : similarIds()) {
        expected.insert(id, id.toString());
        items.push_back(item(id, id.toString()));
        edited.insert(id, named(id.toString()));
    }

    QCOMPARE(namesIn(DriverMap(std::move(items))), expected);
    QCOMPARE(namesIn(edited), expected);
}

void tst_driver_map::map_behavesAsAMapOfQtUnderAnyEdits()
{
    QRandomGenerator random(seed());
    QList<QUuid> ids;
    for (int i = 0; i < 600; ++i)
        ids.append(numbered(i));
    DriverMap map;
    Names model;
    // It grows to several blocks, shrinks to a tenth, grows again, and is emptied.
    for (const int removalsInTen : {1, 9, 3}) {
        for (int step = 0; step < 3000; ++step) {
            const QUuid &id = ids[random.bounded(int(ids.size()))];
            if (random.bounded(10) < removalsInTen) {
                QCOMPARE(map.remove(id), model.remove(id) == 1);
            } else {
                const QString name = QString::number(step);
                map.insert(id, named(name));
                model.insert(id, name);
            }
            if (step % 100 == 0)
                QCOMPARE(namesIn(map), model);
        }
    }
    for (const QUuid &id : std::as_const(ids))
        map.remove(id);
    QCOMPARE(namesIn(map), Names());
}

void tst_driver_map::insert_replacesWhatIsThere()
{
    const QUuid id = numbered(1);
    DriverMap map;
    map.insert(id, named(u"old"_s));
    map.insert(id, named(u"new"_s));
    QCOMPARE(namesIn(map), Names({{id, u"new"_s}}));
}

void tst_driver_map::remove_ofWhatIsNotThereChangesNothing()
{
    const QUuid id = numbered(1);
    DriverMap map;
    QVERIFY(!map.remove(id));
    map.insert(id, named(u"here"_s));
    QVERIFY(!map.remove(numbered(2)));
    QVERIFY(!map.remove(QUuid()));
    QCOMPARE(namesIn(map), Names({{id, u"here"_s}}));
}

void tst_driver_map::map_thatWasEmptiedTakesDriversAgain()
{
    const QUuid id = numbered(1);
    DriverMap map;
    map.insert(id, named(u"old"_s));
    QVERIFY(map.remove(id));
    QCOMPARE(namesIn(map), Names());
    map.insert(id, named(u"new"_s));
    QCOMPARE(namesIn(map), Names({{id, u"new"_s}}));
}

QTEST_GUILESS_MAIN(tst_driver_map)
#include "tst_driver_map.moc"
