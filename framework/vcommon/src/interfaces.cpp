// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The destructors of the interfaces stand here, so that each has one home for its virtual table.

#include <vcommon/IVDatabase.h>
#include <vcommon/IVDeviceConfig.h>
#include <vcommon/IVDurableDevice.h>

namespace Norvane {

Hardware::Interfaces::IVDeviceConfig::~IVDeviceConfig() = default;
Database::IVDatabase::~IVDatabase() = default;
Database::IVDurableDevice::~IVDurableDevice() = default;

} // namespace Norvane
