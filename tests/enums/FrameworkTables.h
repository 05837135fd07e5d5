// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "enums/Row.h"

// The enumerations of the framework that travel in variants, as CatalogueTables.h.

namespace Tables {

inline constexpr Row kBinaryUnit[] = {{0, "Byte"}, {10, "KiB"}, {20, "MiB"},
                                      {30, "GiB"}, {40, "TiB"}, {50, "PiB"},
                                      {60, "EiB"}, {70, "ZiB"}, {80, "YiB"}};

inline constexpr Row kClassSignature[] = {{0x73636E72, "Input"},     {0x6D6E7472, "Display"},
                                          {0x70727472, "Output"},    {0x6C696E6B, "Link"},
                                          {0x61627374, "Abstract"},  {0x73706163, "ColorSpace"},
                                          {0x6E6D636C, "NamedColor"}};

inline constexpr Row kColorSpaceSignature[] = {
    {0x58595A20, "XYZ"},      {0x4C616220, "Lab"},      {0x4C757620, "Luv"},
    {0x59436272, "YCbCr"},    {0x59787920, "Yxy"},      {0x52474220, "Rgb"},
    {0x47524159, "Gray"},     {0x48535620, "Hsv"},      {0x484C5320, "Hls"},
    {0x434D594B, "Cmyk"},     {0x434D5920, "Cmy"},      {0x4D434831, "MCh1"},
    {0x4D434832, "MCh2"},     {0x4D434833, "MCh3"},     {0x4D434834, "MCh4"},
    {0x4D434835, "MCh5"},     {0x4D434836, "MCh6"},     {0x4D434837, "MCh7"},
    {0x4D434838, "MCh8"},     {0x4D434839, "MCh9"},     {0x4D434841, "MChA"},
    {0x4D434842, "MChB"},     {0x4D434843, "MChC"},     {0x4D434844, "MChD"},
    {0x4D434845, "MChE"},     {0x4D434846, "MChF"},     {0x6E6D636C, "Named"},
    {0x31434C52, "_1Color"},  {0x32434C52, "_2Color"},  {0x33434C52, "_3Color"},
    {0x34434C52, "_4Color"},  {0x35434C52, "_5Color"},  {0x36434C52, "_6Color"},
    {0x37434C52, "_7Color"},  {0x38434C52, "_8Color"},  {0x39434C52, "_9Color"},
    {0x41434C52, "_10Color"}, {0x42434C52, "_11Color"}, {0x43434C52, "_12Color"},
    {0x44434C52, "_13Color"}, {0x45434C52, "_14Color"}, {0x46434C52, "_15Color"},
    {0x4C75764B, "LuvK"}};

inline constexpr Row kColorSpace[] = {{0, "Any"},
                                      {1, "Reserved1"},
                                      {2, "Reserved2"},
                                      {3, "Gray"},
                                      {4, "Rgb"},
                                      {5, "Cmy"},
                                      {6, "Cmyk"},
                                      {7, "YCbCr"},
                                      {8, "Yuv"},
                                      {9, "Xyz"},
                                      {10, "Lab"},
                                      {11, "Yuvk"},
                                      {12, "Hsv"},
                                      {13, "Hsl"},
                                      {14, "Yxy"},
                                      {15, "Multichannel_1"},
                                      {16, "Multichannel_2"},
                                      {17, "Multichannel_3"},
                                      {18, "Multichannel_4"},
                                      {19, "Multichannel_5"},
                                      {20, "Multichannel_6"},
                                      {21, "Multichannel_7"},
                                      {22, "Multichannel_8"},
                                      {23, "Multichannel_9"},
                                      {24, "Multichannel_10"},
                                      {25, "Multichannel_11"},
                                      {26, "Multichannel_12"},
                                      {27, "Multichannel_13"},
                                      {28, "Multichannel_14"},
                                      {29, "Multichannel_15"},
                                      {30, "Multichannel_16"},
                                      {30, "Multichannel_Last"}};

inline constexpr Row kFilterOptions[] = {{0, "None"},
                                         {1, "ApplyInPlace"},
                                         {2, "Progressive"},
                                         {4, "MultiImageConcurrence"},
                                         {8, "NoopNotPermitted"},
                                         {-1, "All"}};

inline constexpr Row kIconStyle[] = {
    {0, "ApplicationDefault"}, {1, "Square"}, {2, "Round"}, {3, "RoundedSquare"}};

inline constexpr Row kImageLoadOptions[] = {{0, "None"},
                                            {1, "Smartload"},
                                            {2, "DisableQtAutotransform"},
                                            {4, "IgnoreCrcError"},
                                            {8, "AddDefaultColorProfile"},
                                            {16, "VectorChannelModeHack"}};

inline constexpr Row kImageSaveOptions[] = {{0x0, "None"},
                                            {0x1, "Lzw"},
                                            {0x2, "Rle"},
                                            {0x4, "Zip"},
                                            {0x8, "Jpeg"},
                                            {0x10, "Lz4"},
                                            {0x20, "Aes128"},
                                            {0x40, "ForceSplit"},
                                            {0x80, "DenySplit"},
                                            {0x100, "ExcludeXmp"},
                                            {0x200, "ExcludeGps"},
                                            {0x400, "ExcludeExif"},
                                            {0x800, "ExcludePreview"}};

inline constexpr Row kImageUnusual[] = {{0, "None"}, {1, "TiffSepared"}, {2, "TiffLab"}};

inline constexpr Row kIntentDirection[] = {
    {0, "Input"}, {1, "Output"}, {2, "Proof"}, {3, "InputOutput"}, {4, "All"}};

inline constexpr Row kMeasureUnits[] = {{0, "Meters"}, {1, "Millimeters"}, {2, "Inches"}};

inline constexpr Row kPaletteOrder[] = {{0, "Default"}, {0, "DarkLowest"}, {1, "ClearLowest"}};

inline constexpr Row kProcessFlags[] = {{0x0, "None"},
                                        {0x40, "NoCache"},
                                        {0x100, "NoOptimize"},
                                        {0x200, "NullTransform"},
                                        {0x1000, "GamutCheck"},
                                        {0x4000, "SoftProofing"},
                                        {0x2000, "BlackPointCompensation"},
                                        {0x4, "NoWhiteOnWhiteFixup"},
                                        {0x400, "HighResPrecalc"},
                                        {0x800, "LowResPrecalc"},
                                        {0x8, "_8BitsDeviceLink"},
                                        {0x20, "GuessDeviceClass"},
                                        {0x80, "KeepSequence"},
                                        {0x2, "ForceClut"},
                                        {0x1, "ClutPostLinearization"},
                                        {0x10, "ClutPreLinearization"},
                                        {0x8000, "NonNegatives"},
                                        {0x4000000, "CopyAlpha"},
                                        {0x1000000, "NoDefaultSourceDef"}};

inline constexpr Row kProfileHeaderAttributes[] = {
    {0, "None"}, {1, "Transparency"}, {2, "Matte"}, {4, "Negative"}, {8, "BlackAndWhite"}};

inline constexpr Row kProfileHeaderFlags[] = {
    {0, "None"}, {1, "EmbeddedProfile"}, {2, "UseWithEmbeddedDataOnly"}};

inline constexpr Row kProfileInfoType[] = {{0, "Description"},
                                           {1, "Manufacturer"},
                                           {2, "Model"},
                                           {3, "Copyright"},
                                           {100, "DescriptionML"}};

inline constexpr Row kQtColor[] = {
    {0, "Color0"},    {1, "Color1"},       {2, "Black"},       {3, "White"},
    {4, "DarkGray"},  {5, "Gray"},         {6, "LightGray"},   {7, "Red"},
    {8, "Green"},     {9, "Blue"},         {10, "Cyan"},       {11, "Magenta"},
    {12, "Yellow"},   {13, "DarkRed"},     {14, "DarkGreen"},  {15, "DarkBlue"},
    {16, "DarkCyan"}, {17, "DarkMagenta"}, {18, "DarkYellow"}, {19, "Transparent"}};

inline constexpr Row kRenderingIntent[] = {{0, "IccPerceptual"},
                                           {1, "IccRelativeColorimetric"},
                                           {2, "IccSaturation"},
                                           {3, "IccAbsoluteColorimetric"},
                                           {10, "NonIccPreserveKOnlyPerceptual"},
                                           {11, "NonIccPreserveKOnlyRelativeColorimetric"},
                                           {12, "NonIccPreserveKOnlySaturation"},
                                           {13, "NonIccPreserveKPlanePerceptual"},
                                           {14, "NonIccPreserveKPlaneRelativeColorimetric"},
                                           {15, "NonIccPreserveKPlaneSaturation"}};

inline constexpr Row kRotateFlipType[] = {
    {0, "RotateNoneFlipNone"}, {0, "Rotate180FlipXY"},   {1, "Rotate90FlipNone"},
    {1, "Rotate270FlipXY"},    {2, "RotateNoneFlipX"},   {2, "Rotate180FlipY"},
    {3, "Rotate90FlipX"},      {3, "Rotate270FlipY"},    {4, "RotateNoneFlipY"},
    {4, "Rotate180FlipX"},     {5, "Rotate90FlipY"},     {5, "Rotate270FlipX"},
    {6, "RotateNoneFlipXY"},   {6, "Rotate180FlipNone"}, {7, "Rotate90FlipXY"},
    {7, "Rotate270FlipNone"}};

inline constexpr Row kSCSLengthUnit[] = {{1, "Inch"},  {12, "Foot"},      {36, "Yard"},
                                         {198, "Rod"}, {7920, "Furlong"}, {63360, "Mile"}};

inline constexpr Row kSILengthUnit[] = {
    {-24, "YoctoMeter"}, {-21, "ZeptoMeter"}, {-18, "AttoMeter"}, {-15, "FemtoMeter"},
    {-12, "PicoMeter"},  {-9, "NanoMeter"},   {-6, "MicroMeter"}, {-3, "MilliMeter"},
    {-2, "CentiMeter"},  {-1, "DeciMeter"},   {0, "Meter"},       {1, "DecaMeter"},
    {2, "HectoMeter"},   {3, "KiloMeter"},    {6, "MegaMeter"},   {9, "GigaMeter"},
    {12, "TeraMeter"},   {15, "PetaMeter"},   {18, "ExaMeter"},   {21, "ZettaMeter"},
    {24, "YottaMeter"}};

inline constexpr Row kSIPrefix[] = {
    {-24, "Yocto"}, {-21, "Zepto"}, {-18, "Atto"}, {-15, "Femto"}, {-12, "Pico"}, {-9, "Nano"},
    {-6, "Micro"},  {-3, "Milli"},  {-2, "Centi"}, {-1, "Deci"},   {0, "Base"},   {1, "Deca"},
    {2, "Hecto"},   {3, "Kilo"},    {6, "Mega"},   {9, "Giga"},    {12, "Tera"},  {15, "Peta"},
    {18, "Exa"},    {21, "Zetta"},  {24, "Yotta"}};

inline constexpr Row kVirtualFacesMode[] = {
    {0, "None"}, {1, "Sequential"}, {2, "Random"}, {3, "Rotated"}, {4, "Mirrored"}};

inline constexpr Row kImageFormat[] = {
    {0x000000, "Invalid"},       {0x100101, "Indexed_1bpp"}, {0x100102, "Indexed_2bpp"},
    {0x100104, "Indexed_4bpp"},  {0x100108, "Indexed_8bpp"}, {0x200101, "Gray_1bpp"},
    {0x200104, "Gray_4bpp"},     {0x200108, "Gray_8bpp"},    {0x200110, "Gray_16bpp"},
    {0x240101, "GrayW_1bpp"},    {0x240104, "GrayW_4bpp"},   {0x240108, "GrayW_8bpp"},
    {0x240110, "GrayW_16bpp"},   {0x300318, "Rgb_24bpp"},    {0x320420, "RgbX_32bpp"},
    {0x310420, "RgbA_32bpp"},    {0x300330, "Rgb_48bpp"},    {0x320440, "RgbX_64bpp"},
    {0x310440, "RgbA_64bpp"},    {0x400318, "Cmy_24bpp"},    {0x400330, "Cmy_48bpp"},
    {0x500420, "Cmyk_32bpp"},    {0x500440, "Cmyk_64bpp"},   {0x500528, "CmykX1_40bpp"},
    {0x500630, "CmykX2_48bpp"},  {0x500738, "CmykX3_56bpp"}, {0x500840, "CmykX4_64bpp"},
    {0x500550, "CmykX1_80bpp"},  {0x500660, "CmykX2_96bpp"}, {0x500770, "CmykX3_112bpp"},
    {0x500880, "CmykX4_128bpp"}, {0x600108, "MCh1_8bpp"},    {0x600210, "MCh2_16bpp"},
    {0x600318, "MCh3_24bpp"},    {0x600420, "MCh4_32bpp"},   {0x600528, "MCh5_40bpp"},
    {0x600630, "MCh6_48bpp"},    {0x600738, "MCh7_56bpp"},   {0x600840, "MCh8_64bpp"},
    {0x600110, "MCh1_16bpp"},    {0x600220, "MCh2_32bpp"},   {0x600330, "MCh3_48bpp"},
    {0x600440, "MCh4_64bpp"},    {0x600550, "MCh5_80bpp"},   {0x600660, "MCh6_96bpp"},
    {0x600770, "MCh7_112bpp"},   {0x600880, "MCh8_128bpp"},  {0x700318, "Lab_24bpp"},
    {0x700330, "Lab_48bpp"},     {0x700360, "Lab_96bpp"}};

inline constexpr Row kWebColor[] = {{0, "Transparent"},
                                    {int(0xFFF0F8FF), "AliceBlue"},
                                    {int(0xFFFAEBD7), "AntiqueWhite"},
                                    {int(0xFF00FFFF), "Aqua"},
                                    {int(0xFF7FFFD4), "Aquamarine"},
                                    {int(0xFFF0FFFF), "Azure"},
                                    {int(0xFFF5F5DC), "Beige"},
                                    {int(0xFFFFE4C4), "Bisque"},
                                    {int(0xFF000000), "Black"},
                                    {int(0xFFFFEBCD), "BlanchedAlmond"},
                                    {int(0xFF0000FF), "Blue"},
                                    {int(0xFF8A2BE2), "BlueViolet"},
                                    {int(0xFFA52A2A), "Brown"},
                                    {int(0xFFDEB887), "BurlyWood"},
                                    {int(0xFF5F9EA0), "CadetBlue"},
                                    {int(0xFF7FFF00), "Chartreuse"},
                                    {int(0xFFD2691E), "Chocolate"},
                                    {int(0xFFFF7F50), "Coral"},
                                    {int(0xFF6495ED), "CornflowerBlue"},
                                    {int(0xFFFFF8DC), "Cornsilk"},
                                    {int(0xFFDC143C), "Crimson"},
                                    {int(0xFF00FFFF), "Cyan"},
                                    {int(0xFF00008B), "DarkBlue"},
                                    {int(0xFF008B8B), "DarkCyan"},
                                    {int(0xFFB8860B), "DarkGoldenrod"},
                                    {int(0xFFA9A9A9), "DarkGray"},
                                    {int(0xFF006400), "DarkGreen"},
                                    {int(0xFFA9A9A9), "DarkGrey"},
                                    {int(0xFFBDB76B), "DarkKhaki"},
                                    {int(0xFF8B008B), "DarkMagenta"},
                                    {int(0xFF556B2F), "DarkOliveGreen"},
                                    {int(0xFFFF8C00), "DarkOrange"},
                                    {int(0xFF9932CC), "DarkOrchid"},
                                    {int(0xFF8B0000), "DarkRed"},
                                    {int(0xFFE9967A), "DarkSalmon"},
                                    {int(0xFF8FBC8F), "DarkSeaGreen"},
                                    {int(0xFF483D8B), "DarkSlateBlue"},
                                    {int(0xFF2F4F4F), "DarkSlateGray"},
                                    {int(0xFF2F4F4F), "DarkSlateGrey"},
                                    {int(0xFF00CED1), "DarkTurquoise"},
                                    {int(0xFF9400D3), "DarkViolet"},
                                    {int(0xFFFF1493), "DeepPink"},
                                    {int(0xFF00BFFF), "DeepSkyBlue"},
                                    {int(0xFF696969), "DimGray"},
                                    {int(0xFF696969), "DimGrey"},
                                    {int(0xFF1E90FF), "DodgerBlue"},
                                    {int(0xFFB22222), "Firebrick"},
                                    {int(0xFFFFFAF0), "FloralWhite"},
                                    {int(0xFF228B22), "ForestGreen"},
                                    {int(0xFFFF00FF), "Fuchsia"},
                                    {int(0xFFDCDCDC), "Gainsboro"},
                                    {int(0xFFF8F8FF), "GhostWhite"},
                                    {int(0xFFFFD700), "Gold"},
                                    {int(0xFFDAA520), "Goldenrod"},
                                    {int(0xFF808080), "Gray"},
                                    {int(0xFF008000), "Green"},
                                    {int(0xFFADFF2F), "GreenYellow"},
                                    {int(0xFF808080), "Grey"},
                                    {int(0xFFF0FFF0), "Honeydew"},
                                    {int(0xFFFF69B4), "HotPink"},
                                    {int(0xFFCD5C5C), "IndianRed"},
                                    {int(0xFF4B0082), "Indigo"},
                                    {int(0xFFFFFFF0), "Ivory"},
                                    {int(0xFFF0E68C), "Khaki"},
                                    {int(0xFFE6E6FA), "Lavender"},
                                    {int(0xFFFFF0F5), "LavenderBlush"},
                                    {int(0xFF7CFC00), "LawnGreen"},
                                    {int(0xFFFFFACD), "LemonChiffon"},
                                    {int(0xFFADD8E6), "LightBlue"},
                                    {int(0xFFF08080), "LightCoral"},
                                    {int(0xFFE0FFFF), "LightCyan"},
                                    {int(0xFFFAFAD2), "LightGoldenrodYellow"},
                                    {int(0xFFD3D3D3), "LightGray"},
                                    {int(0xFF90EE90), "LightGreen"},
                                    {int(0xFFD3D3D3), "LightGrey"},
                                    {int(0xFFFFB6C1), "LightPink"},
                                    {int(0xFFFFA07A), "LightSalmon"},
                                    {int(0xFF20B2AA), "LightSeaGreen"},
                                    {int(0xFF87CEFA), "LightSkyBlue"},
                                    {int(0xFF778899), "LightSlateGray"},
                                    {int(0xFF778899), "LightSlateGrey"},
                                    {int(0xFFB0C4DE), "LightSteelBlue"},
                                    {int(0xFFFFFFE0), "LightYellow"},
                                    {int(0xFF00FF00), "Lime"},
                                    {int(0xFF32CD32), "LimeGreen"},
                                    {int(0xFFFAF0E6), "Linen"},
                                    {int(0xFFFF00FF), "Magenta"},
                                    {int(0xFF800000), "Maroon"},
                                    {int(0xFF66CDAA), "MediumAquamarine"},
                                    {int(0xFF0000CD), "MediumBlue"},
                                    {int(0xFFBA55D3), "MediumOrchid"},
                                    {int(0xFF9370DB), "MediumPurple"},
                                    {int(0xFF3CB371), "MediumSeaGreen"},
                                    {int(0xFF7B68EE), "MediumSlateBlue"},
                                    {int(0xFF00FA9A), "MediumSpringGreen"},
                                    {int(0xFF48D1CC), "MediumTurquoise"},
                                    {int(0xFFC71585), "MediumVioletRed"},
                                    {int(0xFF191970), "MidnightBlue"},
                                    {int(0xFFF5FFFA), "MintCream"},
                                    {int(0xFFFFE4E1), "MistyRose"},
                                    {int(0xFFFFE4B5), "Moccasin"},
                                    {int(0xFFFFDEAD), "NavajoWhite"},
                                    {int(0xFF000080), "Navy"},
                                    {int(0xFFFDF5E6), "OldLace"},
                                    {int(0xFF808000), "Olive"},
                                    {int(0xFF6B8E23), "OliveDrab"},
                                    {int(0xFFFFA500), "Orange"},
                                    {int(0xFFFF4500), "OrangeRed"},
                                    {int(0xFFDA70D6), "Orchid"},
                                    {int(0xFFEEE8AA), "PaleGoldenrod"},
                                    {int(0xFF98FB98), "PaleGreen"},
                                    {int(0xFFAFEEEE), "PaleTurquoise"},
                                    {int(0xFFDB7093), "PaleVioletRed"},
                                    {int(0xFFFFEFD5), "PapayaWhip"},
                                    {int(0xFFFFDAB9), "PeachPuff"},
                                    {int(0xFFCD853F), "Peru"},
                                    {int(0xFFFFC0CB), "Pink"},
                                    {int(0xFFDDA0DD), "Plum"},
                                    {int(0xFFB0E0E6), "PowderBlue"},
                                    {int(0xFF800080), "Purple"},
                                    {int(0xFF663399), "RebeccaPurple"},
                                    {int(0xFFFF0000), "Red"},
                                    {int(0xFFBC8F8F), "RosyBrown"},
                                    {int(0xFF4169E1), "RoyalBlue"},
                                    {int(0xFF8B4513), "SaddleBrown"},
                                    {int(0xFFFA8072), "Salmon"},
                                    {int(0xFFF4A460), "SandyBrown"},
                                    {int(0xFF2E8B57), "SeaGreen"},
                                    {int(0xFFFFF5EE), "Seashell"},
                                    {int(0xFFA0522D), "Sienna"},
                                    {int(0xFFC0C0C0), "Silver"},
                                    {int(0xFF87CEEB), "SkyBlue"},
                                    {int(0xFF6A5ACD), "SlateBlue"},
                                    {int(0xFF708090), "SlateGray"},
                                    {int(0xFF708090), "SlateGrey"},
                                    {int(0xFFFFFAFA), "Snow"},
                                    {int(0xFF00FF7F), "SpringGreen"},
                                    {int(0xFF4682B4), "SteelBlue"},
                                    {int(0xFFD2B48C), "Tan"},
                                    {int(0xFF008080), "Teal"},
                                    {int(0xFFD8BFD8), "Thistle"},
                                    {int(0xFFFF6347), "Tomato"},
                                    {int(0xFF40E0D0), "Turquoise"},
                                    {int(0xFFEE82EE), "Violet"},
                                    {int(0xFFF5DEB3), "Wheat"},
                                    {int(0xFFFFFFFF), "White"},
                                    {int(0xFFF5F5F5), "WhiteSmoke"},
                                    {int(0xFFFFFF00), "Yellow"},
                                    {int(0xFF9ACD32), "YellowGreen"}};

} // namespace Tables
