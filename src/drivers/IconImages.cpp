// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "IconImages.h"

#include <QtGui/QRgba64>

#include <algorithm>

namespace Norvane::Kilnjet {

namespace {

int area(const QSize &size)
{
    return size.width() * size.height();
}

template<typename Pixel, typename IsTransparent>
bool anyPixel(const QImage &image, IsTransparent isTransparent)
{
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const Pixel *>(image.constScanLine(y));
        if (std::any_of(line, line + image.width(), isTransparent))
            return true;
    }
    return false;
}

bool anyTransparentColor(const QImage &image)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y).alphaF() < 1.0F)
                return true;
        }
    }
    return false;
}

/// Whether a pixmap made of `image`, which has an alpha channel, keeps that channel.
bool hasTransparentPixels(const QImage &image)
{
    switch (image.format()) {
    case QImage::Format_Indexed8:
    case QImage::Format_Alpha8:
        return true; // Decided by the format and the colour table, whatever the pixels use of it.
    case QImage::Format_ARGB32:
    case QImage::Format_ARGB32_Premultiplied:
        return anyPixel<QRgb>(image, [](QRgb pixel) { return qAlpha(pixel) != 0xFF; });
    case QImage::Format_RGBA64:
    case QImage::Format_RGBA64_Premultiplied:
        return anyPixel<QRgba64>(image, [](QRgba64 pixel) { return !pixel.isOpaque(); });
    default:
        return anyTransparentColor(image);
    }
}

/// `image` as a pixmap holds it on the raster platforms.
QImage pixmapImage(const QImage &image)
{
    const bool keepsAlpha =
        image.hasAlphaChannel() && (image.depth() == 1 || hasTransparentPixels(image));
    return image.convertToFormat(keepsAlpha ? QImage::Format_ARGB32_Premultiplied
                                            : QImage::Format_RGB32);
}

} // namespace

void IconImages::add(const QImage &image)
{
    if (image.isNull())
        return;
    const QImage added = pixmapImage(image);
    if (added.isNull())
        return;
    const qsizetype match = bestMatch(added.size());
    if (match >= 0 && m_images.at(match).size() == added.size())
        m_images[match] = added;
    else
        m_images.append(added);
}

QList<QSize> IconImages::sizes() const
{
    QList<QSize> sizes;
    for (const QImage &image : m_images)
        sizes.append(image.size());
    return sizes;
}

QImage IconImages::image(const QSize &size) const
{
    const qsizetype match = bestMatch(size);
    if (match < 0)
        return {};
    const QImage &image = m_images.at(match);
    QSize actual = image.size();
    if (actual.width() > size.width() || actual.height() > size.height())
        actual.scale(size, Qt::KeepAspectRatio);
    if (actual == image.size())
        return image;
    return pixmapImage(image.scaled(actual, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

/// QIcon compares areas, not sides: the smallest image not below the wanted area, else the largest;
/// of equal areas the one added last. Hence two images of one size can stand side by side when a
/// third one of the same area was added between them.
qsizetype IconImages::bestMatch(const QSize &size) const
{
    qsizetype best = m_images.isEmpty() ? -1 : 0;
    for (qsizetype i = 1; i < m_images.size(); ++i) {
        const int a = area(m_images.at(i).size());
        const int b = area(m_images.at(best).size());
        const int wanted = std::min(a, b) >= area(size) ? std::min(a, b) : std::max(a, b);
        if (wanted == a)
            best = i;
    }
    return best;
}

} // namespace Norvane::Kilnjet
