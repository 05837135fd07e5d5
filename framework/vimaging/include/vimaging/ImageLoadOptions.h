// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// How an image file is to be read.
enum class ImageLoadOptions : int
{
    None = 0, ///< As the file is.
    Smartload = 1, ///< No more is loaded than is needed.
    DisableQtAutotransform = 2, ///< The orientation that the file asks for is not applied.
    IgnoreCrcError = 4, ///< Data whose sum does not match is taken all the same.
    AddDefaultColorProfile = 8, ///< An image without a colour profile gets the default one.
    VectorChannelModeHack = 16, ///< Works around the channel mode of vector files.
};
VCORE_DECLARE_FLAGS(ImageLoadOptions)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ImageLoadOptions, VEnumBaseFlags)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ImageLoadOptions)
