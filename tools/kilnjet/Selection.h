// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// The machine that the user means by `text`: its content id with or without braces, its name, its
/// name in another case, or the first digits of its content id, at least four. Whatever of these
/// comes first decides. Throws a Failure when there is none, or when several fit equally.
VPrinterDriver selectMachine(const QList<VPrinterDriver> &machines, const QString &text);

/// The machines meant by `texts`, each once, in the order in which they were named.
QList<VPrinterDriver> selectMachines(const QList<VPrinterDriver> &machines,
                                     const QStringList &texts);

} // namespace Norvane::Kilnjet::Tool
