// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The order of the virtual operations is part of the binary interface: modules built apart from
// each other call them by their place in the table. It must not change unnoticed.

#include "support/TestConfig.h"

#include <QtTest/QTest>

#include <cstring>

using namespace Support;
using namespace Norvane::Interfaces;

namespace {

/// The place of a virtual operation in its table, as pointers to members encode it.
template<typename Operation>
int slotOf(Operation operation)
{
    std::ptrdiff_t encoded = 0;
    static_assert(sizeof(operation) >= sizeof(encoded));
    std::memcpy(&encoded, &operation, sizeof(encoded));
    return int((encoded & ~std::ptrdiff_t(1)) / std::ptrdiff_t(sizeof(void *)));
}

/// Opens the protected operations.
class Open : public VDeviceConfig
{
public:
    using VDeviceConfig::innerDataId;
    using VDeviceConfig::innerIsEmpty;
    using VDeviceConfig::innerIsValid;
    using VDeviceConfig::setId;
    using VDeviceConfig::setInnerJsonObject;
    using VDeviceConfig::toInnerGenericString;
    using VDeviceConfig::toInnerJsonObject;
};

constexpr int kDestructor = 2; // Takes two places.

} // namespace

class tst_VDeviceConfigLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bases_standInOrder();
    void deviceConfig_hasItsOperationsInOrder();
    void interfaces_haveTheirOperationsInOrder();
};

void tst_VDeviceConfigLayout::bases_standInOrder()
{
    TestConfig<> object;
    IVDeviceConfig *const config = &object;
    const void *const places[] = {
        static_cast<ICloneable *>(config),   static_cast<IEquatable *>(config),
        static_cast<IFormattable *>(config), static_cast<IJsonConvertible *>(config),
        static_cast<IHashable *>(config),    static_cast<IMetadatable *>(config)};
    QCOMPARE(places[0], static_cast<const void *>(config));
    QVERIFY(std::is_sorted(std::begin(places), std::end(places)));
}

void tst_VDeviceConfigLayout::deviceConfig_hasItsOperationsInOrder()
{
    using I = IVDeviceConfig;
    const QList<int> slots{
        slotOf(&ICloneable::clone),
        slotOf(&I::id),
        slotOf(&I::deviceId),
        slotOf(&I::setDeviceId),
        slotOf(&I::isNull),
        slotOf(&I::isEmpty),
        slotOf(&I::isValid),
        slotOf(&I::version),
        slotOf(&I::setVersion),
        slotOf(&I::dateTime),
        slotOf(&I::setDateTime),
        slotOf(&I::name),
        slotOf(&I::setName),
        slotOf(&I::description),
        slotOf(&I::setDescription),
        slotOf(static_cast<void (I::*)(const QList<I *> &)>(&I::insert)),
        slotOf(static_cast<void (I::*)(I *, bool)>(&I::insert)),
        slotOf(static_cast<bool (I::*)(const QUuid &, bool)>(&I::remove)),
        slotOf(static_cast<bool (I::*)(I *, bool)>(&I::remove)),
        slotOf(static_cast<bool (I::*)(const QUuid &, bool) const>(&I::contains)),
        slotOf(static_cast<bool (I::*)(I *, bool) const>(&I::contains)),
        slotOf(&I::count),
        slotOf(&I::values),
        slotOf(&I::save),
        slotOf(&I::load),
        slotOf(&I::setJsonObject),
        slotOf(&I::dataId),
        slotOf(&Open::toInnerJsonObject),
        slotOf(&Open::setInnerJsonObject),
        slotOf(&Open::toInnerGenericString),
        slotOf(&Open::setId),
        slotOf(&Open::innerDataId),
        slotOf(&Open::innerIsValid),
        slotOf(&Open::innerIsEmpty),
    };
    for (int i = 0; i < slots.size(); ++i)
        QCOMPARE(slots.at(i), kDestructor + i);
}

void tst_VDeviceConfigLayout::interfaces_haveTheirOperationsInOrder()
{
    using F = IFormattable;
    using M = IMetadatable;
    QCOMPARE(slotOf(&IEquatable::equalsTo), kDestructor);
    QCOMPARE(slotOf(&IEquatable::sameTypeAs), kDestructor + 1);
    QCOMPARE(slotOf(&IJsonConvertible::toJsonObject), kDestructor);
    QCOMPARE(slotOf(&IHashable::hash), kDestructor);
    const QList<int> formattable{
        slotOf(static_cast<QString (F::*)(const QString &, const QLocale &) const>(&F::toString)),
        slotOf(static_cast<QString (F::*)(const QLocale &) const>(&F::toString)),
        slotOf(static_cast<QString (F::*)(const QString &) const>(&F::toString)),
        slotOf(static_cast<QString (F::*)() const>(&F::toString)),
    };
    QCOMPARE(formattable, (QList{0, 1, 2, 3})); // The destructor comes last.
    const QList<int> metadatable{
        slotOf(&M::clearMetadata),  slotOf(&M::metadataCount),    slotOf(&M::metadataList),
        slotOf(&M::metadata),       slotOf(&M::copyMetadata),     slotOf(&M::insertMetadata),
        slotOf(&M::removeMetadata), slotOf(&M::containsMetadata), slotOf(&M::onMetadataChanged),
        slotOf(&M::acceptMetadata),
    };
    for (int i = 0; i < metadatable.size(); ++i)
        QCOMPARE(metadatable.at(i), kDestructor + i);
}

QTEST_GUILESS_MAIN(tst_VDeviceConfigLayout)
#include "tst_VDeviceConfigLayout.moc"
