// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VConvert.h>
#include <vcore/VEnumRegistration.h>
#include <vcore/VEnumRuntimeLoader.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace Test {

enum class Kiln
{
    Roller,
    Shuttle
};
enum class Fuel
{
    Gas,
    Wood
};
enum class Shelf
{
    Lower,
    Upper
};

VCORE_DECLARE_ENUM_RUNTIME(, Kiln, VEnumBase)
VCORE_DECLARE_ENUM_RUNTIME(, Fuel, VEnumBase)
VCORE_DECLARE_ENUM_RUNTIME(, Shelf, VEnumBase)

constexpr VEnumEntry<Kiln> kKiln[] = {{Kiln::Roller, "Roller"_L1}, {Kiln::Shuttle, "Shuttle"_L1}};
constexpr VEnumEntry<Fuel> kFuel[] = {{Fuel::Gas, "Gas"_L1}, {Fuel::Wood, "Wood"_L1}};
constexpr VEnumEntry<Shelf> kShelf[] = {{Shelf::Lower, "Lower"_L1}, {Shelf::Upper, "Upper"_L1}};

VCORE_DEFINE_ENUM_RUNTIME(Kiln, kKiln)
VCORE_DEFINE_ENUM_RUNTIME(Fuel, kFuel)
VCORE_DEFINE_ENUM_RUNTIME(Shelf, kShelf)

} // namespace Test

Q_DECLARE_METATYPE(Test::Kiln)
Q_DECLARE_METATYPE(Test::Fuel)

class tst_EnumRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void find_givesNullForAnUnknownName();
    void find_givesTheRuntimeObject();
    void find_isCaseSensitive();
    void insert_replacesAnotherOfTheName();
    void remove_takesOnlyItsOwn();
    void remove_isNeededAsOftenAsInsert();
    void names_areSorted();
    void registration_makesKnownAndForgets();
    void registration_buildsNoRuntimeObject();
    void registration_leavesOutWhatIsNoMetaType();
};

void tst_EnumRegistry::cleanup()
{
    QCOMPARE(VEnumRegistry::names(), QStringList());
}

void tst_EnumRegistry::find_givesNullForAnUnknownName()
{
    QCOMPARE(VEnumRegistry::find(u"Kiln"_s), nullptr);
    QCOMPARE(VEnumRegistry::find(QString()), nullptr);
}

void tst_EnumRegistry::find_givesTheRuntimeObject()
{
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    const IVEnum *const found = VEnumRegistry::find(u"Kiln"_s);
    QCOMPARE(found, &Test::Kiln_T::instance());
    const auto &kiln = static_cast<const VEnumBase<Test::Kiln> &>(*found);
    QCOMPARE(kiln.textOf(Test::Kiln::Shuttle), u"Shuttle"_s);
    VEnumRegistry::remove(u"Kiln"_s, &Test::Kiln_T::object);
}

void tst_EnumRegistry::find_isCaseSensitive()
{
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    QCOMPARE(VEnumRegistry::find(u"kiln"_s), nullptr);
    VEnumRegistry::remove(u"Kiln"_s, &Test::Kiln_T::object);
}

void tst_EnumRegistry::insert_replacesAnotherOfTheName()
{
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    VEnumRegistry::insert(u"Kiln"_s, &Test::Fuel_T::object);
    QCOMPARE(VEnumRegistry::find(u"Kiln"_s), &Test::Fuel_T::instance());
    VEnumRegistry::remove(u"Kiln"_s, &Test::Fuel_T::object);
}

void tst_EnumRegistry::remove_takesOnlyItsOwn()
{
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    VEnumRegistry::remove(u"Kiln"_s, &Test::Fuel_T::object);
    VEnumRegistry::remove(u"Fuel"_s, &Test::Kiln_T::object);
    QCOMPARE(VEnumRegistry::find(u"Kiln"_s), &Test::Kiln_T::instance());
    VEnumRegistry::remove(u"Kiln"_s, &Test::Kiln_T::object);
}

void tst_EnumRegistry::remove_isNeededAsOftenAsInsert()
{
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    VEnumRegistry::insert(u"Kiln"_s, &Test::Kiln_T::object);
    VEnumRegistry::remove(u"Kiln"_s, &Test::Kiln_T::object);
    QCOMPARE(VEnumRegistry::names(), QStringList{u"Kiln"_s});
    VEnumRegistry::remove(u"Kiln"_s, &Test::Kiln_T::object);
    QCOMPARE(VEnumRegistry::names(), QStringList());
}

void tst_EnumRegistry::names_areSorted()
{
    const VEnumRegistration<Test::Shelf_T, Test::Kiln_T, Test::Fuel_T> registration;
    QCOMPARE(VEnumRegistry::names(), (QStringList{u"Fuel"_s, u"Kiln"_s, u"Shelf"_s}));
}

void tst_EnumRegistry::registration_makesKnownAndForgets()
{
    int id = 0;
    {
        const VEnumRegistration<Test::Kiln_T, Test::Fuel_T> registration;
        const QVariant value = QVariant::fromValue(Test::Kiln::Shuttle);
        id = value.metaType().id();
        QCOMPARE(VConvert::toString(value, QLocale::c()), u"Shuttle"_s);
        QCOMPARE(QMetaType::fromName("Test::Kiln").id(), id);
    }
    QCOMPARE(VEnumRegistry::find(u"Kiln"_s), nullptr);
    QVERIFY(VVariantConvert::converter(id) == nullptr);
    QVERIFY(!QMetaType::fromName("Test::Kiln").isValid());
}

void tst_EnumRegistry::registration_buildsNoRuntimeObject()
{
    struct Loader final : IVEnumRuntimeLoader
    {
        ~Loader() override { VEnumRuntimeLoader::remove(this); }
        QString name() const override { return u"Shelf"_s; }
        void applyTo(IVEnum *) override { ++calls; }
        int calls = 0;
    } loader;
    QVERIFY(VEnumRuntimeLoader::insert(&loader));
    const VEnumRegistration<Test::Shelf_T> registration;
    QCOMPARE(VEnumRegistry::names(), QStringList{u"Shelf"_s});
    QCOMPARE(loader.calls, 0);
    QVERIFY(VEnumRegistry::find(u"Shelf"_s) != nullptr);
    QCOMPARE(loader.calls, 1);
}

void tst_EnumRegistry::registration_leavesOutWhatIsNoMetaType()
{
    const VEnumRegistration<Test::Shelf_T> registration;
    QVERIFY(VEnumRegistry::find(u"Shelf"_s) != nullptr);
    QVERIFY(!QMetaType::fromName("Test::Shelf").isValid());
}

QTEST_GUILESS_MAIN(tst_EnumRegistry)
#include "tst_EnumRegistry.moc"
