// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VPair.h>

#include <QtTest/QTest>

#include <memory>

using namespace Norvane;

using Pair = VPair<double, double>;

static_assert(std::is_base_of_v<std::pair<double, double>, Pair>);
static_assert(std::is_copy_constructible_v<Pair> && std::is_copy_assignable_v<Pair>);

class tst_Pair : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void values_areZeroByDefault();
    void equality_isThePairs();
    void clone_isEqualAndIndependent();
};

void tst_Pair::values_areZeroByDefault()
{
    const Pair pair;
    QCOMPARE(pair.first, 0.0);
    QCOMPARE(pair.second, 0.0);
}

void tst_Pair::equality_isThePairs()
{
    QVERIFY(Pair(0.5, 2.0) == Pair(0.5, 2.0));
    QVERIFY(Pair(0.5, 2.0) != Pair(2.0, 0.5));
}

void tst_Pair::clone_isEqualAndIndependent()
{
    Pair pair(0.5, 2.0);
    const Interfaces::ICloneable &original = pair;
    const std::unique_ptr<Interfaces::ICloneable> copy(original.clone());
    const auto *const clone = dynamic_cast<const Pair *>(copy.get());
    QVERIFY(clone != nullptr);
    pair.first = 1.0;
    QCOMPARE(clone->first, 0.5);
    QCOMPARE(clone->second, 2.0);
}

QTEST_GUILESS_MAIN(tst_Pair)
#include "tst_Pair.moc"
