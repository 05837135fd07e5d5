// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "RecordCheck.h"
#include "RecordFile.h"

namespace Norvane::Kilnjet::Tool {

/// A driver that passed the check, and the record of the file that it came from.
struct AcceptedRecord
{
    VPrinterDriver driver;
    qsizetype record = 0;
};

/// A file in JSON whose records have been checked.
struct CheckedFile
{
    RecordFile source;
    Findings findings;
    QList<AcceptedRecord> accepted;
};

/// Reads and checks the records in `text`; `name` is for messages.
CheckedFile checkFile(const QString &name, const QByteArray &text);

/// Adds a finding for every record whose content id an earlier one of the files has: stored
/// together, the later would replace the earlier.
void findRepeats(QList<CheckedFile> &files);

} // namespace Norvane::Kilnjet::Tool
