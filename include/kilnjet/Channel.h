// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QMetaType>

namespace Norvane {

/// The ink, colour or effect that a channel of a print unit carries.
///
/// Stored records carry the names; the numbers run without gaps.
enum class Channel : int
{
    None = 0,

    // Process and spot colours.
    Cyan = 1,
    Magenta = 2,
    Yellow = 3,
    Black = 4,
    Red = 5,
    Green = 6,
    Blue = 7,
    Aquamarine = 8,
    Beige = 9,
    Brown = 10,
    Ocher = 11,
    Orange = 12,
    Pink = 13,
    Purple = 14,
    SkyBlue = 15,
    Violet = 16,
    Turquoise = 17,
    White = 18,
    LightCyan = 19,
    LightMagenta = 20,
    LightYellow = 21,
    LightBlack = 22,
    DarkRed = 23,
    DarkGreen = 24,
    DarkBlue = 25,

    // Image channels; `a` and `b` are the chromatic ones of a Lab image.
    Alpha = 26,
    Lightness = 27,
    a = 28,
    b = 29,

    // Ceramic effects.
    Sinker = 30,
    Glaze = 31,
    Frit = 32,
    Bond = 33,
    Matt = 34,
    Glossy = 35,
    Luster = 36,
    Hydroactive = 37,
    Interphase = 38,
    Glue = 39,
    Metallized = 40,
    Gold = 41,
    Silver = 42,
    Bronze = 43,
    Blank = 44,
    Vision = 45,

    // Sixteen generic channels, counted on past 9 with letters.
    C1 = 46,
    C2 = 47,
    C3 = 48,
    C4 = 49,
    C5 = 50,
    C6 = 51,
    C7 = 52,
    C8 = 53,
    C9 = 54,
    CA = 55,
    CB = 56,
    CC = 57,
    CD = 58,
    CE = 59,
    CF = 60,
    CG = 61,

    // Layers.
    Layer1 = 62,
    Layer2 = 63,
    Layer3 = 64,
    Layer4 = 65,
    Layer5 = 66,
    Layer6 = 67,
    Layer7 = 68,
    Layer8 = 69,
    Layer9 = 70,

    // Powders.
    Powder1 = 71,
    Powder2 = 72,
    Powder3 = 73,
    Powder4 = 74,
    Powder5 = 75,
    Powder6 = 76,
    Powder7 = 77,
    Powder8 = 78,
    Powder9 = 79,
    Unknown = 80,
};

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::Channel)
