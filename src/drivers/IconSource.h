// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "drivers/IconPixels.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QIcon>

#include <memory>

namespace Norvane::Kilnjet {

/// An encoded image and the name of its format.
struct EncodedImage
{
    static constexpr QLatin1StringView kData{"data"};
    static constexpr QLatin1StringView kFormat{"format"};

    QString format;
    QByteArray data;

    /// An element of the array "icon" of a driver's JSON; without data when it is malformed.
    template<typename Object>
    static EncodedImage fromJson(const Object &object)
    {
        const QString data = object.value(kData).toString();
        return {object.value(kFormat).toString(), QByteArray::fromBase64(data.toLatin1())};
    }
    template<typename Writer>
    void writeJson(Writer &object) const
    {
        object.insertPlain(kData, data.toBase64());
        object.insert(kFormat, format);
    }

    bool operator==(const EncodedImage &other) const = default;
};

/// `image` as PNG; no data when it cannot be written.
EncodedImage encodedAsPng(const QImage &image);

/// Where the images of a driver's icon come from. Shared by copies on any thread.
class IconSource
{
public:
    IconSource() = default;
    Q_DISABLE_COPY_MOVE(IconSource)
    virtual ~IconSource();

    /// The images as they are stored: one of each size, as PNG.
    virtual QList<EncodedImage> encoded() const = 0;
    /// The images as they are shown.
    virtual std::unique_ptr<IconPixels> pixels() const = 0;
    /// The icon itself. Only in a process with a GUI.
    virtual QIcon icon() const = 0;
    /// Whether both have the same images without a look at the pixels.
    virtual bool isSameAs(const IconSource &other) const;
};

} // namespace Norvane::Kilnjet
