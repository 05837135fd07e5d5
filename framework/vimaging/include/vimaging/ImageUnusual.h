// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// What is unusual about an image file that was read.
enum class ImageUnusual : int
{
    None = 0, ///< Nothing is unusual.
    TiffSepared = 1, ///< A TIFF file of separations.
    TiffLab = 2, ///< A TIFF file in Lab.
};
VCORE_DECLARE_FLAGS(ImageUnusual)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageUnusual, VEnumBaseFlags)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageUnusual)
