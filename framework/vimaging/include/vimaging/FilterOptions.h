// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging::Filters {

/// How an image filter is to be applied.
enum class FilterOptions : int
{
    None = 0, ///< As filters usually are.
    ApplyInPlace = 1, ///< The result replaces the source image.
    Progressive = 2, ///< The result comes step by step.
    MultiImageConcurrence = 4, ///< Several images may be filtered at once.
    NoopNotPermitted = 8, ///< A filter that would change nothing is an error.
    All = -1, ///< Every option, known or not.
};
VCORE_DECLARE_FLAGS(FilterOptions)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, FilterOptions, VEnumBaseFlags)

} // namespace Norvane::Imaging::Filters

Q_DECLARE_METATYPE(Norvane::Imaging::Filters::FilterOptions)
