// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrintersDb.h>

namespace Support {

/// Calls the library, so that a linker that drops unused libraries keeps it: what these tests look
/// at happens when it is loaded.
inline const QString kKilnjet = Norvane::Kilnjet::VPrintersDb::defaultFilename();

} // namespace Support
