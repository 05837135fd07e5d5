// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "HostIconSource.h"

#include "drivers/GuiCheck.h"

#include <QtGui/QPixmap>

namespace Norvane::Kilnjet {

/// The pixels of a QIcon: those taken from it, and for other sizes what it answers.
class HostIconPixels final : public IconPixels
{
public:
    HostIconPixels(const QIcon &icon, const HostIconSource::Shown &shown)
        : m_icon(icon)
        , m_shown(shown)
    { }

    QList<QSize> sizes() const override { return m_shown.sizes; }

    QImage image(const QSize &size) const override
    {
        const qsizetype index = m_shown.sizes.indexOf(size);
        if (index >= 0)
            return m_shown.images.at(index);
        return isGuiRunning() ? m_icon.pixmap(size, 1.0, QIcon::Normal, QIcon::Off).toImage()
                              : QImage();
    }

private:
    QIcon m_icon;
    HostIconSource::Shown m_shown;
};

HostIconSource::HostIconSource(const QIcon &icon)
    : m_icon(icon)
{
    shown();
}

QList<EncodedImage> HostIconSource::encoded() const
{
    const Shown images = shown();
    const QMutexLocker locker(&m_mutex);
    if (m_encoded)
        return *m_encoded;
    QList<EncodedImage> encoded;
    for (const QImage &image : images.images) {
        const EncodedImage png = encodedAsPng(image);
        if (!png.data.isEmpty())
            encoded.append(png);
    }
    if (m_shown)
        m_encoded = encoded;
    return encoded;
}

std::unique_ptr<IconPixels> HostIconSource::pixels() const
{
    return std::make_unique<HostIconPixels>(m_icon, shown());
}

QIcon HostIconSource::icon() const
{
    return m_icon;
}

HostIconSource::Shown HostIconSource::shown() const
{
    const QMutexLocker locker(&m_mutex);
    if (!m_shown && isGuiRunning()) {
        m_shown.emplace();
        m_shown->sizes = m_icon.availableSizes(QIcon::Normal, QIcon::Off);
        for (const QSize &size : std::as_const(m_shown->sizes)) {
            const QPixmap pixmap = m_icon.pixmap(size, 1.0, QIcon::Normal, QIcon::Off);
            m_shown->images.append(pixmap.toImage());
        }
    }
    return m_shown.value_or(Shown());
}

} // namespace Norvane::Kilnjet
