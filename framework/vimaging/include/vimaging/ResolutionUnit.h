// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// The unit of a resolution.
enum class ResolutionUnit : int
{
    PPM = 0, ///< Pixels per metre.
    PPMM = 1, ///< Pixels per millimetre.
    DPI = 2, ///< Dots per inch.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ResolutionUnit, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::ResolutionUnit)
