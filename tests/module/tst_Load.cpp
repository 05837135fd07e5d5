// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/Enumerations.h"
#include "support/Kilnjet.h"

#include <kilnjet/VElaborationDriver.h>
#include <kilnjet/VPrintUnitDriver.h>
#include <kilnjet/VPrinterDriver.h>
#include <vcore/VConvert.h>
#include <vcore/VVariantConvert.h>

#include <QtTest/QTest>

#include <memory>

using namespace Norvane;
using namespace Norvane::Hardware;
using namespace Norvane::Kilnjet;
using namespace Tables;
using namespace Qt::StringLiterals;

namespace {

const QList<Enumeration> kAll = allEnumerations();

QString firstNameBy(VVariantConvert::Converter converter, const Enumeration &enumeration)
{
    return converter(enumeration.toVariant(enumeration.rows.front().number), QString(),
                     QLocale::c());
}

} // namespace

// What is there without any call, because the library was loaded.
class tst_Load : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaType_hasTheExactName_data();
    void metaType_hasTheExactName();
    void converter_isRegistered_data();
    void converter_isRegistered();
    void converter_survivesRepeatedRegistration_data();
    void converter_survivesRepeatedRegistration();
    void channelV100Sort_isInTheDirectoryOnly();
    void prototypes_areRegistered_data();
    void prototypes_areRegistered();

private:
    void addMetaTypes();
};

void tst_Load::addMetaTypes()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < kAll.size(); ++i) {
        if (kAll[i].isMetaType)
            QTest::newRow(kAll[i].typeName.constData()) << i;
    }
}

void tst_Load::metaType_hasTheExactName_data()
{
    addMetaTypes();
}

void tst_Load::metaType_hasTheExactName()
{
    QFETCH(const int, index);
    const Enumeration &enumeration = kAll[index];
    QCOMPARE(QByteArray(enumeration.type.name()), enumeration.typeName);
    QCOMPARE(QMetaType::fromName(enumeration.typeName).id(), enumeration.type.id());
    QVERIFY(enumeration.type.flags().testFlag(QMetaType::IsEnumeration));
}

void tst_Load::converter_isRegistered_data()
{
    addMetaTypes();
}

void tst_Load::converter_isRegistered()
{
    QFETCH(const int, index);
    const Enumeration &enumeration = kAll[index];
    const auto converter = VVariantConvert::converter(enumeration.type.id());
    QVERIFY(converter != nullptr);
    QCOMPARE(firstNameBy(converter, enumeration), QString::fromLatin1(enumeration.rows[0].name));
}

// Every module that is loaded beside this one may register the same converters again.
void tst_Load::converter_survivesRepeatedRegistration_data()
{
    addMetaTypes();
}

void tst_Load::converter_survivesRepeatedRegistration()
{
    QFETCH(const int, index);
    const Enumeration &enumeration = kAll[index];
    const int id = enumeration.type.id();
    const auto converter = VVariantConvert::converter(id);
    for (int i = 0; i < 6; ++i)
        VVariantConvert::sVariantToStringRegister(id, converter);
    QVERIFY(VVariantConvert::converter(id) == converter);
    for (int i = 0; i < 6; ++i)
        VVariantConvert::sVariantToStringUnregister(id, converter);
    QVERIFY(VVariantConvert::converter(id) == converter);
    QCOMPARE(firstNameBy(converter, enumeration), QString::fromLatin1(enumeration.rows[0].name));
}

void tst_Load::channelV100Sort_isInTheDirectoryOnly()
{
    QVERIFY(VEnumRegistry::find(u"ChannelV100Sort"_s) != nullptr);
    QVERIFY(!QMetaType::fromName("ChannelV100Sort").isValid());
}

void tst_Load::prototypes_areRegistered_data()
{
    QTest::addColumn<QUuid>("id");
    QTest::newRow("printer") << VPrinterDriver().id();
    QTest::newRow("elaboration") << VElaborationDriver().id();
    QTest::newRow("print unit") << VPrintUnitDriver().id();
}

void tst_Load::prototypes_areRegistered()
{
    QFETCH(const QUuid, id);
    QVERIFY(VDeviceConfig::isRegistered(id));
    const QByteArray json = "{\"id\": \"" + id.toByteArray() + "\"}";
    const std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> built(
        VDeviceConfig::fromJson(json));
    QVERIFY(built != nullptr);
    QCOMPARE(built->id(), id);
    QVERIFY(built->deviceId().isNull());
}

QTEST_GUILESS_MAIN(tst_Load)
#include "tst_Load.moc"
