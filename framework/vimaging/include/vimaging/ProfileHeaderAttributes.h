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
    Transparency = 1,
    Matte = 2,
    Negative = 4,
    BlackAndWhite = 8,
};
VCORE_DECLARE_FLAGS(ProfileHeaderAttributes)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ProfileHeaderAttributes, VEnumBaseFlags)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ProfileHeaderAttributes)
