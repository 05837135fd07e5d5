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
    Input = 0x73636E72,
    Display = 0x6D6E7472,
    Output = 0x70727472,
    Link = 0x6C696E6B,
    Abstract = 0x61627374,
    ColorSpace = 0x73706163,
    NamedColor = 0x6E6D636C,
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ClassSignature, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ClassSignature)
