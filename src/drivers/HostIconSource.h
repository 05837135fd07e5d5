// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "drivers/IconSource.h"

#include <QtCore/QMutex>

#include <optional>

namespace Norvane::Kilnjet {

/// A QIcon that the host gave.
///
/// Its images are taken when it is given, in the host's thread, so that a commit on another thread
/// never touches the QIcon, which is not made for that. Without a GUI there are none until there is
/// one.
class HostIconSource final : public IconSource
{
public:
    explicit HostIconSource(const QIcon &icon);

    QList<EncodedImage> encoded() const override;
    std::unique_ptr<IconPixels> pixels() const override;
    QIcon icon() const override;

private:
    struct Shown
    {
        QList<QSize> sizes;
        QList<QImage> images;
    };
    Shown shown() const;

    const QIcon m_icon;
    mutable QMutex m_mutex; ///< Guards the members below.
    mutable std::optional<Shown> m_shown;
    mutable std::optional<QList<EncodedImage>> m_encoded;

    friend class HostIconPixels;
};

} // namespace Norvane::Kilnjet
