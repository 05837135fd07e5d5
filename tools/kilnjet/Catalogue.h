// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Store.h"

#include <kilnjet/VPrintersDb.h>

#include <QtCore/QFile>

#include <memory>

namespace Norvane::Kilnjet::Tool {

class Console;

/// The machines, ordered by name without regard to case; those of one name stay in order.
QList<VPrinterDriver> byName(const QList<VPrinterDriver> &machines);

/// Warns of records that the file holds and no program gets to see, and of damage.
void warnOfLosses(const StoreSurvey &survey, qsizetype leftOut, const QString &path,
                  Console &console);

/// The printers database that a command works on.
///
/// It is surveyed before it is opened, so that the cause of a failure can be named. Opened to read
/// it goes through a file that is open for reading only: whatever happens, no byte changes and no
/// file appears.
class Catalogue
{
public:
    enum class Mode
    {
        Read,
        Edit,
        EditOrCreate, ///< A missing or empty file becomes a database.
        ReadIfThere, ///< A missing or empty file counts as a database without machines.
    };

    /// Loads the database, and warns of records that cannot be read; throws a Failure.
    Catalogue(const StoreSettings &settings, Mode mode, Console &console);
    Q_DISABLE_COPY_MOVE(Catalogue)
    ~Catalogue() = default;

    QString path() const { return m_settings.path; }
    /// What the file showed before it was loaded.
    const StoreSurvey &survey() const { return m_survey; }
    /// How many records the file holds that cannot be read.
    qsizetype leftOut() const { return m_leftOut; }
    VPrintersDb &database() { return *m_database; }
    /// The machines, ordered by name, then by content id.
    QList<VPrinterDriver> machines();

    /// Writes all edits and closes the database; throws a Failure when they did not reach the disk.
    void commit();

private:
    void load();

    Console &m_console;
    StoreSettings m_settings;
    Mode m_mode;
    QFile m_file;
    StoreSurvey m_survey;
    qsizetype m_leftOut = 0;
    std::unique_ptr<VPrintersDb> m_database;
};

} // namespace Norvane::Kilnjet::Tool
