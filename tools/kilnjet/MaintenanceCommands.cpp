// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

// The commands that look after a database file.

#include "Command.h"
#include "Commands.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

Command backupCommand()
{
    return {
        .name = "backup"_L1,
        .summary = "Copy the machines of the database into another file"_L1,
        .description =
            "DEST is a file, or a folder, in which the copy is called like the database. A new "
            "copy is made beside its place and moved there when it is complete. The database is "
            "only read.\n"
            "Where an older copy stands, the machines that have changed are added to it in one "
            "step, and machines that only the older copy has stay in it: a catalogue that was "
            "emptied by mistake empties no copy. --replace makes a copy that holds the database's "
            "machines and no other.\n"
            "--verify opens the copy again and compares ids and contents. Machines that only an "
            "older copy had make it unequal, too.\n"
            "A file that is no database, is damaged in its header, belongs to another key or to a "
            "newer program is left as it is. With a key the copy is signed with it."_L1,
        .operands =
            {{"DEST"_L1, 1, 1, "the copy's file, or the folder for it"_L1, {Words::Kind::Files}}},
        .options = {{"--replace"_L1, ""_L1, ""_L1, "keep nothing of an older copy"_L1},
                    {"--verify"_L1, ""_L1, ""_L1, "open the copy again and compare"_L1}},
        .exitCodes = {{ExitCode::Finding,
                       "the copy was made, but records of the database that cannot be read are "
                       "not in it"_L1},
                      {ExitCode::Io,
                       "a file is missing or could not be read or written, or the copy is not "
                       "equal to the database"_L1}},
        .examples = {{"backup /media/usb --verify"_L1, "a copy on a stick, compared"_L1},
                     {"--db plant.tdb backup plant-monday.tdb --replace"_L1,
                      "a copy of plant.tdb as it is today"_L1}},
        .run = runBackup,
    };
}

Command restoreCommand()
{
    return {
        .name = "restore"_L1,
        .summary = "Take the machines of a backup into the database"_L1,
        .description =
            "Afterwards the database holds the machines of the backup and no other; with --merge "
            "those that the backup does not have stay. All of that is one step: when it cannot be "
            "done, the database is as it was. The backup is only read. A missing database is "
            "created.\n"
            "A restore never removes machines for the sake of a bad backup: one that is damaged "
            "or holds records that cannot be used is only taken with --merge, one without "
            "machines only with --merge or --allow-empty, an empty file not at all.\n"
            "With --key-file the backup must have been made with that key, unless --any-key is "
            "given."_L1,
        .operands = {{"SOURCE"_L1,
                      1,
                      1,
                      "the backup's file, or the folder that holds one called like the database"_L1,
                      {Words::Kind::Files}}},
        .options =
            {{"--merge"_L1, ""_L1, ""_L1, "remove nothing"_L1},
             {"--dry-run"_L1, ""_L1, ""_L1,
              "say what would be added, replaced and removed, store nothing"_L1},
             {"--any-key"_L1, ""_L1, ""_L1,
              "take a backup that another key signed, or none; only its sums are checked"_L1},
             {"--allow-empty"_L1, ""_L1, ""_L1,
              "let a backup without machines remove all machines"_L1}},
        .exitCodes = {{ExitCode::Finding, "the backup holds no machine; nothing was changed"_L1},
                      {ExitCode::Damaged,
                       "the backup or the database is damaged, no database, or of a newer "
                       "format; nothing was changed"_L1}},
        .examples = {{"restore /media/usb --dry-run"_L1, "see what would change"_L1},
                     {"restore /media/usb/Printers.tdb --merge"_L1,
                      "bring back what is missing, keep the rest"_L1}},
        .run = runRestore,
    };
}

Command purgeCommand()
{
    return {
        .name = "purge"_L1,
        .summary = "Compact the database file"_L1,
        .description =
            "Drops removed machines and earlier versions of records from the file, which keeps "
            "them otherwise, and says how many bytes it had before and has after. The new file is "
            "made beside the old one, synced and then takes its place, so the disk needs room for "
            "both.\n"
            "Damaged records and foreign bytes are carried over as they are. What a crash left of "
            "a batch that was never completed is dropped: when the end of a file was damaged, run "
            "recover first."_L1,
        .operands = {},
        .options = {},
        .exitCodes = {},
        .examples = {{"purge"_L1, "compact Printers.tdb"_L1},
                     {"--db plant.tdb purge --json"_L1, "another file, for a script"_L1}},
        .run = runPurge,
    };
}

Command reindexCommand()
{
    return {
        .name = "reindex"_L1,
        .summary = "Build the index anew and load all machines with it"_L1,
        .description =
            "Reads the whole file, builds the index of its records, loads every machine, and says "
            "how many there are. The index is kept in memory and not in the file: no byte of the "
            "file changes, and no other command needs this one. It shows that a file can be "
            "indexed and loaded."_L1,
        .operands = {},
        .options = {},
        .exitCodes = {},
        .examples = {{"reindex"_L1, "index Printers.tdb"_L1},
                     {"--db plant.tdb reindex --json"_L1, "another file, for a script"_L1}},
        .run = runReindex,
    };
}

Command recoverCommand()
{
    return {
        .name = "recover"_L1,
        .summary = "Carry what a damaged file still holds into a new one"_L1,
        .description =
            "For files that other commands refuse or find damaged: without a sound header, with "
            "overwritten or missing parts, cut off, joined from pieces, converted by an editor. "
            "The damaged file is only read. NEW must not exist yet.\n"
            "Every place where a record may begin is tried. Carried is the last sound version of "
            "each record, byte for byte, unless a completed batch removes it; also from a batch "
            "whose end is missing. What is not carried is reported with its offset, its length "
            "and the reason, and whether another version of the record was carried.\n"
            "With --unproven a record whose sum does not match is carried, too, when no sound "
            "version is left, it still is a driver, and its content id is that of its id field: "
            "its name or its children may have changed, so look at it.\n"
            "With the key of a keyed file, its codes are checked and the new file is keyed; "
            "without it, sums alone are checked and the new file has no key."_L1,
        .operands = {{"DAMAGED"_L1, 1, 1, "the damaged file"_L1, {Words::Kind::Files}},
                     {"NEW"_L1, 1, 1, "the file to be made"_L1, {Words::Kind::Files}}},
        .options = {{"--unproven"_L1, ""_L1, ""_L1,
                     "carry damaged records, too, whose content id is right"_L1}},
        .exitCodes = {{ExitCode::Done, "every record was carried"_L1},
                      {ExitCode::Finding,
                       "the new file was made, but something is lost, or carried without proof"_L1},
                      {ExitCode::Damaged,
                       "nothing in the file is readable, or it is of a newer format"_L1}},
        .examples = {{"recover Printers.tdb rescued.tdb"_L1, "save what is left"_L1},
                     {"recover Printers.tdb rescued.tdb --json --unproven"_L1,
                      "save more, and list all of it"_L1}},
        .run = runRecover,
    };
}

} // namespace

QList<Command> maintenanceCommands()
{
    return {backupCommand(), restoreCommand(), purgeCommand(), reindexCommand(), recoverCommand()};
}

} // namespace Norvane::Kilnjet::Tool
