// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcommon/VDeviceConfig.h>
#include <vcore/VConvert.h>
#include <vcore/VEnumRegistry.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QLibrary>
#include <QtTest/QTest>

#include <memory>

using namespace Norvane;
using namespace Qt::StringLiterals;

namespace {

constexpr const char *kTypes[] = {"Norvane::Kilnjet::PrinterClass", "Norvane::Channel",
                                  "Norvane::Bool", "Norvane::Imaging::ResolutionUnit",
                                  "Norvane::ColorManagement::LittleCMS::ProcessFlags"};

/// The value 1 of the type of that name, which this program knows from the library alone.
QVariant one(const char *typeName)
{
    const int number = 1;
    return QVariant(QMetaType::fromName(typeName), &number);
}

} // namespace

class tst_Unload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unload_takesBackWhatTheLoadRegistered();
    void load_worksAgainAfterAnUnload();
    void prototypes_ofALaterLoadTakeThePlaceOfTheOld();
};

void tst_Unload::unload_takesBackWhatTheLoadRegistered()
{
    QCOMPARE(VEnumRegistry::names(), QStringList());
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QCOMPARE(VEnumRegistry::names().size(), 39);
    QList<int> ids;
    for (const char *type : kTypes) {
        QVERIFY2(QMetaType::fromName(type).isValid(), type);
        ids.append(QMetaType::fromName(type).id());
        QVERIFY2(VVariantConvert::converter(ids.last()) != nullptr, type);
    }

    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QCOMPARE(VEnumRegistry::names(), QStringList());
    QCOMPARE(VEnumRegistry::find(u"PrinterClass"_s), nullptr);
    for (const char *type : kTypes)
        QVERIFY2(!QMetaType::fromName(type).isValid(), type);
    for (const int id : ids)
        QVERIFY(VVariantConvert::converter(id) == nullptr);
}

void tst_Unload::load_worksAgainAfterAnUnload()
{
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    for (int i = 0; i < 3; ++i) {
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QCOMPARE(VEnumRegistry::find(u"PrinterClass"_s)->name(), u"PrinterClass"_s);
        QCOMPARE(VConvert::toString(one("Norvane::Kilnjet::PrinterClass"), QLocale::c()),
                 u"Plotter"_s);
        QCOMPARE(VConvert::toString(one("Norvane::Imaging::ResolutionUnit"), QLocale::c()),
                 u"PPMM"_s);
        QVERIFY2(library.unload(), qPrintable(library.errorString()));
    }
}

void tst_Unload::prototypes_ofALaterLoadTakeThePlaceOfTheOld()
{
    const QByteArray json = R"({"id": "{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}", "name": "A"})";
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    for (int i = 0; i < 2; ++i) {
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> driver(
            Hardware::VDeviceConfig::fromJson(json));
        QVERIFY(driver != nullptr);
        QCOMPARE(driver->name(), u"A"_s);
        driver.reset();
        QVERIFY2(library.unload(), qPrintable(library.errorString()));
    }
}

QTEST_GUILESS_MAIN(tst_Unload)
#include "tst_Unload.moc"
