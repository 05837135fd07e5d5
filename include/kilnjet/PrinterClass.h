// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QMetaType>

namespace Norvane::Kilnjet {

/// The family of machine that a printer driver describes.
enum class PrinterClass : int
{
    Inkjet = 0, ///< Industrial inkjet machines.
    Plotter = 1, ///< Plotters.
    Engraver = 2, ///< Laser engravers.
    Dryjet = 3, ///< Industrial dry-jet machines.
    Develop = 4, ///< For development.
    Unknown = 5, ///< Not said yet: a new driver's class.
};

} // namespace Norvane::Kilnjet

Q_DECLARE_METATYPE(Norvane::Kilnjet::PrinterClass)
