// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::Imaging {

/// How further faces of a tile are made from a design that has too few of its own.
///
/// Equal neighbours on a wall give a print away; virtual faces make them differ.
enum class VirtualFacesMode : int
{
    None = 0, ///< Only the design's own faces are printed.
    Sequential = 1, ///< Faces are cut from a larger drawing one after another.
    Random = 2, ///< Faces are cut from a larger drawing at random places.
    Rotated = 3, ///< Each face is also printed turned round.
    Mirrored = 4, ///< Each face is also printed mirrored.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, VirtualFacesMode, VEnumBase)

} // namespace Norvane::Imaging

Q_DECLARE_METATYPE(Norvane::Imaging::VirtualFacesMode)
