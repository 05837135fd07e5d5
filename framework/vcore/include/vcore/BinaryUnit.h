// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/VEnumBase.h>

#include <QtCore/QMetaType>

namespace Norvane {

/// A unit of storage; the number is the power of two that it stands for.
enum class BinaryUnit : int
{
    Byte = 0,
    KiB = 10,
    MiB = 20,
    GiB = 30,
    TiB = 40,
    PiB = 50,
    EiB = 60,
    ZiB = 70,
    YiB = 80,
};

VCORE_DECLARE_ENUM_RUNTIME(VCORE_EXPORT, BinaryUnit, VEnumBase)

} // namespace Norvane

Q_DECLARE_METATYPE(Norvane::BinaryUnit)
