// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "support/Printers.h"
#include "support/Seed.h"
#include "support/Torture.h"

#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <QtCore/QRandomGenerator>
#include <QtCore/QSet>

#include <memory>

using namespace Support;

namespace {

/// The rules of editing, written down once more without threads, signals or files.
class Model
{
public:
    QMap<QUuid, VPrinterDriver> entries;
    QSet<QUuid> dirty;
    QSet<QUuid> marked;
    Stored file;

    bool insert(const QList<VPrinterDriver> &drivers)
    {
        for (const VPrinterDriver &driver : drivers) {
            entries.remove(driver.dataId());
            marked.remove(driver.dataId());
            dirty += driver.dataId();
            if (driver.isValid())
                entries[driver.dataId()] = driver;
        }
        return !drivers.isEmpty();
    }

    bool insertVolatile(const QList<VPrinterDriver> &drivers, bool replaces)
    {
        bool hasChanged = false;
        const QSet<QUuid> before = marked;
        marked.clear();
        for (const VPrinterDriver &driver : drivers) {
            const QUuid id = driver.dataId();
            const bool isPersistent = entries.contains(id) && !before.contains(id);
            if (!driver.isValid() || isPersistent)
                continue;
            marked += id;
            if (entries.contains(id) && entries[id] == driver)
                continue;
            entries[id] = driver;
            hasChanged = true;
        }
        if (!replaces)
            return hasChanged;
        const QSet<QUuid> gone = before - marked;
        for (const QUuid &id : gone)
            entries.remove(id);
        return hasChanged || !gone.isEmpty();
    }

    bool removes(const QList<QUuid> &ids)
    {
        bool hasRemoved = false;
        for (const QUuid &id : ids) {
            if (entries.remove(id) == 0)
                continue;
            dirty += id;
            hasRemoved = true;
        }
        return hasRemoved;
    }

    bool clearVolatile()
    {
        const bool hadAny = !marked.isEmpty();
        for (const QUuid &id : std::as_const(marked))
            entries.remove(id);
        marked.clear();
        return hadAny;
    }

    bool commit()
    {
        const bool hadAny = !dirty.isEmpty();
        for (const QUuid &id : std::as_const(dirty)) {
            file.remove(id.toString());
            if (entries.contains(id))
                file[id.toString()] = jsonText(entries[id]);
        }
        dirty.clear();
        return hadAny;
    }
};

/// Random arguments from a small world, so that they meet.
class World
{
public:
    explicit World(quint32 seed)
        : random(seed)
    { }

    VPrinterDriver driver()
    {
        const QString name = QString::number(random.bounded(6));
        if (random.bounded(6) == 0)
            return invalidPrinter(name);
        return renamed(printer(name), name + QChar(u'a' + random.bounded(3)));
    }
    QList<VPrinterDriver> drivers()
    {
        QList<VPrinterDriver> list;
        for (int i = random.bounded(4); i > 0; --i)
            list += driver();
        return list;
    }
    QList<QUuid> ids()
    {
        QList<QUuid> list;
        for (const VPrinterDriver &one : drivers())
            list += one.dataId();
        return list;
    }

    QRandomGenerator random;
};

} // namespace

/// Random edits, compared with a model after each.
class tst_model : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomEdits_agreeWithTheModel_data();
    void randomEdits_agreeWithTheModel();

private:
    struct Run
    {
        QBuffer buffer;
        VPrintersDb database{&buffer, u"key"_s};
        Model model;
    };
    void step(Run &run, World &world);
    void compare(Run &run);
};

/// One operation on both; their results and signals must agree.
void tst_model::step(Run &run, World &world)
{
    QSignalSpy changes(&run.database, &VPrintersDb::changed);
    QSignalSpy commits(&run.database, &VPrintersDb::committed);
    bool expectsChange = false;
    bool expectsCommit = false;
    switch (world.random.bounded(8)) {
    case 0:
    case 1: {
        const QList<VPrinterDriver> drivers = world.drivers();
        expectsChange = run.model.insert(drivers);
        QVERIFY(run.database.insert(drivers));
        break;
    }
    case 2: {
        const QList<VPrinterDriver> drivers = world.drivers();
        expectsChange = run.model.insertVolatile(drivers, false);
        QCOMPARE(run.database.insertVolatile(drivers), expectsChange);
        break;
    }
    case 3: {
        const QList<VPrinterDriver> drivers = world.drivers();
        expectsChange = run.model.insertVolatile(drivers, true);
        QCOMPARE(run.database.replaceVolatile(drivers), expectsChange);
        break;
    }
    case 4:
    case 5: {
        const QList<QUuid> ids = world.ids();
        expectsChange = run.model.removes(ids);
        QCOMPARE(run.database.removes(ids), expectsChange);
        break;
    }
    case 6:
        expectsChange = run.model.clearVolatile();
        run.database.clearVolatile();
        break;
    default:
        expectsCommit = run.model.commit();
        run.database.commit();
        break;
    }
    QCOMPARE(changes.size(), expectsChange ? 1 : 0);
    QCOMPARE(commits.size(), expectsCommit ? 1 : 0);
}

void tst_model::compare(Run &run)
{
    QCOMPARE(run.database.idList(), run.model.entries.keys());
    QCOMPARE(run.database.values(), run.model.entries.values());
    QCOMPARE(run.database.count(), run.model.entries.size());
    QCOMPARE(run.database.volatileCount(), run.model.marked.size());
    for (const QUuid &id : std::as_const(run.model.marked))
        QVERIFY(run.database.isVolatile(id));
    QCOMPARE(run.database.isDirty(), !run.model.dirty.isEmpty());
    QCOMPARE(stored(run.buffer.data(), u"key"_s), run.model.file);
}

void tst_model::randomEdits_agreeWithTheModel_data()
{
    QTest::addColumn<quint32>("seed");
    const quint32 first = seed();
    for (quint32 i = 0; i < quint32(rounds(20, 1'000)); ++i)
        QTest::addRow("seed %u", first + i) << first + i;
}

void tst_model::randomEdits_agreeWithTheModel()
{
    QFETCH(quint32, seed);
    World world(seed);
    Run run;
    run.database.init(false);
    for (int i = 0; i < 100; ++i) {
        step(run, world);
        compare(run);
        if (QTest::currentTestFailed()) {
            qWarning("after step %d", i);
            return;
        }
    }
    // A load gives what the file says, and says nothing of pending changes or marks.
    run.database.init(false);
    QCOMPARE(storedFrom(run.database.values()), run.model.file);
    QCOMPARE(run.database.volatileCount(), run.model.marked.size());
    QCOMPARE(run.database.isDirty(), !run.model.dirty.isEmpty());
}

QTEST_GUILESS_MAIN(tst_model)
#include "tst_model.moc"
