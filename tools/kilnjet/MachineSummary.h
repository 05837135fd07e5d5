// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QUuid>

namespace Norvane::Kilnjet::Tool {

class Console;
struct StoreSettings;

/// What a list says of a machine.
struct MachineSummary
{
    QUuid id; ///< Its content id.
    QUuid deviceId;
    QString name;
    PrinterClass printerClass = {};
    PrinterFacesMode facesMode = {};
    int maximumFaces = 0;
    bool isExperimental = false;
    qsizetype children = 0; ///< Without the children's children.
    QString version;

    static MachineSummary of(const VPrinterDriver &machine);
};

/// The machines of the database, ordered by name without regard to case, then by content id. Reads
/// the file once and decodes no record that it can do without. Warns and throws as a Catalogue
/// opened to read does.
QList<MachineSummary> readSummaries(const StoreSettings &settings, Console &console);

} // namespace Norvane::Kilnjet::Tool
