// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// The outline of an icon.
enum class IconStyle : int
{
    ApplicationDefault = 0, ///< What the application uses elsewhere.
    Square = 1, ///< A square.
    Round = 2, ///< A circle.
    RoundedSquare = 3, ///< A square with rounded corners.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, IconStyle, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::IconStyle)
