// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// Who the library says it is.

#include <kilnjet/VKilnjetInfo.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Kilnjet;
using namespace Qt::StringLiterals;

static_assert(std::is_nothrow_move_assignable_v<VKilnjetInfo>);
static_assert(std::is_copy_assignable_v<VKilnjetInfo>);
static_assert(std::is_empty_v<VKilnjetInfo>);
static_assert(std::is_same_v<decltype(VKilnjetInfo::build()), quint32>);

class tst_Info : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void version_isThatOfTheInterface();
    void build_isNotPartOfTheVersion();
    void texts_areThoseOfTheModule();
    void title_isTheModulesName();
    void assignment_givesTheObjectItself();
};

void tst_Info::version_isThatOfTheInterface()
{
    QCOMPARE(VKilnjetInfo::version().packed(), 0x0002000Cu);
    QCOMPARE(VKilnjetInfo::version().toString(), u"2.0.12"_s);
}

void tst_Info::build_isNotPartOfTheVersion()
{
    QCOMPARE(VKilnjetInfo::build(), 1u);
}

void tst_Info::texts_areThoseOfTheModule()
{
    QCOMPARE(VKilnjetInfo::company(), u"Norvane"_s);
    QCOMPARE(VKilnjetInfo::copyright(), u"Copyright \u00A9 2026 Norvane"_s);
    QCOMPARE(VKilnjetInfo::description(), u"Common Framework Library"_s);
}

void tst_Info::title_isTheModulesName()
{
    QCOMPARE(VKilnjetInfo::title(), u"vkilnjet"_s);
    QCOMPARE(VKilnjetInfo::moduleName(), VKilnjetInfo::title());
}

void tst_Info::assignment_givesTheObjectItself()
{
    VKilnjetInfo info;
    const VKilnjetInfo other;
    QCOMPARE(&(info = other), &info);
    QCOMPARE(&(info = VKilnjetInfo()), &info);
}

QTEST_GUILESS_MAIN(tst_Info)
#include "tst_Info.moc"
