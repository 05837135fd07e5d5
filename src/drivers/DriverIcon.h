// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QString>
#include <QtGui/QIcon>

#include <memory>

namespace Norvane::Kilnjet {

class IconSource;

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
    /// The icon that the array of a driver's JSON holds.
    static DriverIcon fromJson(const QJsonArray &array);
    /// The icon in the image file `path`; no icon if there is none.
    static DriverIcon fromFile(const QString &path);

    /// An object for each size, with the image as PNG; empty when there is none.
    QJsonArray toJson() const;
    /// The icon; empty in a process without a GUI.
    QIcon icon() const;
    /// Whether `other` shows the same images at the sizes that this icon has.
    bool matches(const DriverIcon &other) const;

private:
    explicit DriverIcon(std::shared_ptr<const IconSource> source);

    std::shared_ptr<const IconSource> m_source; ///< Null: no icon.
};

} // namespace Norvane::Kilnjet
