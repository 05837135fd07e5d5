// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The printer driver's own object inside the envelope.

#include "VPrinterDriver_p.h"

#include "drivers/IconSource.h"
#include "drivers/RecordCodec.h"
#include "enums/PrinterClass_T.h"
#include "enums/PrinterFacesMode_T.h"
#include "enums/PrinterFileCompression_T.h"
#include "enums/PrinterFileProtection_T.h"

#include <vcore/VConvert.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
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

template<typename Array>
QList<EncodedImage> imagesFromJson(const Array &array)
{
    QList<EncodedImage> images;
    for (const auto &element : array) {
        const EncodedImage image = EncodedImage::fromJson(element.toObject());
        if (!image.data.isEmpty() && !image.format.isEmpty())
            images.append(image);
    }
    return images;
}

} // namespace

template<typename Writer>
void VPrinterDriverPrivate::writeJson(Writer &object) const
{
    // In the order of the keys, as the writers ask for.
    object.insert(kExperimental, experimental);
    object.insert(kFacesMode, PrinterFacesMode_T::instance().textOf(facesMode));
    object.insert(kFileCompression, PrinterFileCompression_T::instance().textOf(fileCompression));
    object.insert(kFileProtection, PrinterFileProtection_T::instance().textOf(fileProtection));
    if (const QList<EncodedImage> images = icon.encoded(); svgIcon.isEmpty() && !images.isEmpty()) {
        object.array(kIcon, [&](auto &array) {
            for (const EncodedImage &image : images)
                array.object([&](auto &element) { image.writeJson(element); });
        });
    }
    object.insert(kMaximumFaces, maximumFaces);
    // As text: a JSON number holds no 64 bits.
    object.insertPlain(kMaximumImageBytes, QByteArray::number(maximumImageBytes));
    object.insert(kOnlineElaboration, onlineElaboration);
    object.insert(kOnlineLinearization, onlineLinearizations);
    object.insert(kPrinterClass, PrinterClass_T::instance().textOf(printerClass));
    if (!svgIcon.isEmpty())
        object.insertPlain(kSvgIcon, qCompress(svgIcon, -1).toBase64());
}

template<typename Object>
void VPrinterDriverPrivate::readContent(const Object &object)
{
    // A missing class reads as the value 0, not as a new driver's Unknown: stored records that
    // leave it out mean that.
    printerClass = PrinterClass_T::instance().valueOf(object.value(kPrinterClass));
    facesMode = PrinterFacesMode_T::instance().valueOf(object.value(kFacesMode));
    maximumFaces = object.value(kMaximumFaces).toInt();
}

template<typename Object>
void VPrinterDriverPrivate::readJson(const Object &object)
{
    readContent(object);
    fileProtection = PrinterFileProtection_T::instance().valueOf(object.value(kFileProtection));
    fileCompression = PrinterFileCompression_T::instance().valueOf(object.value(kFileCompression));
    experimental = object.value(kExperimental).toBool();
    onlineElaboration = object.value(kOnlineElaboration).toBool();
    onlineLinearizations = object.value(kOnlineLinearization).toBool();
    // No limit is stated: then there is none, rather than one of 0 bytes that nothing passes.
    const auto bytes = object.value(kMaximumImageBytes);
    maximumImageBytes = bytes.isString()
        ? VConvert::toInt64(bytes.toString(), QLocale(QLocale::C), 10)
        : std::numeric_limits<qint64>::max();
    const QString svg = object.value(kSvgIcon).toString();
    svgIcon = svg.isEmpty() ? QByteArray() : svgFromText(svg);
    icon = svg.isEmpty() ? DriverIcon(imagesFromJson(object.value(kIcon).toArray())) : DriverIcon();
}

/// Knows the fields of a driver, and its content id before it is decoded.
class VPrinterDriver::Codec final : public Hardware::VDeviceConfigCodec
{
public:
    static const Codec instance;

    void read(Hardware::VDeviceConfig &record, const VJsonTextObject &config) const override
    {
        static_cast<VPrinterDriver &>(record).own().readJson(config);
    }
    void write(const Hardware::VDeviceConfig &record, VJsonTextWriter &config) const override
    {
        static_cast<const VPrinterDriver &>(record).fields().writeJson(config);
    }
    std::optional<QUuid> dataId(const QUuid &deviceId, const VJsonTextObject &config) const override
    {
        VPrinterDriverPrivate fields;
        fields.readContent(config);
        return QUuid::createUuidV5(deviceId, fields.contentText());
    }
    void adopt(const Hardware::VDeviceConfig &record,
               const Hardware::VDeviceConfig &decoded) const override
    {
        // A host may have copied no more than the base of a driver.
        if (const auto *driver = dynamic_cast<const VPrinterDriver *>(&record))
            driver->d = static_cast<const VPrinterDriver &>(decoded).d;
    }
};

const VPrinterDriver::Codec VPrinterDriver::Codec::instance;

const Hardware::VDeviceConfigCodec *VPrinterDriver::codec() const
{
    return codecFor(*this, Codec::instance);
}

QJsonObject VPrinterDriver::toInnerJsonObject() const
{
    VJsonTreeWriter writer;
    fields().writeJson(writer);
    return writer.members();
}

bool VPrinterDriver::setInnerJsonObject(const QJsonObject &object)
{
    own().readJson(object);
    return true;
}

} // namespace Norvane::Kilnjet
