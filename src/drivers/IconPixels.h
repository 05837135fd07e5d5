// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtGui/QImage>

namespace Norvane::Kilnjet {

/// The pixels of an icon, as a QIcon of the same images shows them (mode Normal, state Off, one
/// device pixel a pixel).
class IconPixels
{
public:
    virtual ~IconPixels() = default;

    /// The sizes there are images of, in the order of their addition; a size may stand there twice.
    virtual QList<QSize> sizes() const = 0;
    /// The image that best fits `size`, scaled down to it if it is larger; null without any image.
    virtual QImage image(const QSize &size) const = 0;
};

} // namespace Norvane::Kilnjet
