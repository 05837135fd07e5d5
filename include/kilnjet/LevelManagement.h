// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// How the output levels of a print unit are managed.
///
/// The values are packed 24-bit codes, not counted. Bits 16 to 21 hold the number of levels (2 for
/// the binary modes, 3 for `Trilevel` and `TetraL3Masking`, 4 for `Legacy`, `Fixed` and `Dynamic`,
/// 8, 12, 15 and 16 for the grayscale ones); the other bits are parameters of the mode for the
/// screening engine, which this library stores and compares but does not interpret.
enum class LevelManagement : int
{
    None = 0x0, ///< Not said, or a name that does not exist.
    Legacy = 0x440804, ///< 4 levels.
    Fixed = 0x041044, ///< 4 levels; deprecated.
    Dynamic = 0x041084, ///< 4 levels.
    Binary = 0x0208C4, ///< 2 levels.
    BinaryCustom = 0x420904, ///< 2 levels, customised.
    Trilevel = 0x030D44, ///< 3 levels.
    TetraL3Masking = 0x030D84, ///< 3 levels, masking.
    OctaGrayscale = 0x480808, ///< 8 levels.
    DodeGrayscale = 0x4C080C, ///< 12 levels.
    FiftGrayscale = 0x4F080F, ///< 15 levels.
    HexaGrayscale = 0x500810, ///< 16 levels.
};

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::LevelManagement)
