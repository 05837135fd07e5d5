// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Failure.h"

#include <kilnjet/VPrinterDriver.h>
#include <vcommon/VDBText.h>

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QString>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace Norvane::Kilnjet::Tool {

class Progress;
struct Invocation;

/// Which database a command works on, and how.
struct StoreSettings
{
    QString path;
    QString key; ///< Empty without one.
    std::chrono::milliseconds wait{0};

    /// As the options say; throws a Failure when they make no sense or the key cannot be read.
    static StoreSettings from(const Invocation &invocation);
};

/// What a database file shows before anything is done with it.
struct StoreSurvey
{
    Database::VDBStatus status = Database::VDBStatus::Ok;
    QString error = {}; ///< The system's words.
    qsizetype count = 0; ///< The live records, those that cannot be read included.
    bool isKeyed = false; ///< It has a key, whatever key was given.
    QList<Database::VDBDamage> damage = {};
};

/// True for damage that loses nothing of what was stored: what a crash or an editor leaves.
bool isHarmless(Database::VDBDamage::Reason reason);

/// True when a part of the file is damaged in another way.
bool isDamaged(const StoreSurvey &survey);

/// What people can do about a damaged file, as a hint. A key that does not fit is no damage.
QString wayOutOfDamage(const QString &path);

enum class Access
{
    Read,
    Write
};

/// Opens the file for `access`, looks through it and closes it. No byte of it changes.
StoreSurvey surveyStore(const StoreSettings &settings, Access access);

/// The Failure that a survey with a status other than Ok means.
Failure storeFailure(const StoreSurvey &survey, const QString &path);

/// What compacting a file did.
struct Compaction
{
    StoreSurvey survey; ///< The file before.
    qint64 sizeBefore = 0; ///< In bytes.
    qint64 sizeAfter = 0;
};

/// Drops from the file what is no longer live; throws a Failure, and nothing is lost then.
Compaction compactStore(const StoreSettings &settings);
/// Writes the records, as they are, into a database in one batch; throws a Failure, and the
/// database is as it was then.
void insertRecords(const QList<Database::VDBRecord> &records, const StoreSettings &settings);

/// One record as it is stored.
struct StoredRecord
{
    qint64 line = 0;
    QString id;
    QByteArray json; ///< The driver's; empty when there is none.
    std::optional<VPrinterDriver> driver =
        {}; ///< What a program sees of it: nothing when left out.
    QString reason = {}; ///< Why it is left out.
};

/// Reads all live records of the file, in file order. Throws a Failure when it cannot be opened.
StoreSurvey readStore(const StoreSettings &settings, QList<Database::VDBRecord> &records);

/// A record as a program sees it that opens the database, without the time to say more of it.
struct SoundRecord
{
    std::unique_ptr<VPrinterDriver> driver = {}; ///< Null when the record is left out.
    VBytes json = {}; ///< The driver's.
};

/// Judges a record as judged() does. Any thread.
SoundRecord soundRecord(const Database::VDBRecord &record);

/// Judges a record by the rules by which VPrintersDb takes records in.
StoredRecord judged(const Database::VDBRecord &record);
/// Likewise, but whatever its signature says.
StoredRecord judgedByContent(const Database::VDBRecord &record);

/// Calls `visit` for every live record of the file, in file order. Throws a Failure when the file
/// cannot be opened.
StoreSurvey visitStore(const StoreSettings &settings, Progress &progress,
                       const std::function<void(const StoredRecord &record)> &visit);

/// True when `text` is the beginning of a database file.
bool isStore(const QByteArray &text);

} // namespace Norvane::Kilnjet::Tool
