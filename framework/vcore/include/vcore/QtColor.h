// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// The predefined colours of Qt, in the order of `Qt::GlobalColor`.
enum class QtColor : int
{
    Color0 = 0, ///< The cleared pixel of a bitmap.
    Color1 = 1, ///< The set pixel of a bitmap.
    Black = 2,
    White = 3,
    DarkGray = 4,
    Gray = 5,
    LightGray = 6,
    Red = 7,
    Green = 8,
    Blue = 9,
    Cyan = 10,
    Magenta = 11,
    Yellow = 12,
    DarkRed = 13,
    DarkGreen = 14,
    DarkBlue = 15,
    DarkCyan = 16,
    DarkMagenta = 17,
    DarkYellow = 18,
    Transparent = 19,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, QtColor, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::QtColor)
