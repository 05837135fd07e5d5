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
    RotateNoneFlipNone = 0, ///< Unchanged.
    Rotate180FlipXY = 0, ///< The same as `RotateNoneFlipNone`.
    Rotate90FlipNone = 1, ///< A quarter turn clockwise.
    Rotate270FlipXY = 1, ///< The same as `Rotate90FlipNone`.
    RotateNoneFlipX = 2, ///< Left and right change places.
    Rotate180FlipY = 2, ///< The same as `RotateNoneFlipX`.
    Rotate90FlipX = 3, ///< A quarter turn, then left for right.
    Rotate270FlipY = 3, ///< The same as `Rotate90FlipX`.
    RotateNoneFlipY = 4, ///< Top and bottom change places.
    Rotate180FlipX = 4, ///< The same as `RotateNoneFlipY`.
    Rotate90FlipY = 5, ///< A quarter turn, then top for bottom.
    Rotate270FlipX = 5, ///< The same as `Rotate90FlipY`.
    RotateNoneFlipXY = 6, ///< A half turn.
    Rotate180FlipNone = 6, ///< The same as `RotateNoneFlipXY`.
    Rotate90FlipXY = 7, ///< A quarter turn anticlockwise.
    Rotate270FlipNone = 7, ///< The same as `Rotate90FlipXY`.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, RotateFlipType, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::RotateFlipType)
