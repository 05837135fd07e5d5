// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VMetadata.h>

#include <QtCore/QJsonObject>
#include <QtTest/QTest>

#include <memory>

using namespace Norvane;
using namespace Qt::StringLiterals;

class tst_Metadata : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entry_isEmptyByDefault();
    void entry_keepsWhatItWasGiven();
    void equalsTo_comparesKeyValueAndFlags_data();
    void equalsTo_comparesKeyValueAndFlags();
    void equalsTo_isFalseForNullAndOtherClasses();
    void clone_isEqualAndNew();
};

void tst_Metadata::entry_isEmptyByDefault()
{
    const VMetadata entry;
    QCOMPARE(entry.key(), 0U);
    QVERIFY(entry.value().isNull());
    QCOMPARE(entry.flags(), MetadataFlags::None);
}

void tst_Metadata::entry_keepsWhatItWasGiven()
{
    constexpr quint64 kLargestKey = std::numeric_limits<quint64>::max();
    const VMetadata entry(kLargestKey, u"matt"_s, MetadataFlags::KillOnSave);
    QCOMPARE(entry.key(), kLargestKey);
    QCOMPARE(entry.value(), QJsonValue(u"matt"_s));
    QCOMPARE(entry.flags(), MetadataFlags::KillOnSave);
}

void tst_Metadata::equalsTo_comparesKeyValueAndFlags_data()
{
    QTest::addColumn<quint64>("key");
    QTest::addColumn<QJsonValue>("value");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("equal");
    const int flags = int(MetadataFlags::KillOnCopy);
    QTest::newRow("all the same") << quint64(1) << QJsonValue(u"a"_s) << flags << true;
    QTest::newRow("another key") << quint64(2) << QJsonValue(u"a"_s) << flags << false;
    QTest::newRow("another value") << quint64(1) << QJsonValue(u"b"_s) << flags << false;
    QTest::newRow("another type of value") << quint64(1) << QJsonValue(1) << flags << false;
    QTest::newRow("other flags") << quint64(1) << QJsonValue(u"a"_s) << 0 << false;
}

void tst_Metadata::equalsTo_comparesKeyValueAndFlags()
{
    QFETCH(const quint64, key);
    QFETCH(const QJsonValue, value);
    QFETCH(const int, flags);
    QFETCH(const bool, equal);
    const VMetadata entry(1, u"a"_s, MetadataFlags::KillOnCopy);
    const VMetadata other(key, value, MetadataFlags(flags));
    QCOMPARE(entry.equalsTo(&other), equal);
    QCOMPARE(other.equalsTo(&entry), equal);
}

void tst_Metadata::equalsTo_isFalseForNullAndOtherClasses()
{
    struct Other final : Interfaces::IEquatable
    {
        bool equalsTo(const IEquatable *) const override { return true; }
    };
    const VMetadata entry;
    const Other other;
    QVERIFY(!entry.equalsTo(nullptr));
    QVERIFY(!entry.equalsTo(&other));
}

void tst_Metadata::clone_isEqualAndNew()
{
    const VMetadata entry(1, QJsonObject{{u"a"_s, 1}}, MetadataFlags::KillOnChanges);
    const std::unique_ptr<Interfaces::ICloneable> copy(entry.clone());
    const auto *const clone = dynamic_cast<const VMetadata *>(copy.get());
    QVERIFY(clone != nullptr);
    QVERIFY(clone != &entry);
    QVERIFY(clone->equalsTo(&entry));
}

QTEST_GUILESS_MAIN(tst_Metadata)
#include "tst_Metadata.moc"
