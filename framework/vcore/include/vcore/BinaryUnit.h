// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A unit of storage; the number is the power of two that it stands for.
enum class BinaryUnit : int
{
    Byte = 0, ///< Eight bits.
    KiB = 10, ///< 1024 bytes.
    MiB = 20, ///< 1024 KiB.
    GiB = 30, ///< 1024 MiB.
    TiB = 40, ///< 1024 GiB.
    PiB = 50, ///< 1024 TiB.
    EiB = 60, ///< 1024 PiB.
    ZiB = 70, ///< 1024 EiB.
    YiB = 80, ///< 1024 ZiB.
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, BinaryUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::BinaryUnit)
