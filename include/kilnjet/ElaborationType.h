// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// The screening (halftoning) method of an elaboration driver.
///
/// The prefix of a name says how many output levels the method produces: `Bilevel` 2, `Tetralevel`
/// 4, `Octalevel` 8, `Dodelevel` 12, `Fiftlevel` 15, `Hexalevel` 16, `Grayscale` continuous tone.
/// The order grew with the product and is not grouped by prefix; it is fixed, like the numbers.
enum class ElaborationType : int
{
    None = 0, ///< Not said, or a name that does not exist.
    BilevelStandard = 1, ///< 2 levels, the standard method.
    BilevelStandardAdaptive = 2, ///< 2 levels, the standard method, adaptive.
    BilevelStochastic = 3, ///< 2 levels, dots at random places.
    BilevelStochasticGrow = 4, ///< 2 levels, growing dots at random places.
    BilevelNearest = 5, ///< 2 levels, the nearest for each pixel.
    BilevelBlueMask = 6, ///< 2 levels, spread matrix: dots keep apart.
    BilevelBlueMask1024 = 7, ///< 2 levels, spread matrix, HiDPI.

    // Four levels.
    TetralevelStandard = 8, ///< 4 levels, the standard method.
    TetralevelStandardAdaptive = 9, ///< 4 levels, the standard method, adaptive.
    TetralevelStochastic = 10, ///< 4 levels, dots at random places.
    TetralevelStochasticGrow = 11, ///< 4 levels, growing dots at random places.
    TetralevelNearest = 12, ///< 4 levels, the nearest for each pixel.
    TetralevelNochastic = 13, ///< 4 levels, not stochastic.
    TetralevelBlueMask = 14, ///< 4 levels, spread matrix: dots keep apart.
    TetralevelBlueMask1024 = 15, ///< 4 levels, spread matrix, HiDPI.
    TetralevelBlueMask1024_777 = 16, ///< 4 levels, spread matrix T7, HiDPI.
    TetralevelMaskCustom = 17, ///< 4 levels, spread matrix, custom.
    TetralevelOrdered = 18, ///< 4 levels, a regular matrix.
    TetralevelGreenMask = 19, ///< 4 levels, aggregate matrix: dots gather.
    TetralevelOverlapMask = 20, ///< 4 levels, a matrix for dots that overlap.
    TetralevelOverlapMask1024 = 21, ///< 4 levels, a matrix for dots that overlap, HiDPI.
    TetralevelHalftone = 22, ///< 4 levels, halftone NG.
    TetralevelHalftone2 = 23, ///< 4 levels, halftone LQ.
    TetralevelHalftone3 = 24, ///< 4 levels, halftone MQ.
    TetralevelHalftone4 = 25, ///< 4 levels, halftone HQ.
    TetralevelHalftone5 = 26, ///< 4 levels, halftone UQ.
    TetralevelHalftoneUv = 27, ///< 4 levels, halftone UV.
    TetralevelHalftone1LB = 28, ///< 4 levels, halftone NG, level based.
    TetralevelHalftone2LB = 29, ///< 4 levels, halftone LQ, level based.
    TetralevelHalftone3LB = 30, ///< 4 levels, halftone MQ, level based.
    TetralevelHalftone4LB = 31, ///< 4 levels, halftone HQ, level based.
    TetralevelHalftone5LB = 32, ///< 4 levels, halftone UQ, level based.
    TetralevelHalftoneFf = 33, ///< 4 levels, halftone, full field.
    TetralevelGlassDistance = 34, ///< 4 levels, a matrix for the distance of dots, HiDPI.
    TetralevelCorrelationSum2bit5 = 35, ///< 4 levels, correlation, extended area.
    TetralevelCorrelationSum2bit5Compatibility = 36, ///< 4 levels, correlation, for compatibility.

    // Two levels, cell-based.
    BilevelHighDefinition = 37, ///< 2 levels, high definition.
    BilevelHT45Cell7 = 38, ///< 2 levels, halftone at 45°, cell 7, round dots.
    BilevelHT45Cell7Diamond = 39, ///< 2 levels, halftone at 45°, cell 7, diamond dots.
    BilevelHT45Cell9Diamond = 40, ///< 2 levels, halftone at 45°, cell 9, diamond dots.
    BilevelHT45Cell5Diamond = 41, ///< 2 levels, halftone at 45°, cell 5, diamond dots.
    BilevelHT45Cell11Diamond = 42, ///< 2 levels, halftone at 45°, cell 11, diamond dots.

    // Continuous tone.
    GrayscaleStandardRG45Cell5 = 43, ///< Continuous tone, standard RG at 45°, cell 5.
    GrayscaleStandardRG45Cell7 = 44, ///< Continuous tone, standard RG at 45°, cell 7.
    GrayscaleStandardRG45Cell9 = 45, ///< Continuous tone, standard RG at 45°, cell 9.
    GrayscaleStandardPlus45 = 46, ///< Continuous tone, Standard+ at 45°.
    GrayscalePassThru = 47, ///< Continuous tone, passed on as it comes.
    GrayscalePassThruChess = 48, ///< Continuous tone, passed on, dealt out as on a chessboard.

    // Fills and cells of fixed size.
    BilevelPatternFill = 49, ///< 2 levels, a fixed pattern.
    TetralevelWP1Cell8 = 50, ///< 4 levels, halftone WP1, cell 8.
    BilevelWP2Cell8 = 51, ///< 2 levels, halftone WP2, cell 8.
    TetralevelWP1_45Cell14 = 52, ///< 4 levels, halftone WP1 at 45°, cell 14.
    TetralevelWP1_45Cell12 = 53, ///< 4 levels, halftone WP1 at 45°, cell 12.
    TetralevelWP1_45Cell10 = 54, ///< 4 levels, halftone WP1 at 45°, cell 10.
    TetralevelWP1_45Cell08 = 55, ///< 4 levels, halftone WP1 at 45°, cell 8.

    // Eight levels.
    OctalevelStochastic = 56, ///< 8 levels, dots at random places.
    OctalevelNearest = 57, ///< 8 levels, the nearest for each pixel.
    OctalevelBlueMask = 58, ///< 8 levels, spread matrix: dots keep apart.
    OctalevelBlueMask1024 = 59, ///< 8 levels, spread matrix, HiDPI.
    OctalevelOverlapMask = 60, ///< 8 levels, a matrix for dots that overlap.
    OctalevelOverlapMask1024 = 61, ///< 8 levels, a matrix for dots that overlap, HiDPI.

    // Sixteen levels with four, stochastic.
    HexaWithTetralevelStochasticR90W512 = 62, ///< 16 levels with 4, stochastic, 90°, 512 pixels.
    HexaWithTetralevelStochastic = 63, ///< 16 levels with 4, stochastic.
    HexaWithTetralevelStochasticR90W1536 = 64, ///< 16 levels with 4, stochastic, 90°, 1536 pixels.

    // Sixteen levels.
    HexalevelStochastic = 65, ///< 16 levels, dots at random places.
    HexalevelNearest = 66, ///< 16 levels, the nearest for each pixel.
    HexalevelStochasticHI2 = 67, ///< 16 levels, dots at random places, HI:2.
    HexalevelNearestHI2 = 68, ///< 16 levels, the nearest for each pixel, HI:2.
    HexalevelStochasticHI3 = 69, ///< 16 levels, dots at random places, HI:3.
    HexalevelNearestHI3 = 70, ///< 16 levels, the nearest for each pixel, HI:3.
    HexalevelBlueMask = 71, ///< 16 levels, spread matrix: dots keep apart.
    HexalevelBlueMask1024 = 72, ///< 16 levels, spread matrix, HiDPI.

    // Twelve levels.
    DodelevelStochastic = 73, ///< 12 levels, dots at random places.
    DodelevelNearest = 74, ///< 12 levels, the nearest for each pixel.
    DodelevelStochasticHI2 = 75, ///< 12 levels, dots at random places, HI:2.
    DodelevelNearestHI2 = 76, ///< 12 levels, the nearest for each pixel, HI:2.
    DodelevelStochasticHI3 = 77, ///< 12 levels, dots at random places, HI:3.
    DodelevelNearestHI3 = 78, ///< 12 levels, the nearest for each pixel, HI:3.

    // Fifteen levels.
    FiftlevelStochastic = 79, ///< 15 levels, dots at random places.
    FiftlevelNearest = 80, ///< 15 levels, the nearest for each pixel.
    FiftlevelBlueMask = 81, ///< 15 levels, spread matrix: dots keep apart.

    // Continuous tone, by bits.
    Grayscale_8 = 82, ///< Continuous tone of 8 bits.
    Grayscale_16 = 83, ///< Continuous tone of 16 bits.
};

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::ElaborationType)
