// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/FrameworkTables.h"

#include <vcore/VEnumRegistry.h>
#include <vimaging/ClassSignature.h>
#include <vimaging/ColorSpace.h>
#include <vimaging/ColorSpaceSignature.h>
#include <vimaging/FilterOptions.h>
#include <vimaging/ImageFormat.h>
#include <vimaging/ImageLoadOptions.h>
#include <vimaging/ImageSaveOptions.h>
#include <vimaging/ImageUnusual.h>
#include <vimaging/IntentDirection.h>
#include <vimaging/MeasureUnits.h>
#include <vimaging/PaletteOrder.h>
#include <vimaging/ProcessFlags.h>
#include <vimaging/ProfileHeaderAttributes.h>
#include <vimaging/ProfileHeaderFlags.h>
#include <vimaging/ProfileInfoType.h>
#include <vimaging/RenderingIntent.h>
#include <vimaging/ResolutionUnit.h>
#include <vimaging/RotateFlipType.h>
#include <vimaging/VirtualFacesMode.h>

#include <QtTest/QTest>

using namespace Norvane;
using namespace Norvane::Imaging;
using namespace Norvane::ColorManagement::LittleCMS;
using namespace Qt::StringLiterals;

namespace {

constexpr Tables::Row kResolutionUnit[] = {{0, "PPM"}, {1, "PPMM"}, {2, "DPI"}};

struct Row
{
    VEnumRegistry::Accessor runtime = nullptr;
    qint64 number = 0;
    QString name;
};

template<typename Runtime, size_t kSize>
void addRows(const Tables::Row (&table)[kSize])
{
    for (const auto &[number, name] : table)
        QTest::addRow("%s %lld is %s", qPrintable(Runtime::shortName()), number, name)
            << Row{&Runtime::object, number, QString::fromLatin1(name)};
}

} // namespace

Q_DECLARE_METATYPE(Row)

// The library's enumerations convert without anybody having registered them.
class tst_Enumerations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void name_goesThereAndBack_data();
    void name_goesThereAndBack();
    void directory_isEmptyUntilSomebodyRegisters();
    void transform_isTheSameUnderBothOfItsNames();
};

void tst_Enumerations::name_goesThereAndBack_data()
{
    QTest::addColumn<Row>("row");
    addRows<ClassSignature_T>(Tables::kClassSignature);
    addRows<ColorSpace_T>(Tables::kColorSpace);
    addRows<ColorSpaceSignature_T>(Tables::kColorSpaceSignature);
    addRows<Filters::FilterOptions_T>(Tables::kFilterOptions);
    addRows<ImageFormat_T>(Tables::kImageFormat);
    addRows<ImageLoadOptions_T>(Tables::kImageLoadOptions);
    addRows<ImageSaveOptions_T>(Tables::kImageSaveOptions);
    addRows<ImageUnusual_T>(Tables::kImageUnusual);
    addRows<IntentDirection_T>(Tables::kIntentDirection);
    addRows<MeasureUnits_T>(Tables::kMeasureUnits);
    addRows<PaletteOrder_T>(Tables::kPaletteOrder);
    addRows<ProcessFlags_T>(Tables::kProcessFlags);
    addRows<ProfileHeaderAttributes_T>(Tables::kProfileHeaderAttributes);
    addRows<ProfileHeaderFlags_T>(Tables::kProfileHeaderFlags);
    addRows<ProfileInfoType_T>(Tables::kProfileInfoType);
    addRows<RenderingIntent_T>(Tables::kRenderingIntent);
    addRows<ResolutionUnit_T>(kResolutionUnit);
    addRows<RotateFlipType_T>(Tables::kRotateFlipType);
    addRows<VirtualFacesMode_T>(Tables::kVirtualFacesMode);
}

void tst_Enumerations::name_goesThereAndBack()
{
    QFETCH(const Row, row);
    const VEnumNames &names = row.runtime().names();
    bool ok = false;
    QCOMPARE(names.fromString(row.name, row.number + 1, Qt::CaseSensitive, &ok), row.number);
    QVERIFY(ok);
    QVERIFY(names.names(row.number).contains(row.name));
    QCOMPARE(names.toString(row.number, QLocale::c()), names.names(row.number).first());
}

void tst_Enumerations::directory_isEmptyUntilSomebodyRegisters()
{
    QCOMPARE(VEnumRegistry::names(), QStringList());
}

// Turning by 180 degrees is flipping both ways, so each combination can be said twice.
void tst_Enumerations::transform_isTheSameUnderBothOfItsNames()
{
    static_assert(RotateFlipType::Rotate180FlipXY == RotateFlipType::RotateNoneFlipNone);
    static_assert(RotateFlipType::Rotate270FlipX == RotateFlipType::Rotate90FlipY);
    const RotateFlipType_T &types = RotateFlipType_T::instance();
    QCOMPARE(types.names().numbers().size(), 8);
    for (const qint64 number : types.names().numbers()) {
        const QStringList names = types.names().names(number);
        QCOMPARE(names.size(), 2);
        QCOMPARE(types.textOf(RotateFlipType(number)), names.first());
    }
}

QTEST_GUILESS_MAIN(tst_Enumerations)
#include "tst_Enumerations.moc"
