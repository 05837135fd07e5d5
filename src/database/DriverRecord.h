// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>
#include <vcommon/VDBRecord.h>

#include <QtCore/QUuid>

#include <memory>

namespace Norvane::Kilnjet::DriverRecord {

/// The field that holds the content id, the primary key of the file.
QString idField();
/// A content id as the file spells it: with braces.
QString textFromId(const QUuid &id);

/// The record of a driver: "id", then "driver", its compact JSON.
Database::VDBRecord fromDriver(const VPrinterDriver &driver);
/// The driver of a record; null when the signature is bad, a field is missing, the JSON is not a
/// printer driver's, or the id is not that of its content. It may be invalid.
std::unique_ptr<VPrinterDriver> toDriver(const Database::VDBRecord &record);

} // namespace Norvane::Kilnjet::DriverRecord
