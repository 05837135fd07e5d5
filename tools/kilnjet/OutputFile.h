// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// Writes `bytes` to the file `path`: into a new file beside it, which is synced and then takes its
/// place. A device or a pipe is written to directly. Throws a Failure; the old file is whole then.
void writeFile(const QString &path, const QByteArray &bytes);

} // namespace Norvane::Kilnjet::Tool
