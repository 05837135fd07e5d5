// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// How colours that a medium cannot show are mapped.
///
/// The first four are those of the standard (ICC.1); the others preserve black ink as Little CMS 2
/// does.
enum class RenderingIntent : int
{
    IccPerceptual = 0, ///< Pleasing as a whole.
    IccRelativeColorimetric = 1, ///< Exact, but for the medium's white.
    IccSaturation = 2, ///< Vivid rather than exact.
    IccAbsoluteColorimetric = 3, ///< Exact, the medium's white included.
    NonIccPreserveKOnlyPerceptual = 10, ///< Perceptual; black alone stays black alone.
    NonIccPreserveKOnlyRelativeColorimetric = 11, ///< Relative; black alone stays black alone.
    NonIccPreserveKOnlySaturation = 12, ///< Saturation; black alone stays black alone.
    NonIccPreserveKPlanePerceptual = 13, ///< Perceptual; all black ink stays.
    NonIccPreserveKPlaneRelativeColorimetric = 14, ///< Relative; all black ink stays.
    NonIccPreserveKPlaneSaturation = 15, ///< Saturation; all black ink stays.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, RenderingIntent, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::RenderingIntent)
