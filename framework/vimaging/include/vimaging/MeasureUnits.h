// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// A unit of length in which images are measured.
enum class MeasureUnits : int
{
    Meters = 0, ///< Metres.
    Millimeters = 1, ///< Millimetres.
    Inches = 2, ///< Inches of 25.4 mm.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, MeasureUnits, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::MeasureUnits)
