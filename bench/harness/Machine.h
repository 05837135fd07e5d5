// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <optional>

namespace Bench {

/// The machine, the compiler and the day.
QJsonObject describeMachine(const QString &folder);

/// The most memory that this process ever held, in KB.
qint64 peakMemory();

/// The output of a program, or nothing when it fails.
std::optional<QByteArray> outputOf(const QString &program, const QStringList &arguments);

/// What the start of a process costs with Qt Core alone and with our library: ms, and instructions
/// when there is callgrind to count them. The programs stand in `programs`.
QJsonObject measureStartup(const QString &programs);

} // namespace Bench
