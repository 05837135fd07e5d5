// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vimaging/RotateFlipType.h>

#include <vcore/VEnumRuntimeLoader.h>

using namespace Qt::StringLiterals;

namespace Norvane::Imaging {

namespace {
constexpr VEnumEntry<RotateFlipType> kNames[] = {
    {RotateFlipType::RotateNoneFlipNone, "RotateNoneFlipNone"_L1},
    {RotateFlipType::Rotate180FlipXY, "Rotate180FlipXY"_L1},
    {RotateFlipType::Rotate90FlipNone, "Rotate90FlipNone"_L1},
    {RotateFlipType::Rotate270FlipXY, "Rotate270FlipXY"_L1},
    {RotateFlipType::RotateNoneFlipX, "RotateNoneFlipX"_L1},
    {RotateFlipType::Rotate180FlipY, "Rotate180FlipY"_L1},
    {RotateFlipType::Rotate90FlipX, "Rotate90FlipX"_L1},
    {RotateFlipType::Rotate270FlipY, "Rotate270FlipY"_L1},
    {RotateFlipType::RotateNoneFlipY, "RotateNoneFlipY"_L1},
    {RotateFlipType::Rotate180FlipX, "Rotate180FlipX"_L1},
    {RotateFlipType::Rotate90FlipY, "Rotate90FlipY"_L1},
    {RotateFlipType::Rotate270FlipX, "Rotate270FlipX"_L1},
    {RotateFlipType::RotateNoneFlipXY, "RotateNoneFlipXY"_L1},
    {RotateFlipType::Rotate180FlipNone, "Rotate180FlipNone"_L1},
    {RotateFlipType::Rotate90FlipXY, "Rotate90FlipXY"_L1},
    {RotateFlipType::Rotate270FlipNone, "Rotate270FlipNone"_L1},
};
} // namespace

VCORE_DEFINE_ENUM_RUNTIME(RotateFlipType, kNames)

} // namespace Norvane::Imaging
