// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Finding.h"

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QJsonValue>

#include <optional>

namespace Norvane::Kilnjet::Tool {

/// What came out of the check of one record.
struct CheckedRecord
{
    /// Everything that would be lost or changed if the record were stored; the pointers are
    /// relative to the record, the place of the record is not filled in.
    Findings findings;
    /// The driver; nothing when there are errors.
    std::optional<VPrinterDriver> driver;
};

/// Checks that `record` is a printer driver which can be stored exactly as it is written.
///
/// Reading a record never fails: whatever is missing, misspelt or ill-typed takes a default. So it
/// is compared with what the records of each kind must look like before it is read. Any thread.
CheckedRecord checkRecord(const QJsonValue &record);

} // namespace Norvane::Kilnjet::Tool
