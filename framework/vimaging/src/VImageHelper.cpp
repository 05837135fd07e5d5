// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/VImageHelper.h>

#include <QtCore/QFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtSvg/QSvgRenderer>

namespace Norvane::Imaging {

namespace {

/// The largest rectangle of the drawing's proportions, centred in a square of `size` pixels.
QRectF centredBounds(const QSvgRenderer &drawing, int size)
{
    const QSizeF own = drawing.viewBoxF().size();
    const QSizeF scaled =
        (own.isEmpty() ? QSizeF(1, 1) : own).scaled(QSizeF(size, size), Qt::KeepAspectRatio);
    return {(size - scaled.width()) / 2, (size - scaled.height()) / 2, scaled.width(),
            scaled.height()};
}

QImage rendered(QSvgRenderer &drawing, const QColor &color, int size)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    drawing.render(&painter, centredBounds(drawing, size));
    if (color.alpha() != 0) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(image.rect(), color);
    }
    return image;
}

} // namespace

QIcon VImageHelper::iconFromSvg(const QString &path, const QColor &color, const QList<int> &sizes)
{
    // Without a GUI a pixmap, and even a text in the drawing, would abort the process.
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return {};
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    QSvgRenderer drawing;
    drawing.setFramesPerSecond(0); // An icon needs no animation timer.
    if (!drawing.load(file.readAll()))
        return {};
    QIcon icon;
    for (const int size : sizes) {
        const QImage image = size > 0 ? rendered(drawing, color, size) : QImage();
        if (!image.isNull())
            icon.addPixmap(QPixmap::fromImage(image));
    }
    return icon;
}

} // namespace Norvane::Imaging
