// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "enums/CatalogueTables.h"
#include "enums/FrameworkTables.h"
#include "support/Kilnjet.h"

#include <kilnjet/Channel.h>
#include <kilnjet/ChannelV100Sort.h>
#include <kilnjet/ElaborationType.h>
#include <kilnjet/LevelManagement.h>
#include <kilnjet/PrinterClass.h>
#include <kilnjet/PrinterFacesMode.h>
#include <kilnjet/PrinterFileCompression.h>
#include <kilnjet/PrinterFileProtection.h>
#include <vcore/BinaryUnit.h>
#include <vcore/Bool.h>
#include <vcore/ByteOrder.h>
#include <vcore/CompressionAlgorithm.h>
#include <vcore/IconStyle.h>
#include <vcore/MetadataFlags.h>
#include <vcore/OperatingSystemType.h>
#include <vcore/QtColor.h>
#include <vcore/SCSLengthUnit.h>
#include <vcore/SILengthUnit.h>
#include <vcore/SIPrefix.h>
#include <vcore/VEnumBase.h>
#include <vcore/VEnumRegistry.h>
#include <vcore/WebColor.h>
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

#include <QtCore/QMetaType>

#include <span>

// Every enumeration with its expected table, and its conversions without its type.

namespace Tables {

struct Enumeration
{
    using ToText = QString (*)(const Norvane::IVEnum &, qint64, const QLocale &);
    using ToNumber = qint64 (*)(const Norvane::IVEnum &, const QString &, qint64,
                                Qt::CaseSensitivity, bool *);

    QByteArray typeName; ///< As the meta-type system knows it.
    bool isFlags;
    std::span<const Row> rows;
    bool isMetaType;
    QMetaType type; ///< Invalid when it is no meta-type.
    ToText toText;
    ToNumber toNumber;
    QVariant (*toVariant)(qint64); ///< Null when it is no meta-type.

    QString shortName() const
    {
        return QString::fromLatin1(typeName.mid(typeName.lastIndexOf(':') + 1));
    }
    /// What the directory of enumerations holds, or null.
    const Norvane::IVEnum *runtime() const { return Norvane::VEnumRegistry::find(shortName()); }
};

template<typename E>
const Norvane::VEnumBase<E> &typed(const Norvane::IVEnum &runtime)
{
    return static_cast<const Norvane::VEnumBase<E> &>(runtime);
}

template<typename E>
Enumeration enumeration(const char *typeName, bool isFlags, std::span<const Row> rows)
{
    using U = std::underlying_type_t<E>;
    Enumeration result = {typeName, isFlags, rows, bool(QMetaTypeId<E>::Defined), {}, {}, {}, {}};
    result.toText = [](const Norvane::IVEnum &runtime, qint64 number, const QLocale &locale) {
        return typed<E>(runtime).toString(U(number), locale);
    };
    result.toNumber = [](const Norvane::IVEnum &runtime, const QString &text, qint64 fallback,
                         Qt::CaseSensitivity cs, bool *ok) {
        return qint64(typed<E>(runtime).fromString(text, U(fallback), cs, ok));
    };
    if constexpr (bool(QMetaTypeId<E>::Defined)) {
        result.type = QMetaType::fromType<E>();
        result.toVariant = [](qint64 number) { return QVariant::fromValue(E(U(number))); };
    }
    return result;
}

constexpr bool kFlags = true;
constexpr bool kPlain = false;

inline QList<Enumeration> ownEnumerations()
{
    using namespace Norvane;
    using namespace Norvane::Kilnjet;
    return {
        enumeration<PrinterClass>("Norvane::Kilnjet::PrinterClass", kPlain, kPrinterClass),
        enumeration<PrinterFacesMode>("Norvane::Kilnjet::PrinterFacesMode", kPlain,
                                      kPrinterFacesMode),
        enumeration<PrinterFileCompression>("Norvane::Kilnjet::PrinterFileCompression", kFlags,
                                            kPrinterFileCompression),
        enumeration<PrinterFileProtection>("Norvane::Kilnjet::PrinterFileProtection", kFlags,
                                           kPrinterFileProtection),
        enumeration<ElaborationType>("Norvane::Kilnjet::ElaborationType", kPlain, kElaborationType),
        enumeration<LevelManagement>("Norvane::Kilnjet::LevelManagement", kPlain, kLevelManagement),
        enumeration<Channel>("Norvane::Channel", kPlain, kChannel),
        enumeration<ChannelV100Sort>("ChannelV100Sort", kPlain, kChannelV100Sort),
    };
}

inline QList<Enumeration> coreEnumerations()
{
    using namespace Norvane;
    using namespace Norvane::Compression;
    return {
        enumeration<Bool>("Norvane::Bool", kPlain, kBool),
        enumeration<OperatingSystemType>("Norvane::OperatingSystemType", kPlain,
                                         kOperatingSystemType),
        enumeration<ByteOrder>("Norvane::ByteOrder", kPlain, kByteOrder),
        enumeration<CompressionAlgorithm>("Norvane::Compression::CompressionAlgorithm", kPlain,
                                          kCompressionAlgorithm),
        enumeration<BinaryUnit>("Norvane::BinaryUnit", kPlain, kBinaryUnit),
        enumeration<IconStyle>("Norvane::IconStyle", kPlain, kIconStyle),
        enumeration<QtColor>("Norvane::QtColor", kPlain, kQtColor),
        enumeration<SCSLengthUnit>("Norvane::SCSLengthUnit", kPlain, kSCSLengthUnit),
        enumeration<SILengthUnit>("Norvane::SILengthUnit", kPlain, kSILengthUnit),
        enumeration<SIPrefix>("Norvane::SIPrefix", kPlain, kSIPrefix),
        enumeration<WebColor>("Norvane::WebColor", kPlain, kWebColor),
        enumeration<MetadataFlags>("Norvane::MetadataFlags", kFlags, kMetadataFlags),
    };
}

inline QList<Enumeration> imagingEnumerations()
{
    using namespace Norvane::Imaging;
    return {
        enumeration<ColorSpace>("Norvane::Imaging::ColorSpace", kPlain, kColorSpace),
        enumeration<Filters::FilterOptions>("Norvane::Imaging::Filters::FilterOptions", kFlags,
                                            kFilterOptions),
        enumeration<ImageFormat>("Norvane::Imaging::ImageFormat", kPlain, kImageFormat),
        enumeration<ImageLoadOptions>("Norvane::Imaging::ImageLoadOptions", kFlags,
                                      kImageLoadOptions),
        enumeration<ImageSaveOptions>("Norvane::Imaging::ImageSaveOptions", kFlags,
                                      kImageSaveOptions),
        enumeration<ImageUnusual>("Norvane::Imaging::ImageUnusual", kFlags, kImageUnusual),
        enumeration<MeasureUnits>("Norvane::Imaging::MeasureUnits", kPlain, kMeasureUnits),
        enumeration<PaletteOrder>("Norvane::Imaging::PaletteOrder", kPlain, kPaletteOrder),
        enumeration<RotateFlipType>("Norvane::Imaging::RotateFlipType", kPlain, kRotateFlipType),
        enumeration<VirtualFacesMode>("Norvane::Imaging::VirtualFacesMode", kPlain,
                                      kVirtualFacesMode),
        enumeration<ResolutionUnit>("Norvane::Imaging::ResolutionUnit", kPlain, kResolutionUnit),
    };
}

inline QList<Enumeration> colorManagementEnumerations()
{
    using namespace Norvane::ColorManagement::LittleCMS;
    return {
        enumeration<ClassSignature>("Norvane::ColorManagement::LittleCMS::ClassSignature", kPlain,
                                    kClassSignature),
        enumeration<ColorSpaceSignature>("Norvane::ColorManagement::LittleCMS::ColorSpaceSignature",
                                         kPlain, kColorSpaceSignature),
        enumeration<IntentDirection>("Norvane::ColorManagement::LittleCMS::IntentDirection", kPlain,
                                     kIntentDirection),
        enumeration<ProcessFlags>("Norvane::ColorManagement::LittleCMS::ProcessFlags", kFlags,
                                  kProcessFlags),
        enumeration<ProfileHeaderAttributes>(
            "Norvane::ColorManagement::LittleCMS::ProfileHeaderAttributes", kFlags,
            kProfileHeaderAttributes),
        enumeration<ProfileHeaderFlags>("Norvane::ColorManagement::LittleCMS::ProfileHeaderFlags",
                                        kFlags, kProfileHeaderFlags),
        enumeration<ProfileInfoType>("Norvane::ColorManagement::LittleCMS::ProfileInfoType", kPlain,
                                     kProfileInfoType),
        enumeration<RenderingIntent>("Norvane::ColorManagement::LittleCMS::RenderingIntent", kPlain,
                                     kRenderingIntent),
    };
}

inline QList<Enumeration> allEnumerations()
{
    return ownEnumerations() + coreEnumerations() + imagingEnumerations()
        + colorManagementEnumerations();
}

} // namespace Tables
