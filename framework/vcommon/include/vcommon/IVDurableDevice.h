// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>

namespace Norvane::Database {

/// What a QIODevice that is no file derives from besides, so that a store can make its content
/// durable. Without it the content of such a device is as durable as the device makes it.
class VCOMMON_EXPORT IVDurableDevice
{
public:
    virtual ~IVDurableDevice();

    /// Makes everything written so far survive a power cut; false when that failed.
    [[nodiscard]] virtual bool sync() = 0;
};

} // namespace Norvane::Database
