// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "RecordSchema.h"

#include <QtCore/QString>

#include <array>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr KeyRule kEnvelope[] = {
    {"id"_L1, ValueType::Id},
    {"deviceId"_L1, ValueType::Id},
    {"version"_L1, ValueType::Version},
    {"name"_L1, ValueType::Text},
    {"description"_L1, ValueType::Text},
    {"dateTime"_L1, ValueType::DateTime, {}, Presence::Optional},
    {"config"_L1, ValueType::Config},
    {"children"_L1, ValueType::Children, {}, Presence::Optional},
    {"metadata"_L1, ValueType::Metadata, {}, Presence::Optional},
};

constexpr KeyRule kPrinter[] = {
    {"fileProtection"_L1, ValueType::EnumName, "PrinterFileProtection"_L1},
    {"fileCompression"_L1, ValueType::EnumName, "PrinterFileCompression"_L1},
    {"printerClass"_L1, ValueType::EnumName, "PrinterClass"_L1},
    {"facesMode"_L1, ValueType::EnumName, "PrinterFacesMode"_L1},
    {"maximumImageBytes"_L1, ValueType::Int64Text},
    {"maximumFaces"_L1, ValueType::Int32},
    {"experimental"_L1, ValueType::Flag},
    {"onlineElaboration"_L1, ValueType::Flag},
    {"onlineLinearization"_L1, ValueType::Flag},
    {"icon"_L1, ValueType::Images, {}, Presence::Optional},
    {"svgIcon"_L1, ValueType::Svg, {}, Presence::Optional},
};

constexpr KeyRule kPrintUnit[] = {
    {"channels"_L1, ValueType::EnumNames, "Channel"_L1},
    {"customVerticalResolution"_L1, ValueType::Flag},
    {"customHorizontalResolution"_L1, ValueType::Flag},
};

constexpr KeyRule kElaboration[] = {
    {"scrollRatioList"_L1, ValueType::Numbers},
    {"resolutionList"_L1, ValueType::Resolutions},
    {"levelManagementList"_L1, ValueType::EnumNames, "LevelManagement"_L1},
    {"elaborationType"_L1, ValueType::EnumName, "ElaborationType"_L1},
    {"allowOnlineElaboration"_L1, ValueType::Flag},
    {"prefered"_L1, ValueType::Flag},
    {"magnificationMin"_L1, ValueType::Number},
    {"magnificationMax"_L1, ValueType::Number},
};

constexpr KeyRule kResolution[] = {
    {"x"_L1, ValueType::Number},
    {"y"_L1, ValueType::Number},
    {"unit"_L1, ValueType::EnumName, "ResolutionUnit"_L1},
};

constexpr KeyRule kImage[] = {
    {"format"_L1, ValueType::Text},
    {"data"_L1, ValueType::Base64},
};

constexpr KeyRule kMetadata[] = {
    {"key"_L1, ValueType::UInt64Text},
    {"flags"_L1, ValueType::EnumName, "MetadataFlags"_L1},
    {"value"_L1, ValueType::Anything},
};

const std::array<RecordKind, 3> &kinds()
{
    static const std::array<RecordKind, 3> table{{
        {QUuid(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s), "printer driver"_L1, kPrinter},
        {QUuid(u"{8f5c90c1-c516-487b-bd10-603583444346}"_s), "print unit"_L1, kPrintUnit},
        {QUuid(u"{488e105b-5aac-427d-92d3-1de3f94f8c7f}"_s), "elaboration"_L1, kElaboration},
    }};
    return table;
}

} // namespace

ObjectRule envelopeRule()
{
    return kEnvelope;
}

ObjectRule resolutionRule()
{
    return kResolution;
}

ObjectRule imageRule()
{
    return kImage;
}

ObjectRule metadataRule()
{
    return kMetadata;
}

const RecordKind &printerKind()
{
    return kinds().front();
}

const RecordKind *findKind(const QUuid &id)
{
    for (const RecordKind &kind : kinds()) {
        if (kind.id == id)
            return &kind;
    }
    return nullptr;
}

QString kindName(const QUuid &id)
{
    const RecordKind *kind = findKind(id);
    return kind == nullptr ? u"unknown kind"_s : QString(kind->name);
}

} // namespace Norvane::Kilnjet::Tool
