// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/ChannelV100Sort.h>
#include <vcore/VEnumBase.h>

VCORE_DECLARE_ENUM_RUNTIME(, ChannelV100Sort, VEnumBase)
