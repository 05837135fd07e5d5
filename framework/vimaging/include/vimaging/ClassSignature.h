// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// The class of a colour profile, as the signature in its header (ICC.1).
enum class ClassSignature : int
{
    Input = 0x73636E72, ///< Scanners and cameras.
    Display = 0x6D6E7472, ///< Screens.
    Output = 0x70727472, ///< Printers.
    Link = 0x6C696E6B, ///< From one device straight to another.
    Abstract = 0x61627374, ///< A change of colours, of no device.
    ColorSpace = 0x73706163, ///< A colour space, of no device.
    NamedColor = 0x6E6D636C, ///< Colours that have names.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ClassSignature, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ClassSignature)
