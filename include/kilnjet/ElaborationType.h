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
    None = 0,
    BilevelStandard = 1,
    BilevelStandardAdaptive = 2,
    BilevelStochastic = 3,
    BilevelStochasticGrow = 4,
    BilevelNearest = 5,
    BilevelBlueMask = 6,
    BilevelBlueMask1024 = 7,

    // Four levels.
    TetralevelStandard = 8,
    TetralevelStandardAdaptive = 9,
    TetralevelStochastic = 10,
    TetralevelStochasticGrow = 11,
    TetralevelNearest = 12,
    TetralevelNochastic = 13,
    TetralevelBlueMask = 14,
    TetralevelBlueMask1024 = 15,
    TetralevelBlueMask1024_777 = 16,
    TetralevelMaskCustom = 17,
    TetralevelOrdered = 18,
    TetralevelGreenMask = 19,
    TetralevelOverlapMask = 20,
    TetralevelOverlapMask1024 = 21,
    TetralevelHalftone = 22,
    TetralevelHalftone2 = 23,
    TetralevelHalftone3 = 24,
    TetralevelHalftone4 = 25,
    TetralevelHalftone5 = 26,
    TetralevelHalftoneUv = 27,
    TetralevelHalftone1LB = 28,
    TetralevelHalftone2LB = 29,
    TetralevelHalftone3LB = 30,
    TetralevelHalftone4LB = 31,
    TetralevelHalftone5LB = 32,
    TetralevelHalftoneFf = 33,
    TetralevelGlassDistance = 34,
    TetralevelCorrelationSum2bit5 = 35,
    TetralevelCorrelationSum2bit5Compatibility = 36,

    // Two levels, cell-based.
    BilevelHighDefinition = 37,
    BilevelHT45Cell7 = 38,
    BilevelHT45Cell7Diamond = 39,
    BilevelHT45Cell9Diamond = 40,
    BilevelHT45Cell5Diamond = 41,
    BilevelHT45Cell11Diamond = 42,

    // Continuous tone.
    GrayscaleStandardRG45Cell5 = 43,
    GrayscaleStandardRG45Cell7 = 44,
    GrayscaleStandardRG45Cell9 = 45,
    GrayscaleStandardPlus45 = 46,
    GrayscalePassThru = 47,
    GrayscalePassThruChess = 48,

    // Fills and cells of fixed size.
    BilevelPatternFill = 49,
    TetralevelWP1Cell8 = 50,
    BilevelWP2Cell8 = 51,
    TetralevelWP1_45Cell14 = 52,
    TetralevelWP1_45Cell12 = 53,
    TetralevelWP1_45Cell10 = 54,
    TetralevelWP1_45Cell08 = 55,

    // Eight levels.
    OctalevelStochastic = 56,
    OctalevelNearest = 57,
    OctalevelBlueMask = 58,
    OctalevelBlueMask1024 = 59,
    OctalevelOverlapMask = 60,
    OctalevelOverlapMask1024 = 61,

    // Sixteen levels with four, stochastic.
    HexaWithTetralevelStochasticR90W512 = 62,
    HexaWithTetralevelStochastic = 63,
    HexaWithTetralevelStochasticR90W1536 = 64,

    // Sixteen levels.
    HexalevelStochastic = 65,
    HexalevelNearest = 66,
    HexalevelStochasticHI2 = 67,
    HexalevelNearestHI2 = 68,
    HexalevelStochasticHI3 = 69,
    HexalevelNearestHI3 = 70,
    HexalevelBlueMask = 71,
    HexalevelBlueMask1024 = 72,

    // Twelve levels.
    DodelevelStochastic = 73,
    DodelevelNearest = 74,
    DodelevelStochasticHI2 = 75,
    DodelevelNearestHI2 = 76,
    DodelevelStochasticHI3 = 77,
    DodelevelNearestHI3 = 78,

    // Fifteen levels.
    FiftlevelStochastic = 79,
    FiftlevelNearest = 80,
    FiftlevelBlueMask = 81,

    // Continuous tone, by bits.
    Grayscale_8 = 82,
    Grayscale_16 = 83,
};

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::ElaborationType)
