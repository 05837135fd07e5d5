// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

namespace Norvane::Kilnjet {

/// Whether there is a QGuiApplication: without one, any use of a QPixmap aborts the process.
bool isGuiRunning();

} // namespace Norvane::Kilnjet
