// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QBuffer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtGui/QColor>
#include <QtGui/QImage>

// Images and the "icon" arrays of a driver's JSON. Nothing here needs a GUI.

namespace Support {

using namespace Qt::StringLiterals;

/// An image whose pixels all differ a little; with transparency where the format has it.
inline QImage testImage(int width, int height, QImage::Format format = QImage::Format_ARGB32,
                        int seed = 0)
{
    QImage image(width, height, QImage::Format_ARGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y,
                           qRgba((x * 37 + seed) & 0xFF, (y * 53 + seed * 7) & 0xFF,
                                 ((x + y) * 11) & 0xFF, (x * 31 + y * 17 + seed) & 0xFF));
    }
    return image.convertToFormat(format);
}

inline QByteArray encoded(const QImage &image, const char *format = "png")
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

/// One element of an "icon" array.
inline QJsonObject iconElement(const QByteArray &bytes, const QString &format = u"png"_s)
{
    return {{"format"_L1, format}, {"data"_L1, QString::fromLatin1(bytes.toBase64())}};
}

/// A driver's own object that holds nothing but these images.
inline QJsonObject innerWithIcon(const QJsonArray &icon)
{
    return {{"icon"_L1, icon}};
}

/// The images of a driver's own object, as they stand there.
inline QList<QByteArray> iconBytes(const QJsonObject &inner)
{
    QList<QByteArray> list;
    const QJsonArray icon = inner.value("icon"_L1).toArray();
    for (const QJsonValue &element : icon)
        list.append(
            QByteArray::fromBase64(element.toObject().value("data"_L1).toString().toLatin1()));
    return list;
}

} // namespace Support
