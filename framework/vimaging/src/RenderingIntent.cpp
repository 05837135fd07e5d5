// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/RenderingIntent.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::ColorManagement::LittleCMS {

namespace {
constexpr VEnumEntry<RenderingIntent> kNames[] = {
    {RenderingIntent::IccPerceptual, "IccPerceptual"_L1},
    {RenderingIntent::IccRelativeColorimetric, "IccRelativeColorimetric"_L1},
    {RenderingIntent::IccSaturation, "IccSaturation"_L1},
    {RenderingIntent::IccAbsoluteColorimetric, "IccAbsoluteColorimetric"_L1},
    {RenderingIntent::NonIccPreserveKOnlyPerceptual, "NonIccPreserveKOnlyPerceptual"_L1},
    {RenderingIntent::NonIccPreserveKOnlyRelativeColorimetric,
     "NonIccPreserveKOnlyRelativeColorimetric"_L1},
    {RenderingIntent::NonIccPreserveKOnlySaturation, "NonIccPreserveKOnlySaturation"_L1},
    {RenderingIntent::NonIccPreserveKPlanePerceptual, "NonIccPreserveKPlanePerceptual"_L1},
    {RenderingIntent::NonIccPreserveKPlaneRelativeColorimetric,
     "NonIccPreserveKPlaneRelativeColorimetric"_L1},
    {RenderingIntent::NonIccPreserveKPlaneSaturation, "NonIccPreserveKPlaneSaturation"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(RenderingIntent, kNames)

} // namespace Norvane::ColorManagement::LittleCMS
