// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "drivers/IconSource.h"

#include <mutex>

namespace Norvane::Kilnjet {

/// Images that are kept encoded, as they came.
class EncodedIconSource final : public IconSource
{
public:
    explicit EncodedIconSource(const QList<EncodedImage> &images);

    QList<EncodedImage> encoded() const override;
    std::unique_ptr<IconPixels> pixels() const override;
    QIcon icon() const override;
    bool isSameAs(const IconSource &other) const override;

private:
    bool canDecodeAll() const;

    QList<EncodedImage> m_images;
    mutable std::once_flag m_encodedOnce;
    mutable QList<EncodedImage> m_encoded; ///< Filled once: encoding costs most of a commit.
    mutable std::once_flag m_iconOnce;
    mutable QIcon m_icon; ///< Built once, so that its cacheKey() stays the same.
};

/// The images of a file, as PNG: each of an .ico, else the first. Needs no GUI.
QList<EncodedImage> encodedImagesFromFile(const QString &path);

} // namespace Norvane::Kilnjet
