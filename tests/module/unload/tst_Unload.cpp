// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "module/Embedded.h"

#include <vcommon/VDeviceConfig.h>
#include <vcore/VConvert.h>
#include <vcore/VEnumRegistry.h>
#include <vcore/VVariantConvert.h>

#include <QtCore/QFileInfo>
#include <QtCore/QLibrary>
#include <QtCore/QTranslator>
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

constexpr QUuid kPrinterDriver(0x06b1a6eb, 0x628e, 0x45e5, 0x8d, 0x80, 0xeb, 0x92, 0xa4, 0xf2, 0x2e,
                               0x4e);

/// A driver, if the library is there to rebuild it.
std::unique_ptr<Hardware::Interfaces::IVDeviceConfig> rebuilt()
{
    return std::unique_ptr<Hardware::Interfaces::IVDeviceConfig>(Hardware::VDeviceConfig::fromJson(
        R"({"id": "{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}", "name": "A"})"));
}

/// The library's embedded files that the resource system knows.
QStringList embeddedFiles()
{
    return Embedded::filesIn(u"data"_s) + Embedded::filesIn(u"translations"_s);
}

/// Whether any part of the library is in the memory of this process.
bool isMapped()
{
    const QFileInfo library(QStringLiteral(KILNJET_LIBRARY));
    return Embedded::bytesOf(u"/proc/self/maps"_s).contains(QFile::encodeName(library.fileName()));
}

} // namespace

class tst_Unload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void unload_takesBackWhatTheLoadRegistered();
    void load_worksAgainAfterAnUnload();
    void unload_leavesNothingOfTheLibraryBehind();
    void prototypes_areForgottenWithTheLibrary();
    void resources_areThereWhileTheLibraryIs();
    void everything_comesAndGoesTenTimes();
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

void tst_Unload::unload_leavesNothingOfTheLibraryBehind()
{
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QVERIFY(isMapped());
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QVERIFY(!isMapped());
}

// A host may go on reading records after it has unloaded the library: their kind is unknown then.
void tst_Unload::prototypes_areForgottenWithTheLibrary()
{
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    for (int i = 0; i < 2; ++i) {
        QVERIFY(rebuilt() == nullptr);
        QVERIFY(!Hardware::VDeviceConfig::isRegistered(kPrinterDriver));
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QVERIFY(Hardware::VDeviceConfig::isRegistered(kPrinterDriver));
        auto driver = rebuilt();
        QVERIFY(driver != nullptr);
        QCOMPARE(driver->name(), u"A"_s);
        driver.reset();
        QVERIFY2(library.unload(), qPrintable(library.errorString()));
    }
    QVERIFY(rebuilt() == nullptr);
}

void tst_Unload::resources_areThereWhileTheLibraryIs()
{
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    QVERIFY(embeddedFiles().isEmpty());
    QVERIFY2(library.load(), qPrintable(library.errorString()));
    QCOMPARE(embeddedFiles(), Embedded::screeningFiles() + Embedded::translationFiles());
    {
        QTranslator translator;
        QVERIFY(translator.load(u":/translations/PrinterClass_it.qm"_s));
        QCOMPARE(translator.translate("PrinterClass", "Engraver"), u"Incisori laser"_s);
    }
    QVERIFY2(library.unload(), qPrintable(library.errorString()));
    QVERIFY(embeddedFiles().isEmpty());
    QVERIFY(!QTranslator().load(u":/translations/PrinterClass_it.qm"_s));
}

void tst_Unload::everything_comesAndGoesTenTimes()
{
    QLibrary library(QStringLiteral(KILNJET_LIBRARY));
    for (int i = 0; i < 10; ++i) {
        QVERIFY2(library.load(), qPrintable(library.errorString()));
        QCOMPARE(VEnumRegistry::names().size(), 39);
        QCOMPARE(embeddedFiles().size(), 132);
        QVERIFY(rebuilt() != nullptr);
        // Every runtime object that can be reached is built, so that all must be destroyed.
        for (const QString &name : VEnumRegistry::names())
            QCOMPARE(VEnumRegistry::find(name)->name(), name);
        QVERIFY2(library.unload(), qPrintable(library.errorString()));
        QCOMPARE(VEnumRegistry::names(), QStringList());
        QCOMPARE(embeddedFiles(), QStringList());
        QVERIFY(rebuilt() == nullptr);
        QVERIFY(!isMapped());
    }
}

QTEST_GUILESS_MAIN(tst_Unload)
#include "tst_Unload.moc"
