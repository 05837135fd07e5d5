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
    IccPerceptual = 0,
    IccRelativeColorimetric = 1,
    IccSaturation = 2,
    IccAbsoluteColorimetric = 3,
    NonIccPreserveKOnlyPerceptual = 10,
    NonIccPreserveKOnlyRelativeColorimetric = 11,
    NonIccPreserveKOnlySaturation = 12,
    NonIccPreserveKPlanePerceptual = 13,
    NonIccPreserveKPlaneRelativeColorimetric = 14,
    NonIccPreserveKPlaneSaturation = 15,
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, RenderingIntent, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::RenderingIntent)
