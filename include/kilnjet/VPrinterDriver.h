// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Export.h>
#include <kilnjet/PrinterClass.h>
#include <kilnjet/PrinterFacesMode.h>
#include <kilnjet/PrinterFileCompression.h>
#include <kilnjet/PrinterFileProtection.h>
#include <vcommon/VDeviceConfig.h>

#include <QtCore/QByteArray>
#include <QtCore/QSharedDataPointer>
#include <QtCore/QString>
#include <QtCore/QUuid>
#include <QtGui/QIcon>

namespace Norvane::Kilnjet {

class VPrinterDriverPrivate;

/// One printing machine: its family, how files are sent to it, its limits and its icon. Its print
/// units and elaborations are its children.
///
/// | JSON key              | Accessor               | JSON type | Fallback              |
/// |-----------------------|------------------------|-----------|-----------------------|
/// | "fileProtection"      | fileProtection()       | string    | `None`                |
/// | "fileCompression"     | fileCompression()      | string    | `None`                |
/// | "printerClass"        | printerClass()         | string    | `Inkjet`, the value 0 |
/// | "facesMode"           | facesMode()            | string    | `None`                |
/// | "maximumImageBytes"   | maximumImageBytes()    | string    | 9223372036854775807   |
/// | "maximumFaces"        | maximumFaces()         | number    | 0                     |
/// | "experimental"        | experimental()         | boolean   | false                 |
/// | "onlineElaboration"   | onlineElaboration()    | boolean   | false                 |
/// | "onlineLinearization" | onlineLinearizations() | boolean   | false                 |
/// | "icon"                | icon()                 | array     | an empty icon         |
/// | "svgIcon"             | icon()                 | string    | no SVG document       |
///
/// "maximumImageBytes" is a string of digits; one that is no number reads as 0. "icon" holds an
/// object {"format": "png", "data": Base64} for each image, "svgIcon" the compressed document in
/// Base64.
///
/// The fallback of "printerClass" differs from a new driver's `Unknown`, and "onlineLinearization"
/// has no final s: stored records rely on both. A driver has either images or an SVG document;
/// "svgIcon" wins when both are there.
///
/// The content id is the version 5 UUID, in the namespace of the device id, of faces mode, printer
/// class and maximum faces joined by ";", such as "Basic;Inkjet;4". No other field takes part. A
/// driver is valid with a device id and at least one child.
///
/// Stored images are decoded when someone looks at them, not before: reading, copying, validating
/// and writing drivers works in a process without a GUI and on any thread.
///
/// Threads: one at a time for one object; copies may live on different threads.
/// Failures: reading falls back as the table says and never fails, and images that cannot be
/// decoded are skipped; nothing throws.
class VKILNJET_EXPORT VPrinterDriver : public Hardware::VDeviceConfig
{
public:
    /// A driver of the current format version, 1.2.1, with the null device id.
    VPrinterDriver();
    /// The same with a device id.
    explicit VPrinterDriver(const QUuid &deviceId);
    /// An independent copy, children included; metadata flagged `KillOnCopy` stays behind.
    VPrinterDriver(const VPrinterDriver &other);
    /// Takes over everything but metadata flagged `KillOnCopy`.
    VPrinterDriver &operator=(const VPrinterDriver &other);
    ~VPrinterDriver() override;

    /// Equal fields, icons and bases. The icons are compared over the sizes that this driver's
    /// images have: without any, it equals whatever images `other` has, though not the other way
    /// round.
    bool operator==(const VPrinterDriver &other) const;
    /// The contrary of `==`.
    bool operator!=(const VPrinterDriver &other) const { return !(*this == other); }

    Interfaces::ICloneable *clone() const override;
    /// {06b1a6eb-628e-45e5-8d80-eb92a4f22e4e}, whatever the driver.
    QUuid id() const override;
    bool equalsTo(const Interfaces::IEquatable *other) const override;

    /// The family of machine.
    PrinterClass printerClass() const;
    /// Sets the family; a new driver has `Unknown`. Changes the content id.
    void setPrinterClass(const PrinterClass &printerClass);
    /// How the machine handles the faces of a tile design.
    PrinterFacesMode facesMode() const;
    /// Sets the mode; a new driver has `None`. Changes the content id.
    void setFacesMode(const PrinterFacesMode &mode);
    /// The compression of the files sent to the machine.
    PrinterFileCompression fileCompression() const;
    /// Sets the compression; a new driver has `None`.
    void setFileCompression(const PrinterFileCompression &compression);
    /// The protection of the files sent to the machine.
    PrinterFileProtection fileProtection() const;
    /// Sets the protection; a new driver has `None`.
    void setFileProtection(const PrinterFileProtection &protection);
    /// The largest number of faces that the machine accepts.
    int maximumFaces() const;
    /// Sets the number, which nothing checks; a new driver has 0. Changes the content id.
    void setMaximumFaces(int faces);
    /// The largest image that the machine accepts, in bytes.
    qint64 maximumImageBytes() const;
    /// Sets the limit, which nothing checks; a new driver has 0.
    void setMaximumImageBytes(qint64 bytes);
    /// Whether elaboration is done online.
    bool onlineElaboration() const;
    /// Sets onlineElaboration(); a new driver has false.
    void setOnlineElaboration(bool online);
    /// Whether linearisations are applied online.
    bool onlineLinearizations() const;
    /// Sets onlineLinearizations(); a new driver has false.
    void setOnlineLinearizations(bool online);
    /// Whether the driver is not for production yet.
    bool experimental() const;
    /// Sets experimental(); a new driver has false.
    void setExperimental(bool experimental);

    /// The icon. One from an SVG document is drawn anew at each call, at 16 to 1024 pixels. Empty
    /// in a process without a QGuiApplication.
    QIcon icon() const;
    /// Takes the images of `icon`; an SVG document is dropped.
    void setIcon(const QIcon &icon);
    /// Reads the icon from a file: an SVG document when its suffix is "svg" in any case, else an
    /// image. An SVG file that cannot be opened changes nothing.
    void setIcon(const QString &path);

protected:
    QJsonObject toInnerJsonObject() const override;
    bool setInnerJsonObject(const QJsonObject &object) override;
    QUuid innerDataId(bool *ok) const override;
    bool innerIsValid() const override;
    const Hardware::VDeviceConfigCodec *codec() const override;

private:
    class Codec;

    const VPrinterDriverPrivate &fields() const;
    VPrinterDriverPrivate &own();
    void setSvgIcon(const QByteArray &svg);

    mutable QExplicitlySharedDataPointer<VPrinterDriverPrivate> d; ///< See decodeNow().
};

} // namespace Norvane::Kilnjet
