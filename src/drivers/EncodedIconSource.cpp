// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "EncodedIconSource.h"

#include "drivers/GuiCheck.h"
#include "drivers/IconImages.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtGui/QImageReader>
#include <QtGui/QPixmap>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

/// The hint that the decoder gets: a name ends at its first NUL.
QByteArray hintOf(const QString &format)
{
    return QByteArray(format.toLatin1().constData());
}

bool isVectorFormat(const QByteArray &format)
{
    return format.startsWith("svg") || format == "pdf";
}

/// Vector drawings may hold text, and fonts without a GUI abort the process.
bool needsGui(const EncodedImage &image)
{
    QByteArray data = image.data;
    QBuffer buffer(&data);
    return buffer.open(QIODevice::ReadOnly)
        && (isVectorFormat(hintOf(image.format).toLower())
            || isVectorFormat(QImageReader::imageFormat(&buffer)));
}

bool canDecode(const EncodedImage &image)
{
    return isGuiRunning() || !needsGui(image);
}

QImage decoded(const EncodedImage &image)
{
    QByteArray data = image.data;
    QBuffer buffer(&data);
    return buffer.open(QIODevice::ReadOnly) ? QImageReader(&buffer, hintOf(image.format)).read()
                                            : QImage();
}

/// The depth that an image of an .ico had, which its reader notes in a text.
int originalDepth(const QImage &image)
{
    const QString depth = image.text(u"_q_icoOrigDepth"_s);
    return depth.isEmpty() ? 32 : depth.toInt();
}

/// The images of an .ico, the deepest of each size.
QList<QImage> imagesOfIco(QImageReader &reader)
{
    QList<QImage> images;
    do {
        const QImage image = reader.read();
        if (image.isNull())
            break;
        const auto same = std::find_if(images.begin(), images.end(), [&](const QImage &known) {
            return known.size() == image.size();
        });
        if (same == images.end())
            images.append(image);
        else if (originalDepth(image) > originalDepth(*same))
            *same = image;
    } while (reader.jumpToNextImage());
    return images;
}

} // namespace

EncodedIconSource::EncodedIconSource(const QList<EncodedImage> &images)
    : m_images(images)
{ }

QList<EncodedImage> EncodedIconSource::encoded() const
{
    // What cannot be decoded here is kept as it came, for a process that can.
    if (!canDecodeAll())
        return m_images;
    std::call_once(m_encodedOnce, [this] {
        const auto shown = pixels();
        const QList<QSize> sizes = shown->sizes();
        for (const QSize &size : sizes) {
            const EncodedImage image = encodedAsPng(shown->image(size));
            if (!image.data.isEmpty())
                m_encoded.append(image);
        }
    });
    return m_encoded;
}

std::unique_ptr<IconPixels> EncodedIconSource::pixels() const
{
    auto images = std::make_unique<IconImages>();
    for (const EncodedImage &image : m_images) {
        if (canDecode(image))
            images->add(decoded(image));
    }
    return images;
}

QIcon EncodedIconSource::icon() const
{
    std::call_once(m_iconOnce, [this] {
        for (const EncodedImage &image : m_images) {
            QPixmap pixmap;
            if (pixmap.loadFromData(image.data, hintOf(image.format).constData()))
                m_icon.addPixmap(pixmap, QIcon::Normal, QIcon::Off);
        }
    });
    return m_icon;
}

bool EncodedIconSource::isSameAs(const IconSource &other) const
{
    const auto *source = dynamic_cast<const EncodedIconSource *>(&other);
    return source != nullptr && m_images == source->m_images;
}

bool EncodedIconSource::canDecodeAll() const
{
    return std::all_of(m_images.begin(), m_images.end(), canDecode);
}

QList<EncodedImage> encodedImagesFromFile(const QString &path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return {};
    const EncodedImage whole{QString::fromLatin1(QImageReader::imageFormat(&file)), file.readAll()};
    if (whole.format.isEmpty())
        return {};
    if (!canDecode(whole))
        return {whole};
    file.seek(0);
    QImageReader reader(&file, hintOf(whole.format));
    QList<EncodedImage> encoded;
    const QList<QImage> images =
        whole.format == "ico"_L1 ? imagesOfIco(reader) : QList<QImage>{reader.read()};
    IconImages shown;
    for (const QImage &image : images)
        shown.add(image);
    const QList<QSize> sizes = shown.sizes();
    for (const QSize &size : sizes) {
        const EncodedImage image = encodedAsPng(shown.image(size));
        if (!image.data.isEmpty())
            encoded.append(image);
    }
    return encoded;
}

} // namespace Norvane::Kilnjet
