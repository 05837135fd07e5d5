// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Icons.h"

#include <QtCore/QBuffer>
#include <QtCore/QString>
#include <QtGui/QImage>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

QByteArray encoded(const QImage &image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

// A round badge with a transparent rim, whose glaze is grained so that it does not compress away.
QImage badge(int width, int number)
{
    QImage image(width, width, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    const int radius = width / 2;
    quint32 grain = quint32(number) * 2'654'435'761U + 1;
    for (int y = 0; y < width; ++y) {
        for (int x = 0; x < width; ++x) {
            grain = grain * 1'664'525U + 1'013'904'223U;
            const int dx = x - radius;
            const int dy = y - radius;
            if (dx * dx + dy * dy >= radius * radius)
                continue;
            const int shade = int(grain >> 27);
            image.setPixel(x, y,
                           qRgba((number * 31 + x * 2 + shade) & 0xFF, (y * 3 + shade) & 0xFF,
                                 (number * 57 + x + y) & 0xFF, 255));
        }
    }
    return image;
}

} // namespace

QList<QByteArray> pngIcon(int number)
{
    QList<QByteArray> images;
    for (const int width : {16, 32, 48, 64}) {
        // The first pass may change what an encoder does not keep; later ones change nothing.
        const QByteArray first = encoded(badge(width, number));
        images.append(encoded(QImage::fromData(first, "png")));
    }
    return images;
}

QByteArray svgIcon(int number)
{
    QString svg = u"<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 256 256\">\n"_s;
    for (int i = 0; i < 36; ++i) {
        const int x = (i * 41 + number * 13) % 240;
        const int y = (i * 67 + number * 29) % 240;
        svg += u"  <path d=\"M%1 %2 c%3 %4 %5 %6 16 16 z\" fill=\"#%7\" stroke=\"#333\"/>\n"_s.arg(
            QString::number(x), QString::number(y), QString::number(i % 9),
            QString::number(i % 7 + 8), QString::number(12 + number), QString::number(i % 5 + 3),
            QString::number(0x100000 + (i * 7'919 + number * 104'729) % 0xEFFFFF, 16));
    }
    return (svg + u"</svg>\n"_s).toUtf8();
}

} // namespace Bench
