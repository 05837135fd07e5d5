// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A boolean that is written by name.
enum class Bool : bool
{
    False = false, ///< No.
    True = true, ///< Yes.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, Bool, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::Bool)
