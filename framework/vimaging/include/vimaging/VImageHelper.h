// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vimaging/Export.h>

#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QIcon>

namespace Norvane::Imaging {

/// Helpers around images and icons.
class VIMAGING_EXPORT VImageHelper
{
public:
    /// An icon with one square image of each of `sizes` (in pixels), rendered from the SVG file.
    ///
    /// A fully transparent `color` keeps the drawing's own colours, any other tints it. The drawing
    /// keeps its proportions, centred on a transparent ground.
    /// Threads: where QPixmap may be used. Failures: an empty icon when the file cannot be read or
    /// is no SVG, and in a process without a QGuiApplication.
    static QIcon iconFromSvg(const QString &path, const QColor &color, const QList<int> &sizes);
};

} // namespace Norvane::Imaging
