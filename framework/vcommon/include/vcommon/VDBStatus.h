// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcommon/Export.h>

#include <QtCore/QString>

#include <functional>

namespace Norvane::Database {

/// How the last operation of a text database ended.
enum class VDBStatus
{
    Ok, ///< It has done what it should.
    NoDevice, ///< There is no device to work on.
    NotFound, ///< The file does not exist.
    Io, ///< The system refused to open, read, write or sync; VDBText::errorString() says why.
    Empty, ///< Nothing yet, or only what a crash left of a creation: create() may go on.
    NotEmpty, ///< create() met a file that has content.
    NotADatabase, ///< The content is not of this format.
    DamagedHeader, ///< The file is of this format, but both copies of its header are damaged.
    NewerFormat, ///< A newer program wrote the file.
    WrongKey, ///< The file belongs to another key.
    KeyRequired, ///< Writing to a keyed file needs its key.
    Locked, ///< Another process held the file for as long as open() waits.
};

/// One stretch of a file that the reader could not use.
struct VDBDamage
{
    /// What is wrong with the stretch.
    enum class Reason
    {
        BadSignature, ///< A record whose signature does not match its content.
        NotALine, ///< Bytes that are no line of the format: garbage, NULs, a torn line.
        BadLineEnd, ///< A sound line that does not end in a single line feed; nothing is lost.
        BadHeader, ///< One copy of the header is damaged, or a header stands inside the file.
        BadCommit, ///< The end of a batch does not match its records.
        Unfinished, ///< A batch that was never completed; its records do not count.
    };

    qint64 offset = 0; ///< Where it begins in the file, in bytes.
    qint64 size = 0; ///< How long it is, in bytes.
    qint64 line = 0; ///< Its line, from 1.
    QString id; ///< The key of the record, as far as it is readable.
    /// What is wrong with it.
    Reason reason = Reason::NotALine;
};

/// Hears of every damage that a reader meets, in file order.
using VDBReporter = std::function<void(const VDBDamage &damage)>;

} // namespace Norvane::Database
