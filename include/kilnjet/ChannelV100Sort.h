// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

/// The names of Norvane::Channel in the order of version 1.00 of the print-unit format.
///
/// It serves only to take the channels of an old record in their old order, so that the record
/// keeps its content id: a channel's name is looked up here and the number is compared. Eleven
/// effects have numbered variants that Norvane::Channel lacks. It is no meta-type: it never travels
/// in a variant.
enum class ChannelV100Sort : int
{
    None = 0, ///< Channel::None.
    Cyan = 1, ///< Channel::Cyan.
    Magenta = 2, ///< Channel::Magenta.
    Yellow = 3, ///< Channel::Yellow.
    Black = 4, ///< Channel::Black.
    Red = 5, ///< Channel::Red.
    Green = 6, ///< Channel::Green.
    Blue = 7, ///< Channel::Blue.
    Alpha = 8, ///< Channel::Alpha.
    Aquamarine = 9, ///< Channel::Aquamarine.
    Beige = 10, ///< Channel::Beige.
    Brown = 11, ///< Channel::Brown.
    Ocher = 12, ///< Channel::Ocher.
    Orange = 13, ///< Channel::Orange.
    Pink = 14, ///< Channel::Pink.
    Purple = 15, ///< Channel::Purple.
    SkyBlue = 16, ///< Channel::SkyBlue.
    Violet = 17, ///< Channel::Violet.
    Turquoise = 18, ///< Channel::Turquoise.
    White = 19, ///< Channel::White.
    C1 = 20, ///< Channel::C1.
    C2 = 21, ///< Channel::C2.
    C3 = 22, ///< Channel::C3.
    C4 = 23, ///< Channel::C4.
    C5 = 24, ///< Channel::C5.
    C6 = 25, ///< Channel::C6.
    C7 = 26, ///< Channel::C7.
    C8 = 27, ///< Channel::C8.
    C9 = 28, ///< Channel::C9.
    CA = 29, ///< Channel::CA.
    CB = 30, ///< Channel::CB.
    CC = 31, ///< Channel::CC.
    CD = 32, ///< Channel::CD.
    CE = 33, ///< Channel::CE.
    CF = 34, ///< Channel::CF.
    CG = 35, ///< Channel::CG.
    Lightness = 36, ///< Channel::Lightness.
    a = 37, ///< Channel::a.
    b = 38, ///< Channel::b.
    Sinker = 39, ///< Channel::Sinker.
    Sinker2 = 40, ///< Variant 2 of `Sinker`.
    Sinker3 = 41, ///< Variant 3 of `Sinker`.
    Sinker4 = 42, ///< Variant 4 of `Sinker`.
    Glaze = 43, ///< Channel::Glaze.
    Glaze2 = 44, ///< Variant 2 of `Glaze`.
    Glaze3 = 45, ///< Variant 3 of `Glaze`.
    Glaze4 = 46, ///< Variant 4 of `Glaze`.
    Frit = 47, ///< Channel::Frit.
    Frit2 = 48, ///< Variant 2 of `Frit`.
    Frit3 = 49, ///< Variant 3 of `Frit`.
    Frit4 = 50, ///< Variant 4 of `Frit`.
    Bond = 51, ///< Channel::Bond.
    Bond2 = 52, ///< Variant 2 of `Bond`.
    Bond3 = 53, ///< Variant 3 of `Bond`.
    Bond4 = 54, ///< Variant 4 of `Bond`.
    Matt = 55, ///< Channel::Matt.
    Matt2 = 56, ///< Variant 2 of `Matt`.
    Matt3 = 57, ///< Variant 3 of `Matt`.
    Matt4 = 58, ///< Variant 4 of `Matt`.
    Glossy = 59, ///< Channel::Glossy.
    Glossy2 = 60, ///< Variant 2 of `Glossy`.
    Glossy3 = 61, ///< Variant 3 of `Glossy`.
    Glossy4 = 62, ///< Variant 4 of `Glossy`.
    Luster = 63, ///< Channel::Luster.
    Luster2 = 64, ///< Variant 2 of `Luster`.
    Luster3 = 65, ///< Variant 3 of `Luster`.
    Luster4 = 66, ///< Variant 4 of `Luster`.
    Hydroactive = 67, ///< Channel::Hydroactive.
    Hydroactive2 = 68, ///< Variant 2 of `Hydroactive`.
    Hydroactive3 = 69, ///< Variant 3 of `Hydroactive`.
    Hydroactive4 = 70, ///< Variant 4 of `Hydroactive`.
    Interphase = 71, ///< Channel::Interphase.
    Interphase2 = 72, ///< Variant 2 of `Interphase`.
    Interphase3 = 73, ///< Variant 3 of `Interphase`.
    Interphase4 = 74, ///< Variant 4 of `Interphase`.
    Glue = 75, ///< Channel::Glue.
    Glue2 = 76, ///< Variant 2 of `Glue`.
    Glue3 = 77, ///< Variant 3 of `Glue`.
    Glue4 = 78, ///< Variant 4 of `Glue`.
    Metallized = 79, ///< Channel::Metallized.
    Gold = 80, ///< Channel::Gold.
    Silver = 81, ///< Channel::Silver.
    Bronze = 82, ///< Channel::Bronze.
    Vision = 83, ///< Channel::Vision.
    Vision2 = 84, ///< Variant 2 of `Vision`.
    Vision3 = 85, ///< Variant 3 of `Vision`.
    Vision4 = 86, ///< Variant 4 of `Vision`.
    LightCyan = 87, ///< Channel::LightCyan.
    LightMagenta = 88, ///< Channel::LightMagenta.
    LightYellow = 89, ///< Channel::LightYellow.
    LightBlack = 90, ///< Channel::LightBlack.
    DarkRed = 91, ///< Channel::DarkRed.
    DarkGreen = 92, ///< Channel::DarkGreen.
    DarkBlue = 93, ///< Channel::DarkBlue.
    Blank = 94, ///< Channel::Blank.
    Layer1 = 95, ///< Channel::Layer1.
    Layer2 = 96, ///< Channel::Layer2.
    Layer3 = 97, ///< Channel::Layer3.
    Layer4 = 98, ///< Channel::Layer4.
    Layer5 = 99, ///< Channel::Layer5.
    Layer6 = 100, ///< Channel::Layer6.
    Layer7 = 101, ///< Channel::Layer7.
    Layer8 = 102, ///< Channel::Layer8.
    Layer9 = 103, ///< Channel::Layer9.
    Powder1 = 104, ///< Channel::Powder1.
    Powder2 = 105, ///< Channel::Powder2.
    Powder3 = 106, ///< Channel::Powder3.
    Powder4 = 107, ///< Channel::Powder4.
    Powder5 = 108, ///< Channel::Powder5.
    Powder6 = 109, ///< Channel::Powder6.
    Powder7 = 110, ///< Channel::Powder7.
    Powder8 = 111, ///< Channel::Powder8.
    Powder9 = 112, ///< Channel::Powder9.
    Unknown = 113, ///< Channel::Unknown.
};
