// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "drivers/IconPixels.h"

namespace Norvane::Kilnjet {

/// Images kept, picked and scaled exactly as QIcon does it with pixmaps, but without a GUI and on
/// any thread.
class IconImages final : public IconPixels
{
public:
    /// Adds an image in the form in which a pixmap would hold it; a null image is ignored. It
    /// replaces the one that would be picked for its size, if that has the same size.
    void add(const QImage &image);

    QList<QSize> sizes() const override;
    QImage image(const QSize &size) const override;

private:
    qsizetype bestMatch(const QSize &size) const;

    QList<QImage> m_images;
};

} // namespace Norvane::Kilnjet
