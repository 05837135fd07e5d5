// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// The order of the bytes of a number in a file.
enum class ByteOrder : int
{
    BigEndian = 0, ///< The most significant byte comes first.
    LittleEndian = 1, ///< The least significant byte comes first.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, ByteOrder, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::ByteOrder)
