// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VPointer.h>

#include <QtTest/QTest>

#include <memory>

using namespace Norvane;

namespace {

/// Counts the objects that are alive.
struct Counted
{
    explicit Counted(int &alive)
        : m_alive(alive)
    {
        ++m_alive;
    }
    ~Counted() { --m_alive; }
    Q_DISABLE_COPY_MOVE(Counted)

    int value = 7;

private:
    int &m_alive;
};

using Pointer = VPointer<Counted>;

} // namespace

static_assert(!std::is_copy_constructible_v<Pointer> && !std::is_copy_assignable_v<Pointer>);
static_assert(std::is_nothrow_move_constructible_v<Pointer>);
static_assert(std::is_nothrow_move_assignable_v<Pointer>);

class tst_Pointer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isValid_whileItHoldsAnObject();
    void destructor_deletesTheObject();
    void move_handsTheObjectOver();
    void move_ontoItselfKeepsTheObject();
    void move_deletesWhatTheTargetHeld();
    void release_givesTheObjectUp();
    void reset_deletesTheOldObject();
    void reset_toTheSameObjectKeepsIt();
};

void tst_Pointer::isValid_whileItHoldsAnObject()
{
    int alive = 0;
    const Pointer empty;
    QVERIFY(!empty.isValid());
    QVERIFY(!empty);
    QCOMPARE(empty.get(), nullptr);
    const Pointer full(new Counted(alive));
    QVERIFY(full.isValid());
    QVERIFY(full);
    QCOMPARE(full->value, 7);
    QCOMPARE(&*full, full.get());
    const Interfaces::IValidity &asInterface = full;
    QVERIFY(asInterface.isValid());
}

void tst_Pointer::destructor_deletesTheObject()
{
    int alive = 0;
    {
        const Pointer pointer(new Counted(alive));
        QCOMPARE(alive, 1);
    }
    QCOMPARE(alive, 0);
}

void tst_Pointer::move_handsTheObjectOver()
{
    int alive = 0;
    Pointer first(new Counted(alive));
    Counted *const object = first.get();
    const Pointer second(std::move(first));
    QVERIFY(!first.isValid());
    QCOMPARE(second.get(), object);
    QCOMPARE(alive, 1);
}

void tst_Pointer::move_ontoItselfKeepsTheObject()
{
    int alive = 0;
    Pointer pointer(new Counted(alive));
    Pointer &same = pointer;
    pointer = std::move(same);
    QVERIFY(pointer.isValid());
    QCOMPARE(alive, 1);
}

void tst_Pointer::move_deletesWhatTheTargetHeld()
{
    int alive = 0;
    Pointer first(new Counted(alive));
    Pointer second(new Counted(alive));
    QCOMPARE(alive, 2);
    second = std::move(first);
    QCOMPARE(alive, 1);
    QVERIFY(second.isValid());
}

void tst_Pointer::release_givesTheObjectUp()
{
    int alive = 0;
    std::unique_ptr<Counted> object;
    {
        Pointer pointer(new Counted(alive));
        object.reset(pointer.release());
        QVERIFY(!pointer.isValid());
    }
    QCOMPARE(alive, 1);
    object.reset();
    QCOMPARE(alive, 0);
}

void tst_Pointer::reset_deletesTheOldObject()
{
    int alive = 0;
    Pointer pointer(new Counted(alive));
    pointer.reset(new Counted(alive));
    QCOMPARE(alive, 1);
    pointer.reset();
    QCOMPARE(alive, 0);
    QVERIFY(!pointer.isValid());
}

void tst_Pointer::reset_toTheSameObjectKeepsIt()
{
    int alive = 0;
    Pointer pointer(new Counted(alive));
    pointer.reset(pointer.get());
    QCOMPARE(alive, 1);
    QVERIFY(pointer.isValid());
}

QTEST_GUILESS_MAIN(tst_Pointer)
#include "tst_Pointer.moc"
