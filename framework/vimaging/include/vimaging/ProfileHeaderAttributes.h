// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// The medium that a colour profile is for, as the attribute bits of its header (ICC.1).
enum class ProfileHeaderAttributes : int
{
    None = 0, ///< A reflective, glossy, positive medium in colour.
    Transparency = 1, ///< Light goes through it.
    Matte = 2, ///< It is matt.
    Negative = 4, ///< Its colours are negative.
    BlackAndWhite = 8, ///< It has no colour.
};
VCORE_DECLARE_FLAGS(ProfileHeaderAttributes)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ProfileHeaderAttributes, VEnumBaseFlags)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ProfileHeaderAttributes)
