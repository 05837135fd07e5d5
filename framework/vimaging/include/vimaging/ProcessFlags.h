// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// How a colour transformation is built; the bits are the transform flags of Little CMS 2.
enum class ProcessFlags : int
{
    None = 0x00000000, ///< As usual.
    NoCache = 0x00000040, ///< Without the cache of one pixel.
    NoOptimize = 0x00000100, ///< The steps stay as they are.
    NullTransform = 0x00000200, ///< Pixels pass unchanged.
    GamutCheck = 0x00001000, ///< Colours out of gamut are marked.
    SoftProofing = 0x00004000, ///< The result looks as on a third device.
    BlackPointCompensation = 0x00002000, ///< Black becomes the darkest that there is.
    NoWhiteOnWhiteFixup = 0x00000004, ///< White need not map to pure white.
    HighResPrecalc = 0x00000400, ///< More memory for more accuracy.
    LowResPrecalc = 0x00000800, ///< Less memory for less accuracy.
    _8BitsDeviceLink = 0x00000008, ///< Tables of a device link have 8 bits.
    GuessDeviceClass = 0x00000020, ///< A device link's class is found out.
    KeepSequence = 0x00000080, ///< A device link keeps its profiles' descriptions.
    ForceClut = 0x00000002, ///< Always by a table of colours.
    ClutPostLinearization = 0x00000001, ///< Curves behind the table of colours.
    ClutPreLinearization = 0x00000010, ///< Curves before the table of colours.
    NonNegatives = 0x00008000, ///< Floating point results are not negative.
    CopyAlpha = 0x04000000, ///< Alpha channels are copied.
    NoDefaultSourceDef = 0x01000000, ///< No default resource, for PostScript.
};
VCORE_DECLARE_FLAGS(ProcessFlags)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ProcessFlags, VEnumBaseFlags)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ProcessFlags)
