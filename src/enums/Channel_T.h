// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/Channel.h>
#include <vcore/VEnumBase.h>

namespace Norvane {

VCORE_DECLARE_ENUM_RUNTIME(, Channel, VEnumBase)

} // namespace Norvane
