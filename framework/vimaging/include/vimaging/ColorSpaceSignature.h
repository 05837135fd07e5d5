// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// The colour space of a colour profile, as the signature in its header (ICC.1).
enum class ColorSpaceSignature : int
{
    XYZ = 0x58595A20,
    Lab = 0x4C616220,
    Luv = 0x4C757620,
    YCbCr = 0x59436272,
    Yxy = 0x59787920,
    Rgb = 0x52474220,
    Gray = 0x47524159,
    Hsv = 0x48535620,
    Hls = 0x484C5320,
    Cmyk = 0x434D594B,
    Cmy = 0x434D5920,
    MCh1 = 0x4D434831,
    MCh2 = 0x4D434832,
    MCh3 = 0x4D434833,
    MCh4 = 0x4D434834,
    MCh5 = 0x4D434835,
    MCh6 = 0x4D434836,
    MCh7 = 0x4D434837,
    MCh8 = 0x4D434838,
    MCh9 = 0x4D434839,
    MChA = 0x4D434841,
    MChB = 0x4D434842,
    MChC = 0x4D434843,
    MChD = 0x4D434844,
    MChE = 0x4D434845,
    MChF = 0x4D434846,
    Named = 0x6E6D636C,
    _1Color = 0x31434C52,
    _2Color = 0x32434C52,
    _3Color = 0x33434C52,
    _4Color = 0x34434C52,
    _5Color = 0x35434C52,
    _6Color = 0x36434C52,
    _7Color = 0x37434C52,
    _8Color = 0x38434C52,
    _9Color = 0x39434C52,
    _10Color = 0x41434C52,
    _11Color = 0x42434C52,
    _12Color = 0x43434C52,
    _13Color = 0x44434C52,
    _14Color = 0x45434C52,
    _15Color = 0x46434C52,
    LuvK = 0x4C75764B,
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ColorSpaceSignature, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ColorSpaceSignature)
