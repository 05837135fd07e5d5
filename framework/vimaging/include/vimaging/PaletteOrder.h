// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// The order of a palette.
enum class PaletteOrder : int
{
    Default = 0, ///< The usual one: the darkest colour comes first.
    DarkLowest =
        Default, ///< The darkest colour comes first, which is the default; read, never written.
    ClearLowest = 1, ///< The lightest colour comes first.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, PaletteOrder, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::PaletteOrder)
