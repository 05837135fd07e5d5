// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "enums/LevelManagement_T.h"

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet {

namespace {
constexpr VEnumEntry<LevelManagement> kNames[] = {
    {LevelManagement::None, "None"_L1},
    {LevelManagement::Legacy, "Legacy"_L1},
    {LevelManagement::Fixed, "Fixed"_L1},
    {LevelManagement::Dynamic, "Dynamic"_L1},
    {LevelManagement::Binary, "Binary"_L1},
    {LevelManagement::BinaryCustom, "BinaryCustom"_L1},
    {LevelManagement::Trilevel, "Trilevel"_L1},
    {LevelManagement::TetraL3Masking, "TetraL3Masking"_L1},
    {LevelManagement::OctaGrayscale, "OctaGrayscale"_L1},
    {LevelManagement::DodeGrayscale, "DodeGrayscale"_L1},
    {LevelManagement::FiftGrayscale, "FiftGrayscale"_L1},
    {LevelManagement::HexaGrayscale, "HexaGrayscale"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(LevelManagement, kNames)

} // namespace Norvane::Kilnjet
