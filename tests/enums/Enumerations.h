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

inline QList<Enumeration> allEnumerations()
{
    constexpr bool kFlags = true;
    constexpr bool kPlain = false;
    return {
        enumeration<Norvane::Kilnjet::PrinterClass>("Norvane::Kilnjet::PrinterClass", kPlain,
                                                    kPrinterClass),
        enumeration<Norvane::Kilnjet::PrinterFacesMode>("Norvane::Kilnjet::PrinterFacesMode",
                                                        kPlain, kPrinterFacesMode),
        enumeration<Norvane::Kilnjet::PrinterFileCompression>(
            "Norvane::Kilnjet::PrinterFileCompression", kFlags, kPrinterFileCompression),
        enumeration<Norvane::Kilnjet::PrinterFileProtection>(
            "Norvane::Kilnjet::PrinterFileProtection", kFlags, kPrinterFileProtection),
        enumeration<Norvane::Kilnjet::ElaborationType>("Norvane::Kilnjet::ElaborationType", kPlain,
                                                       kElaborationType),
        enumeration<Norvane::Kilnjet::LevelManagement>("Norvane::Kilnjet::LevelManagement", kPlain,
                                                       kLevelManagement),
        enumeration<Norvane::Channel>("Norvane::Channel", kPlain, kChannel),
        enumeration<ChannelV100Sort>("ChannelV100Sort", kPlain, kChannelV100Sort),
        enumeration<Norvane::Bool>("Norvane::Bool", kPlain, kBool),
        enumeration<Norvane::OperatingSystemType>("Norvane::OperatingSystemType", kPlain,
                                                  kOperatingSystemType),
        enumeration<Norvane::ByteOrder>("Norvane::ByteOrder", kPlain, kByteOrder),
        enumeration<Norvane::Compression::CompressionAlgorithm>(
            "Norvane::Compression::CompressionAlgorithm", kPlain, kCompressionAlgorithm),
        enumeration<Norvane::BinaryUnit>("Norvane::BinaryUnit", kPlain, kBinaryUnit),
        enumeration<Norvane::IconStyle>("Norvane::IconStyle", kPlain, kIconStyle),
        enumeration<Norvane::QtColor>("Norvane::QtColor", kPlain, kQtColor),
        enumeration<Norvane::SCSLengthUnit>("Norvane::SCSLengthUnit", kPlain, kSCSLengthUnit),
        enumeration<Norvane::SILengthUnit>("Norvane::SILengthUnit", kPlain, kSILengthUnit),
        enumeration<Norvane::SIPrefix>("Norvane::SIPrefix", kPlain, kSIPrefix),
        enumeration<Norvane::WebColor>("Norvane::WebColor", kPlain, kWebColor),
        enumeration<Norvane::Imaging::ColorSpace>("Norvane::Imaging::ColorSpace", kPlain,
                                                  kColorSpace),
        enumeration<Norvane::Imaging::Filters::FilterOptions>(
            "Norvane::Imaging::Filters::FilterOptions", kFlags, kFilterOptions),
        enumeration<Norvane::Imaging::ImageFormat>("Norvane::Imaging::ImageFormat", kPlain,
                                                   kImageFormat),
        enumeration<Norvane::Imaging::ImageLoadOptions>("Norvane::Imaging::ImageLoadOptions",
                                                        kFlags, kImageLoadOptions),
        enumeration<Norvane::Imaging::ImageSaveOptions>("Norvane::Imaging::ImageSaveOptions",
                                                        kFlags, kImageSaveOptions),
        enumeration<Norvane::Imaging::ImageUnusual>("Norvane::Imaging::ImageUnusual", kFlags,
                                                    kImageUnusual),
        enumeration<Norvane::Imaging::MeasureUnits>("Norvane::Imaging::MeasureUnits", kPlain,
                                                    kMeasureUnits),
        enumeration<Norvane::Imaging::PaletteOrder>("Norvane::Imaging::PaletteOrder", kPlain,
                                                    kPaletteOrder),
        enumeration<Norvane::Imaging::RotateFlipType>("Norvane::Imaging::RotateFlipType", kPlain,
                                                      kRotateFlipType),
        enumeration<Norvane::Imaging::VirtualFacesMode>("Norvane::Imaging::VirtualFacesMode",
                                                        kPlain, kVirtualFacesMode),
        enumeration<Norvane::ColorManagement::LittleCMS::ClassSignature>(
            "Norvane::ColorManagement::LittleCMS::ClassSignature", kPlain, kClassSignature),
        enumeration<Norvane::ColorManagement::LittleCMS::ColorSpaceSignature>(
            "Norvane::ColorManagement::LittleCMS::ColorSpaceSignature", kPlain,
            kColorSpaceSignature),
        enumeration<Norvane::ColorManagement::LittleCMS::IntentDirection>(
            "Norvane::ColorManagement::LittleCMS::IntentDirection", kPlain, kIntentDirection),
        enumeration<Norvane::ColorManagement::LittleCMS::ProcessFlags>(
            "Norvane::ColorManagement::LittleCMS::ProcessFlags", kFlags, kProcessFlags),
        enumeration<Norvane::ColorManagement::LittleCMS::ProfileHeaderAttributes>(
            "Norvane::ColorManagement::LittleCMS::ProfileHeaderAttributes", kFlags,
            kProfileHeaderAttributes),
        enumeration<Norvane::ColorManagement::LittleCMS::ProfileHeaderFlags>(
            "Norvane::ColorManagement::LittleCMS::ProfileHeaderFlags", kFlags, kProfileHeaderFlags),
        enumeration<Norvane::ColorManagement::LittleCMS::ProfileInfoType>(
            "Norvane::ColorManagement::LittleCMS::ProfileInfoType", kPlain, kProfileInfoType),
        enumeration<Norvane::ColorManagement::LittleCMS::RenderingIntent>(
            "Norvane::ColorManagement::LittleCMS::RenderingIntent", kPlain, kRenderingIntent),
        enumeration<Norvane::MetadataFlags>("Norvane::MetadataFlags", kFlags, kMetadataFlags),
        enumeration<Norvane::Imaging::ResolutionUnit>("Norvane::Imaging::ResolutionUnit", kPlain,
                                                      kResolutionUnit),
    };
}

} // namespace Tables
