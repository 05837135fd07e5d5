// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>
#include <vimaging/Export.h>

#include <QtCore/QMetaType>

namespace Norvane::ColorManagement::LittleCMS {

/// The part of a colour transformation that a rendering intent is for.
enum class IntentDirection : int
{
    Input = 0, ///< From the device's colours.
    Output = 1, ///< Into the device's colours.
    Proof = 2, ///< To show one device on another.
    InputOutput = 3, ///< Input and output.
    All = 4, ///< Input, output and proof.
};

VCORE_DECLARE_ENUM_RUNTIME(VIMAGING_EXPORT, IntentDirection, VEnumBase)

} // namespace Norvane::ColorManagement::LittleCMS

Q_DECLARE_METATYPE(Norvane::ColorManagement::LittleCMS::IntentDirection)
