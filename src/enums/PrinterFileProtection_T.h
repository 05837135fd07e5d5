// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/PrinterFileProtection.h>
#include <vcore/VEnumBase.h>

namespace Norvane::Kilnjet {

VCORE_DECLARE_ENUM_RUNTIME(, PrinterFileProtection, VEnumBaseFlags)

} // namespace Norvane::Kilnjet
