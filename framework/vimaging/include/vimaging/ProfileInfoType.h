// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// A text that a colour profile carries about itself.
enum class ProfileInfoType : int
{
    Description = 0, ///< What it is.
    Manufacturer = 1, ///< Who made the device.
    Model = 2, ///< Which device it is.
    Copyright = 3, ///< Who holds the rights.
    DescriptionML = 100, ///< The description in every language that there is.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, ProfileInfoType, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::ProfileInfoType)
