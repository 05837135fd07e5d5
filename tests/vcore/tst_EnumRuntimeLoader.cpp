// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VEnumBase.h>
#include <vcore/VEnumRuntimeLoader.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace Test {

// One enumeration a test: a runtime object is built once in a process.
enum class Glass
{
    Clear,
    Frosted
};
enum class Clay
{
    Red,
    White
};
enum class Sand
{
    Fine,
    Coarse
};

VCORE_DECLARE_ENUM_RUNTIME(, Glass, VEnumBase)
VCORE_DECLARE_ENUM_RUNTIME(, Clay, VEnumBase)
VCORE_DECLARE_ENUM_RUNTIME(, Sand, VEnumBase)

constexpr VEnumEntry<Glass> kGlass[] = {
    {Glass::Clear, "Clear"_L1},
    {Glass::Frosted, "Frosted"_L1},
};
constexpr VEnumEntry<Clay> kClay[] = {
    {Clay::Red, "Red"_L1},
    {Clay::White, "White"_L1},
};
constexpr VEnumEntry<Sand> kSand[] = {
    {Sand::Fine, "Fine"_L1},
    {Sand::Coarse, "Coarse"_L1},
};

VCORE_DEFINE_ENUM_RUNTIME(Glass, kGlass)
VCORE_DEFINE_ENUM_RUNTIME(Clay, kClay)
VCORE_DEFINE_ENUM_RUNTIME(Sand, kSand)

} // namespace Test

namespace {

using namespace Test;

/// A loader that adds rows, and counts. It is registered while it lives.
class Loader final : public IVEnumRuntimeLoader
{
public:
    explicit Loader(const QString &name, const QList<std::pair<qint64, QString>> &rows = {})
        : m_name(name)
        , m_rows(rows)
        , m_inserted(VEnumRuntimeLoader::insert(this))
    { }
    ~Loader() override { VEnumRuntimeLoader::remove(this); }
    Q_DISABLE_COPY_MOVE(Loader)

    QString name() const override { return m_name; }
    void applyTo(IVEnum *object) override
    {
        ++m_calls;
        m_lastName = object->name();
        for (const auto &[number, name] : m_rows)
            object->names().add(number, name);
    }

    bool isInserted() const { return m_inserted; }
    int calls() const { return m_calls; }
    QString lastName() const { return m_lastName; }

private:
    QString m_name;
    QList<std::pair<qint64, QString>> m_rows;
    bool m_inserted;
    int m_calls = 0;
    QString m_lastName;
};

} // namespace

class tst_EnumRuntimeLoader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loader_isNullForAnUnknownName();
    void insert_refusesNull();
    void insert_keepsTheFirstOfAName();
    void remove_takesOnlyTheLoaderItself();
    void firstUse_appliesTheLoaderOnce();
    void firstUse_keepsTheWrittenNamesOfTheTable();
    void loader_comesTooLateAfterTheFirstUse();
};

void tst_EnumRuntimeLoader::loader_isNullForAnUnknownName()
{
    QCOMPARE(VEnumRuntimeLoader::loader(u"Nothing"_s), nullptr);
    QCOMPARE(VEnumRuntimeLoader::loader(QString()), nullptr);
}

void tst_EnumRuntimeLoader::insert_refusesNull()
{
    QVERIFY(!VEnumRuntimeLoader::insert(nullptr));
    VEnumRuntimeLoader::remove(nullptr);
}

void tst_EnumRuntimeLoader::insert_keepsTheFirstOfAName()
{
    const Loader first(u"Wood"_s);
    QVERIFY(first.isInserted());
    {
        const Loader second(u"Wood"_s);
        QVERIFY(!second.isInserted());
    }
    QCOMPARE(VEnumRuntimeLoader::loader(u"Wood"_s), &first);
    QCOMPARE(VEnumRuntimeLoader::loader(u"wood"_s), nullptr);
}

void tst_EnumRuntimeLoader::remove_takesOnlyTheLoaderItself()
{
    {
        const Loader loader(u"Stone"_s);
        QCOMPARE(VEnumRuntimeLoader::loader(u"Stone"_s), &loader);
    }
    QCOMPARE(VEnumRuntimeLoader::loader(u"Stone"_s), nullptr);
    const Loader another(u"Stone"_s);
    QVERIFY(another.isInserted());
}

void tst_EnumRuntimeLoader::firstUse_appliesTheLoaderOnce()
{
    Loader loader(u"Glass"_s, {{7, u"Smoked"_s}});
    QCOMPARE(loader.calls(), 0);
    const Glass_T &glass = Glass_T::instance();
    QCOMPARE(loader.calls(), 1);
    QCOMPARE(loader.lastName(), u"Glass"_s);
    QCOMPARE(glass.toString(7, QLocale::c()), u"Smoked"_s);
    QCOMPARE(glass.valueOf(u"Smoked"_s), Glass(7));
    QCOMPARE(glass.names().numbers(), (QList<qint64>{0, 1, 7}));
    QCOMPARE(&Glass_T::instance(), &glass);
    QCOMPARE(loader.calls(), 1);
}

void tst_EnumRuntimeLoader::firstUse_keepsTheWrittenNamesOfTheTable()
{
    const Loader loader(u"Clay"_s, {{0, u"Rosso"_s}, {1, u"White"_s}});
    const Clay_T &clay = Clay_T::instance();
    QCOMPARE(clay.textOf(Clay::Red), u"Red"_s);
    QCOMPARE(clay.valueOf(u"Rosso"_s), Clay::Red);
    QCOMPARE(clay.names().names(1), QStringList{u"White"_s});
}

void tst_EnumRuntimeLoader::loader_comesTooLateAfterTheFirstUse()
{
    QCOMPARE(Sand_T::instance().textOf(Sand::Coarse), u"Coarse"_s);
    const Loader loader(u"Sand"_s, {{7, u"Wet"_s}});
    QCOMPARE(Sand_T::instance().toString(7, QLocale::c()), u"7"_s);
    QCOMPARE(loader.calls(), 0);
}

QTEST_GUILESS_MAIN(tst_EnumRuntimeLoader)
#include "tst_EnumRuntimeLoader.moc"
