// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// The named colours of the web (CSS Color Module Level 4), and `Transparent`.
///
/// The numbers are 0xAARRGGBB, as in `QRgb`: the named colours are opaque, and so negative as
/// `int`. Where two names share a colour (`Aqua` and `Cyan`, `Gray` and `Grey`, ...), the first in
/// alphabetical order is written and both are read.
enum class WebColor : int
{
    Transparent = 0, ///< Black, fully transparent.
    AliceBlue = int(0xFFF0F8FF), ///< `#F0F8FF`.
    AntiqueWhite = int(0xFFFAEBD7), ///< `#FAEBD7`.
    Aqua = int(0xFF00FFFF), ///< `#00FFFF`.
    Aquamarine = int(0xFF7FFFD4), ///< `#7FFFD4`.
    Azure = int(0xFFF0FFFF), ///< `#F0FFFF`.
    Beige = int(0xFFF5F5DC), ///< `#F5F5DC`.
    Bisque = int(0xFFFFE4C4), ///< `#FFE4C4`.
    Black = int(0xFF000000), ///< `#000000`.
    BlanchedAlmond = int(0xFFFFEBCD), ///< `#FFEBCD`.
    Blue = int(0xFF0000FF), ///< `#0000FF`.
    BlueViolet = int(0xFF8A2BE2), ///< `#8A2BE2`.
    Brown = int(0xFFA52A2A), ///< `#A52A2A`.
    BurlyWood = int(0xFFDEB887), ///< `#DEB887`.
    CadetBlue = int(0xFF5F9EA0), ///< `#5F9EA0`.
    Chartreuse = int(0xFF7FFF00), ///< `#7FFF00`.
    Chocolate = int(0xFFD2691E), ///< `#D2691E`.
    Coral = int(0xFFFF7F50), ///< `#FF7F50`.
    CornflowerBlue = int(0xFF6495ED), ///< `#6495ED`.
    Cornsilk = int(0xFFFFF8DC), ///< `#FFF8DC`.
    Crimson = int(0xFFDC143C), ///< `#DC143C`.
    Cyan = int(0xFF00FFFF), ///< `#00FFFF`, written as `Aqua`.
    DarkBlue = int(0xFF00008B), ///< `#00008B`.
    DarkCyan = int(0xFF008B8B), ///< `#008B8B`.
    DarkGoldenrod = int(0xFFB8860B), ///< `#B8860B`.
    DarkGray = int(0xFFA9A9A9), ///< `#A9A9A9`.
    DarkGreen = int(0xFF006400), ///< `#006400`.
    DarkGrey = int(0xFFA9A9A9), ///< `#A9A9A9`, written as `DarkGray`.
    DarkKhaki = int(0xFFBDB76B), ///< `#BDB76B`.
    DarkMagenta = int(0xFF8B008B), ///< `#8B008B`.
    DarkOliveGreen = int(0xFF556B2F), ///< `#556B2F`.
    DarkOrange = int(0xFFFF8C00), ///< `#FF8C00`.
    DarkOrchid = int(0xFF9932CC), ///< `#9932CC`.
    DarkRed = int(0xFF8B0000), ///< `#8B0000`.
    DarkSalmon = int(0xFFE9967A), ///< `#E9967A`.
    DarkSeaGreen = int(0xFF8FBC8F), ///< `#8FBC8F`.
    DarkSlateBlue = int(0xFF483D8B), ///< `#483D8B`.
    DarkSlateGray = int(0xFF2F4F4F), ///< `#2F4F4F`.
    DarkSlateGrey = int(0xFF2F4F4F), ///< `#2F4F4F`, written as `DarkSlateGray`.
    DarkTurquoise = int(0xFF00CED1), ///< `#00CED1`.
    DarkViolet = int(0xFF9400D3), ///< `#9400D3`.
    DeepPink = int(0xFFFF1493), ///< `#FF1493`.
    DeepSkyBlue = int(0xFF00BFFF), ///< `#00BFFF`.
    DimGray = int(0xFF696969), ///< `#696969`.
    DimGrey = int(0xFF696969), ///< `#696969`, written as `DimGray`.
    DodgerBlue = int(0xFF1E90FF), ///< `#1E90FF`.
    Firebrick = int(0xFFB22222), ///< `#B22222`.
    FloralWhite = int(0xFFFFFAF0), ///< `#FFFAF0`.
    ForestGreen = int(0xFF228B22), ///< `#228B22`.
    Fuchsia = int(0xFFFF00FF), ///< `#FF00FF`.
    Gainsboro = int(0xFFDCDCDC), ///< `#DCDCDC`.
    GhostWhite = int(0xFFF8F8FF), ///< `#F8F8FF`.
    Gold = int(0xFFFFD700), ///< `#FFD700`.
    Goldenrod = int(0xFFDAA520), ///< `#DAA520`.
    Gray = int(0xFF808080), ///< `#808080`.
    Green = int(0xFF008000), ///< `#008000`.
    GreenYellow = int(0xFFADFF2F), ///< `#ADFF2F`.
    Grey = int(0xFF808080), ///< `#808080`, written as `Gray`.
    Honeydew = int(0xFFF0FFF0), ///< `#F0FFF0`.
    HotPink = int(0xFFFF69B4), ///< `#FF69B4`.
    IndianRed = int(0xFFCD5C5C), ///< `#CD5C5C`.
    Indigo = int(0xFF4B0082), ///< `#4B0082`.
    Ivory = int(0xFFFFFFF0), ///< `#FFFFF0`.
    Khaki = int(0xFFF0E68C), ///< `#F0E68C`.
    Lavender = int(0xFFE6E6FA), ///< `#E6E6FA`.
    LavenderBlush = int(0xFFFFF0F5), ///< `#FFF0F5`.
    LawnGreen = int(0xFF7CFC00), ///< `#7CFC00`.
    LemonChiffon = int(0xFFFFFACD), ///< `#FFFACD`.
    LightBlue = int(0xFFADD8E6), ///< `#ADD8E6`.
    LightCoral = int(0xFFF08080), ///< `#F08080`.
    LightCyan = int(0xFFE0FFFF), ///< `#E0FFFF`.
    LightGoldenrodYellow = int(0xFFFAFAD2), ///< `#FAFAD2`.
    LightGray = int(0xFFD3D3D3), ///< `#D3D3D3`.
    LightGreen = int(0xFF90EE90), ///< `#90EE90`.
    LightGrey = int(0xFFD3D3D3), ///< `#D3D3D3`, written as `LightGray`.
    LightPink = int(0xFFFFB6C1), ///< `#FFB6C1`.
    LightSalmon = int(0xFFFFA07A), ///< `#FFA07A`.
    LightSeaGreen = int(0xFF20B2AA), ///< `#20B2AA`.
    LightSkyBlue = int(0xFF87CEFA), ///< `#87CEFA`.
    LightSlateGray = int(0xFF778899), ///< `#778899`.
    LightSlateGrey = int(0xFF778899), ///< `#778899`, written as `LightSlateGray`.
    LightSteelBlue = int(0xFFB0C4DE), ///< `#B0C4DE`.
    LightYellow = int(0xFFFFFFE0), ///< `#FFFFE0`.
    Lime = int(0xFF00FF00), ///< `#00FF00`.
    LimeGreen = int(0xFF32CD32), ///< `#32CD32`.
    Linen = int(0xFFFAF0E6), ///< `#FAF0E6`.
    Magenta = int(0xFFFF00FF), ///< `#FF00FF`, written as `Fuchsia`.
    Maroon = int(0xFF800000), ///< `#800000`.
    MediumAquamarine = int(0xFF66CDAA), ///< `#66CDAA`.
    MediumBlue = int(0xFF0000CD), ///< `#0000CD`.
    MediumOrchid = int(0xFFBA55D3), ///< `#BA55D3`.
    MediumPurple = int(0xFF9370DB), ///< `#9370DB`.
    MediumSeaGreen = int(0xFF3CB371), ///< `#3CB371`.
    MediumSlateBlue = int(0xFF7B68EE), ///< `#7B68EE`.
    MediumSpringGreen = int(0xFF00FA9A), ///< `#00FA9A`.
    MediumTurquoise = int(0xFF48D1CC), ///< `#48D1CC`.
    MediumVioletRed = int(0xFFC71585), ///< `#C71585`.
    MidnightBlue = int(0xFF191970), ///< `#191970`.
    MintCream = int(0xFFF5FFFA), ///< `#F5FFFA`.
    MistyRose = int(0xFFFFE4E1), ///< `#FFE4E1`.
    Moccasin = int(0xFFFFE4B5), ///< `#FFE4B5`.
    NavajoWhite = int(0xFFFFDEAD), ///< `#FFDEAD`.
    Navy = int(0xFF000080), ///< `#000080`.
    OldLace = int(0xFFFDF5E6), ///< `#FDF5E6`.
    Olive = int(0xFF808000), ///< `#808000`.
    OliveDrab = int(0xFF6B8E23), ///< `#6B8E23`.
    Orange = int(0xFFFFA500), ///< `#FFA500`.
    OrangeRed = int(0xFFFF4500), ///< `#FF4500`.
    Orchid = int(0xFFDA70D6), ///< `#DA70D6`.
    PaleGoldenrod = int(0xFFEEE8AA), ///< `#EEE8AA`.
    PaleGreen = int(0xFF98FB98), ///< `#98FB98`.
    PaleTurquoise = int(0xFFAFEEEE), ///< `#AFEEEE`.
    PaleVioletRed = int(0xFFDB7093), ///< `#DB7093`.
    PapayaWhip = int(0xFFFFEFD5), ///< `#FFEFD5`.
    PeachPuff = int(0xFFFFDAB9), ///< `#FFDAB9`.
    Peru = int(0xFFCD853F), ///< `#CD853F`.
    Pink = int(0xFFFFC0CB), ///< `#FFC0CB`.
    Plum = int(0xFFDDA0DD), ///< `#DDA0DD`.
    PowderBlue = int(0xFFB0E0E6), ///< `#B0E0E6`.
    Purple = int(0xFF800080), ///< `#800080`.
    RebeccaPurple = int(0xFF663399), ///< `#663399`.
    Red = int(0xFFFF0000), ///< `#FF0000`.
    RosyBrown = int(0xFFBC8F8F), ///< `#BC8F8F`.
    RoyalBlue = int(0xFF4169E1), ///< `#4169E1`.
    SaddleBrown = int(0xFF8B4513), ///< `#8B4513`.
    Salmon = int(0xFFFA8072), ///< `#FA8072`.
    SandyBrown = int(0xFFF4A460), ///< `#F4A460`.
    SeaGreen = int(0xFF2E8B57), ///< `#2E8B57`.
    Seashell = int(0xFFFFF5EE), ///< `#FFF5EE`.
    Sienna = int(0xFFA0522D), ///< `#A0522D`.
    Silver = int(0xFFC0C0C0), ///< `#C0C0C0`.
    SkyBlue = int(0xFF87CEEB), ///< `#87CEEB`.
    SlateBlue = int(0xFF6A5ACD), ///< `#6A5ACD`.
    SlateGray = int(0xFF708090), ///< `#708090`.
    SlateGrey = int(0xFF708090), ///< `#708090`, written as `SlateGray`.
    Snow = int(0xFFFFFAFA), ///< `#FFFAFA`.
    SpringGreen = int(0xFF00FF7F), ///< `#00FF7F`.
    SteelBlue = int(0xFF4682B4), ///< `#4682B4`.
    Tan = int(0xFFD2B48C), ///< `#D2B48C`.
    Teal = int(0xFF008080), ///< `#008080`.
    Thistle = int(0xFFD8BFD8), ///< `#D8BFD8`.
    Tomato = int(0xFFFF6347), ///< `#FF6347`.
    Turquoise = int(0xFF40E0D0), ///< `#40E0D0`.
    Violet = int(0xFFEE82EE), ///< `#EE82EE`.
    Wheat = int(0xFFF5DEB3), ///< `#F5DEB3`.
    White = int(0xFFFFFFFF), ///< `#FFFFFF`.
    WhiteSmoke = int(0xFFF5F5F5), ///< `#F5F5F5`.
    Yellow = int(0xFFFFFF00), ///< `#FFFF00`.
    YellowGreen = int(0xFF9ACD32), ///< `#9ACD32`.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, WebColor, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::WebColor)
