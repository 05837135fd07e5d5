// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The printer driver's own object inside the envelope.

#include "VPrinterDriver_p.h"

#include "enums/PrinterClass_T.h"
#include "enums/PrinterFacesMode_T.h"
#include "enums/PrinterFileCompression_T.h"
#include "enums/PrinterFileProtection_T.h"

#include <vcore/VConvert.h>

#include <QtCore/QJsonArray>
#include <QtCore/QtEndian>

#include <limits>

namespace Norvane::Kilnjet {

namespace {

constexpr QLatin1StringView kFileProtection{"fileProtection"};
constexpr QLatin1StringView kFileCompression{"fileCompression"};
constexpr QLatin1StringView kPrinterClass{"printerClass"};
constexpr QLatin1StringView kFacesMode{"facesMode"};
constexpr QLatin1StringView kMaximumImageBytes{"maximumImageBytes"};
constexpr QLatin1StringView kMaximumFaces{"maximumFaces"};
constexpr QLatin1StringView kExperimental{"experimental"};
constexpr QLatin1StringView kOnlineElaboration{"onlineElaboration"};
// Without the final s of the field: the stored format has always spelled it so.
constexpr QLatin1StringView kOnlineLinearization{"onlineLinearization"};
constexpr QLatin1StringView kIcon{"icon"};
constexpr QLatin1StringView kSvgIcon{"svgIcon"};

QString svgToText(const QByteArray &svg)
{
    return QString::fromLatin1(qCompress(svg, -1).toBase64());
}

/// No bytes when the text cannot be decoded.
QByteArray svgFromText(const QString &text)
{
    constexpr quint32 kHeaderSize = 4;
    constexpr quint32 kBestRatio = 1032; // No zlib stream expands further.
    QByteArray compressed = QByteArray::fromBase64(text.toLatin1());
    if (compressed.size() <= qsizetype(kHeaderSize))
        return {};
    // The header announces how much memory to reserve. It is not to be believed when it cannot be
    // true: four damaged bytes would ask for gigabytes.
    const auto announced = qFromBigEndian<quint32>(compressed.constData());
    const quint64 possible = quint64(compressed.size()) * kBestRatio;
    qToBigEndian(quint32(std::min<quint64>(announced, possible)), compressed.data());
    return qUncompress(compressed);
}

} // namespace

QJsonObject VPrinterDriverPrivate::toJson() const
{
    const QLocale c(QLocale::C);
    QJsonObject object{
        {kFileProtection, PrinterFileProtection_T::instance().textOf(fileProtection)},
        {kFileCompression, PrinterFileCompression_T::instance().textOf(fileCompression)},
        {kPrinterClass, PrinterClass_T::instance().textOf(printerClass)},
        {kFacesMode, PrinterFacesMode_T::instance().textOf(facesMode)},
        // As text: a JSON number holds no 64 bits.
        {kMaximumImageBytes, VConvert::toString(maximumImageBytes, c)},
        {kMaximumFaces, maximumFaces},
        {kExperimental, experimental},
        {kOnlineElaboration, onlineElaboration},
        {kOnlineLinearization, onlineLinearizations},
    };
    if (!svgIcon.isEmpty()) {
        object.insert(kSvgIcon, svgToText(svgIcon));
        return object;
    }
    const QJsonArray images = icon.toJson();
    if (!images.isEmpty())
        object.insert(kIcon, images);
    return object;
}

void VPrinterDriverPrivate::readJson(const QJsonObject &object)
{
    const auto textOf = [&object](QLatin1StringView key) { return object.value(key).toString(); };
    fileProtection = PrinterFileProtection_T::instance().valueOf(textOf(kFileProtection));
    fileCompression = PrinterFileCompression_T::instance().valueOf(textOf(kFileCompression));
    // A missing class reads as the value 0, not as a new driver's Unknown: stored records that
    // leave it out mean that.
    printerClass = PrinterClass_T::instance().valueOf(textOf(kPrinterClass));
    facesMode = PrinterFacesMode_T::instance().valueOf(textOf(kFacesMode));
    maximumFaces = object.value(kMaximumFaces).toInt();
    experimental = object.value(kExperimental).toBool();
    onlineElaboration = object.value(kOnlineElaboration).toBool();
    onlineLinearizations = object.value(kOnlineLinearization).toBool();
    // No limit is stated: then there is none, rather than one of 0 bytes that nothing passes.
    maximumImageBytes = object.value(kMaximumImageBytes).isString()
        ? VConvert::toInt64(textOf(kMaximumImageBytes), QLocale(QLocale::C), 10)
        : std::numeric_limits<qint64>::max();
    const QString svg = textOf(kSvgIcon);
    svgIcon = svg.isEmpty() ? QByteArray() : svgFromText(svg);
    icon = svg.isEmpty() ? DriverIcon::fromJson(object.value(kIcon).toArray()) : DriverIcon();
}

} // namespace Norvane::Kilnjet
