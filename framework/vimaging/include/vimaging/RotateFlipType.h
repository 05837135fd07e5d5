// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// A quarter-turn rotation (clockwise, in degrees) followed by a flip.
///
/// Sixteen combinations make eight different transformations; of the two names of each, the first
/// is written and both are read.
enum class RotateFlipType : int
{
    RotateNoneFlipNone = 0,
    Rotate180FlipXY = 0,
    Rotate90FlipNone = 1,
    Rotate270FlipXY = 1,
    RotateNoneFlipX = 2,
    Rotate180FlipY = 2,
    Rotate90FlipX = 3,
    Rotate270FlipY = 3,
    RotateNoneFlipY = 4,
    Rotate180FlipX = 4,
    Rotate90FlipY = 5,
    Rotate270FlipX = 5,
    RotateNoneFlipXY = 6,
    Rotate180FlipNone = 6,
    Rotate90FlipXY = 7,
    Rotate270FlipNone = 7,
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, RotateFlipType, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::RotateFlipType)
