// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QJsonArray>
#include <QtCore/QList>
#include <QtCore/QString>

namespace Norvane::Kilnjet::Tool {

/// What becomes of machines that are stored in a database, and which ones it has besides.
struct ChangePlan
{
    QList<VPrinterDriver> added;
    QList<VPrinterDriver> replaced;
    QList<VPrinterDriver> unchanged;
    QList<VPrinterDriver> extra; ///< In the database only.

    static ChangePlan of(const QList<VPrinterDriver> &machines, VPrintersDb &database);
};

/// The machines that a database keeps; it would delete others when it is given them.
QList<VPrinterDriver> validAmong(const QList<VPrinterDriver> &machines);

/// [{"id", "name"}] for every machine.
QJsonArray toJsonArray(const QList<VPrinterDriver> &machines);
/// One line a machine that begins with the word; safe for a terminal.
QString toText(const QString &word, const QList<VPrinterDriver> &machines);

} // namespace Norvane::Kilnjet::Tool
