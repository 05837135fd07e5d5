// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverIcon.h"

#include "drivers/EncodedIconSource.h"
#include "drivers/GuiCheck.h"
#include "drivers/HostIconSource.h"
#include "drivers/IconPixels.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

DriverIcon::DriverIcon(const QIcon &icon)
    : m_source(icon.isNull() ? nullptr : std::make_shared<HostIconSource>(icon))
{ }

DriverIcon::DriverIcon(const QList<EncodedImage> &images)
    : m_source(images.isEmpty() ? nullptr : std::make_shared<EncodedIconSource>(images))
{ }

DriverIcon DriverIcon::fromFile(const QString &path)
{
    if (isGuiRunning())
        return DriverIcon(QIcon(path));
    return DriverIcon(encodedImagesFromFile(path));
}

QList<EncodedImage> DriverIcon::encoded() const
{
    return m_source ? m_source->encoded() : QList<EncodedImage>();
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
