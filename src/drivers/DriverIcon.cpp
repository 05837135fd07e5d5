// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverIcon.h"

#include "drivers/EncodedIconSource.h"
#include "drivers/GuiCheck.h"
#include "drivers/HostIconSource.h"
#include "drivers/IconPixels.h"

#include <QtCore/QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {

constexpr QLatin1StringView kFormat{"format"};
constexpr QLatin1StringView kData{"data"};

} // namespace

DriverIcon::DriverIcon(std::shared_ptr<const IconSource> source)
    : m_source(std::move(source))
{ }

DriverIcon::DriverIcon(const QIcon &icon)
    : m_source(icon.isNull() ? nullptr : std::make_shared<HostIconSource>(icon))
{ }

DriverIcon DriverIcon::fromJson(const QJsonArray &array)
{
    QList<EncodedImage> images;
    for (const QJsonValue &element : array) {
        const QJsonObject object = element.toObject();
        const QString format = object.value(kFormat).toString();
        const QByteArray data = QByteArray::fromBase64(object.value(kData).toString().toLatin1());
        if (!data.isEmpty() && !format.isEmpty())
            images.append({format, data});
    }
    if (images.isEmpty())
        return {};
    return DriverIcon(std::make_shared<EncodedIconSource>(images));
}

DriverIcon DriverIcon::fromFile(const QString &path)
{
    if (isGuiRunning())
        return DriverIcon(QIcon(path));
    const QList<EncodedImage> images = encodedImagesFromFile(path);
    if (images.isEmpty())
        return {};
    return DriverIcon(std::make_shared<EncodedIconSource>(images));
}

QJsonArray DriverIcon::toJson() const
{
    QJsonArray array;
    const QList<EncodedImage> images = m_source ? m_source->encoded() : QList<EncodedImage>();
    for (const EncodedImage &image : images) {
        array.append(QJsonObject{{kFormat, image.format},
                                 {kData, QString::fromLatin1(image.data.toBase64())}});
    }
    return array;
}

QIcon DriverIcon::icon() const
{
    return m_source && isGuiRunning() ? m_source->icon() : QIcon();
}

bool DriverIcon::matches(const DriverIcon &other) const
{
    if (!m_source || m_source == other.m_source)
        return true;
    if (other.m_source && m_source->isSameAs(*other.m_source))
        return true;
    const auto pixels = m_source->pixels();
    const auto otherPixels = other.m_source ? other.m_source->pixels() : nullptr;
    const QList<QSize> sizes = pixels->sizes();
    return std::all_of(sizes.begin(), sizes.end(), [&](const QSize &size) {
        return pixels->image(size) == (otherPixels ? otherPixels->image(size) : QImage());
    });
}

} // namespace Norvane::Kilnjet
