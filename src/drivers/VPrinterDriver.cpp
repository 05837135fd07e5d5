// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <kilnjet/VPrinterDriver.h>

#include "drivers/GuiCheck.h"
#include "drivers/VPrinterDriver_p.h"
#include "enums/PrinterClass_T.h"
#include "enums/PrinterFacesMode_T.h"

#include <vimaging/VImageHelper.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStringBuilder>
#include <QtCore/QTemporaryFile>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

/// The version of the format that this library writes.
constexpr VVersion kFormatVersion(1, 2, 1);

/// The sizes at which an SVG document is drawn.
const QList<int> &svgSizes()
{
    static const QList<int> kSizes{16, 24, 32, 48, 64, 72, 96, 128, 256, 512, 1024};
    return kSizes;
}

} // namespace

VPrinterDriver::VPrinterDriver()
    : VPrinterDriver(QUuid())
{ }

VPrinterDriver::VPrinterDriver(const QUuid &deviceId)
    : VDeviceConfig(deviceId, kFormatVersion, QString(), QString())
    , d(new VPrinterDriverPrivate)
{ }

VPrinterDriver::VPrinterDriver(const VPrinterDriver &other) = default;

VPrinterDriver &VPrinterDriver::operator=(const VPrinterDriver &other) = default;

VPrinterDriver::~VPrinterDriver() = default;

const VPrinterDriverPrivate &VPrinterDriver::fields() const
{
    decodeNow();
    return *d;
}

VPrinterDriverPrivate &VPrinterDriver::own()
{
    decodeNow();
    // Acquire: a copy on another thread that has just let go has also finished reading.
    if (d->ref.loadAcquire() != 1)
        d.reset(new VPrinterDriverPrivate(*d));
    return *d;
}

bool VPrinterDriver::operator==(const VPrinterDriver &other) const
{
    if (this == &other)
        return true;
    const VPrinterDriverPrivate &own = fields();
    const VPrinterDriverPrivate &others = other.fields();
    return (&own == &others || own.equals(others)) && VDeviceConfig::operator==(other);
}

bool VPrinterDriverPrivate::equals(const VPrinterDriverPrivate &other) const
{
    return experimental == other.experimental && onlineElaboration == other.onlineElaboration
        && onlineLinearizations == other.onlineLinearizations
        && fileProtection == other.fileProtection && fileCompression == other.fileCompression
        && facesMode == other.facesMode && printerClass == other.printerClass
        && maximumFaces == other.maximumFaces && maximumImageBytes == other.maximumImageBytes
        && svgIcon == other.svgIcon && icon.matches(other.icon);
}

Interfaces::ICloneable *VPrinterDriver::clone() const
{
    return new VPrinterDriver(*this);
}

QUuid VPrinterDriver::id() const
{
    static const QUuid kind(u"{06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}"_s);
    return kind;
}

bool VPrinterDriver::equalsTo(const Interfaces::IEquatable *other) const
{
    return sameTypeAs(other) && *this == static_cast<const VPrinterDriver &>(*other);
}

PrinterClass VPrinterDriver::printerClass() const
{
    return fields().printerClass;
}

void VPrinterDriver::setPrinterClass(const PrinterClass &printerClass)
{
    own().printerClass = printerClass;
}

PrinterFacesMode VPrinterDriver::facesMode() const
{
    return fields().facesMode;
}

void VPrinterDriver::setFacesMode(const PrinterFacesMode &mode)
{
    own().facesMode = mode;
}

PrinterFileCompression VPrinterDriver::fileCompression() const
{
    return fields().fileCompression;
}

void VPrinterDriver::setFileCompression(const PrinterFileCompression &compression)
{
    own().fileCompression = compression;
}

PrinterFileProtection VPrinterDriver::fileProtection() const
{
    return fields().fileProtection;
}

void VPrinterDriver::setFileProtection(const PrinterFileProtection &protection)
{
    own().fileProtection = protection;
}

int VPrinterDriver::maximumFaces() const
{
    return fields().maximumFaces;
}

void VPrinterDriver::setMaximumFaces(int faces)
{
    own().maximumFaces = faces;
}

qint64 VPrinterDriver::maximumImageBytes() const
{
    return fields().maximumImageBytes;
}

void VPrinterDriver::setMaximumImageBytes(qint64 bytes)
{
    own().maximumImageBytes = bytes;
}

bool VPrinterDriver::onlineElaboration() const
{
    return fields().onlineElaboration;
}

void VPrinterDriver::setOnlineElaboration(bool online)
{
    own().onlineElaboration = online;
}

bool VPrinterDriver::onlineLinearizations() const
{
    return fields().onlineLinearizations;
}

void VPrinterDriver::setOnlineLinearizations(bool online)
{
    own().onlineLinearizations = online;
}

bool VPrinterDriver::experimental() const
{
    return fields().experimental;
}

void VPrinterDriver::setExperimental(bool experimental)
{
    own().experimental = experimental;
}

QIcon VPrinterDriver::icon() const
{
    if (fields().svgIcon.isEmpty())
        return d->icon.icon();
    QTemporaryFile file;
    if (!isGuiRunning() || !file.open() || file.write(d->svgIcon) != d->svgIcon.size())
        return {};
    file.close();
    return Imaging::VImageHelper::iconFromSvg(file.fileName(), QColor::fromRgba(0), svgSizes());
}

void VPrinterDriver::setIcon(const QIcon &icon)
{
    own().icon = DriverIcon(icon);
    own().svgIcon.clear();
}

void VPrinterDriver::setIcon(const QString &path)
{
    if (QFileInfo(path).suffix().compare("svg"_L1, Qt::CaseInsensitive) != 0) {
        own().icon = DriverIcon::fromFile(path);
        own().svgIcon.clear();
        return;
    }
    QFile file(path);
    if (file.open(QIODevice::ReadOnly))
        setSvgIcon(file.readAll());
}

void VPrinterDriver::setSvgIcon(const QByteArray &svg)
{
    own().svgIcon = svg;
    own().icon = DriverIcon();
}

QUuid VPrinterDriver::innerDataId(bool *ok) const
{
    Q_UNUSED(ok) // Every driver has a content id.
    return QUuid::createUuidV5(deviceId(), fields().contentText());
}

QString VPrinterDriverPrivate::contentText() const
{
    return PrinterFacesMode_T::instance().textOf(facesMode) % u';'
        % PrinterClass_T::instance().textOf(printerClass) % u';' % QString::number(maximumFaces);
}

bool VPrinterDriver::innerIsValid() const
{
    return VDeviceConfig::innerIsValid() && count(QUuid(), false) > 0;
}

} // namespace Norvane::Kilnjet
