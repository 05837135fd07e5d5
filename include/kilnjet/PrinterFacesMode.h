// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// How a printer handles the faces of a tile design.
enum class PrinterFacesMode : int
{
    None = 0, ///< It does not handle them.
    Basic = 1, ///< In its basic mode.
    Advanced = 2, ///< In its advanced mode.
};

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::PrinterFacesMode)
