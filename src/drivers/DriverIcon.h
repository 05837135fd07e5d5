// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtGui/QIcon>

#include <memory>

namespace Norvane::Kilnjet {

class IconSource;
struct EncodedImage;

/// The raster icon of a driver, whether it came as encoded images or as a QIcon of the host.
///
/// Encoded images are kept as they are and decoded when someone looks at them, so that records can
/// be read, copied, compared and written without a GUI and on any thread; what is seen of them is
/// what decoding them at once into a QIcon would have given.
/// Threads: copies share what they hold and may live on different threads.
class DriverIcon
{
public:
    /// No icon.
    DriverIcon() = default;
    explicit DriverIcon(const QIcon &icon);
    /// The icon of these images; no icon without any.
    explicit DriverIcon(const QList<EncodedImage> &images);
    /// The icon in the image file `path`; no icon if there is none.
    static DriverIcon fromFile(const QString &path);

    /// The images to be stored: one of each size, as PNG.
    QList<EncodedImage> encoded() const;
    /// The icon; empty in a process without a GUI.
    QIcon icon() const;
    /// Whether `other` shows the same images at the sizes that this icon has.
    bool matches(const DriverIcon &other) const;

private:
    std::shared_ptr<const IconSource> m_source; ///< Null: no icon.
};

} // namespace Norvane::Kilnjet
