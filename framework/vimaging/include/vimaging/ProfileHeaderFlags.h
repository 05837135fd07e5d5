// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// How a colour profile may be used, as the flag bits of its header (ICC.1).
enum class ProfileHeaderFlags : int
{
    None = 0, ///< On its own, for any image.
    EmbeddedProfile = 1, ///< It is embedded in a file.
    UseWithEmbeddedDataOnly = 2, ///< Only for the data of that file.
};
VCORE_DECLARE_FLAGS(ProfileHeaderFlags)

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ProfileHeaderFlags, VEnumBaseFlags)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ProfileHeaderFlags)
