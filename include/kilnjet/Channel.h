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
    None = 0, ///< Nothing, or a name that does not exist.

    // Process and spot colours.
    Cyan = 1, ///< Cyan ink.
    Magenta = 2, ///< Magenta ink.
    Yellow = 3, ///< Yellow ink.
    Black = 4, ///< Black ink.
    Red = 5, ///< Red ink.
    Green = 6, ///< Green ink.
    Blue = 7, ///< Blue ink.
    Aquamarine = 8, ///< Aquamarine ink.
    Beige = 9, ///< Beige ink.
    Brown = 10, ///< Brown ink.
    Ocher = 11, ///< Ochre ink.
    Orange = 12, ///< Orange ink.
    Pink = 13, ///< Pink ink.
    Purple = 14, ///< Purple ink.
    SkyBlue = 15, ///< Sky blue ink.
    Violet = 16, ///< Violet ink.
    Turquoise = 17, ///< Turquoise ink.
    White = 18, ///< White ink.
    LightCyan = 19, ///< Light cyan ink.
    LightMagenta = 20, ///< Light magenta ink.
    LightYellow = 21, ///< Light yellow ink.
    LightBlack = 22, ///< Light black ink.
    DarkRed = 23, ///< Dark red ink.
    DarkGreen = 24, ///< Dark green ink.
    DarkBlue = 25, ///< Dark blue ink.

    // Image channels; `a` and `b` are the chromatic ones of a Lab image.
    Alpha = 26, ///< How opaque an image is.
    Lightness = 27, ///< Of a Lab image: from black to white.
    a = 28, ///< Of a Lab image: from green to red.
    b = 29, ///< Of a Lab image: from blue to yellow.

    // Ceramic effects.
    Sinker = 30, ///< Sinks into the glaze, and hollows it.
    Glaze = 31, ///< Glaze that is printed.
    Frit = 32, ///< Ground glass.
    Bond = 33, ///< A bonding layer.
    Matt = 34, ///< Takes the gloss away.
    Glossy = 35, ///< Gives gloss.
    Luster = 36, ///< Shimmers like mother-of-pearl.
    Hydroactive = 37, ///< The hydroactive effect.
    Interphase = 38, ///< The interphase effect.
    Glue = 39, ///< Holds the grains that are strewn on it.
    Metallized = 40, ///< Looks like metal.
    Gold = 41, ///< Looks like gold.
    Silver = 42, ///< Looks like silver.
    Bronze = 43, ///< Looks like bronze.
    Blank = 44, ///< Left blank.
    Vision = 45, ///< The vision effect.

    // Sixteen generic channels, counted on past 9 with letters.
    C1 = 46, ///< Generic channel 1.
    C2 = 47, ///< Generic channel 2.
    C3 = 48, ///< Generic channel 3.
    C4 = 49, ///< Generic channel 4.
    C5 = 50, ///< Generic channel 5.
    C6 = 51, ///< Generic channel 6.
    C7 = 52, ///< Generic channel 7.
    C8 = 53, ///< Generic channel 8.
    C9 = 54, ///< Generic channel 9.
    CA = 55, ///< Generic channel 10.
    CB = 56, ///< Generic channel 11.
    CC = 57, ///< Generic channel 12.
    CD = 58, ///< Generic channel 13.
    CE = 59, ///< Generic channel 14.
    CF = 60, ///< Generic channel 15.
    CG = 61, ///< Generic channel 16.

    // Layers.
    Layer1 = 62, ///< Layer 1.
    Layer2 = 63, ///< Layer 2.
    Layer3 = 64, ///< Layer 3.
    Layer4 = 65, ///< Layer 4.
    Layer5 = 66, ///< Layer 5.
    Layer6 = 67, ///< Layer 6.
    Layer7 = 68, ///< Layer 7.
    Layer8 = 69, ///< Layer 8.
    Layer9 = 70, ///< Layer 9.

    // Powders.
    Powder1 = 71, ///< Powder 1.
    Powder2 = 72, ///< Powder 2.
    Powder3 = 73, ///< Powder 3.
    Powder4 = 74, ///< Powder 4.
    Powder5 = 75, ///< Powder 5.
    Powder6 = 76, ///< Powder 6.
    Powder7 = 77, ///< Powder 7.
    Powder8 = 78, ///< Powder 8.
    Powder9 = 79, ///< Powder 9.
    Unknown = 80, ///< Something that is not known.
};

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::Channel)
