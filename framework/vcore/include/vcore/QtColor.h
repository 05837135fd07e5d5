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
    Black = 2, ///< `#000000`.
    White = 3, ///< `#FFFFFF`.
    DarkGray = 4, ///< `#808080`.
    Gray = 5, ///< `#A0A0A4`.
    LightGray = 6, ///< `#C0C0C0`.
    Red = 7, ///< `#FF0000`.
    Green = 8, ///< `#00FF00`.
    Blue = 9, ///< `#0000FF`.
    Cyan = 10, ///< `#00FFFF`.
    Magenta = 11, ///< `#FF00FF`.
    Yellow = 12, ///< `#FFFF00`.
    DarkRed = 13, ///< `#800000`.
    DarkGreen = 14, ///< `#008000`.
    DarkBlue = 15, ///< `#000080`.
    DarkCyan = 16, ///< `#008080`.
    DarkMagenta = 17, ///< `#800080`.
    DarkYellow = 18, ///< `#808000`.
    Transparent = 19, ///< Black, fully transparent.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, QtColor, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::QtColor)
