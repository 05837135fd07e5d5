// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Command.h"

#include "Commands.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

constexpr Words kAFile{Words::Kind::Files};
constexpr Words kAMachine{Words::Kind::Machines};
constexpr Words kASource{Words::Kind::FilesOrMachines};
constexpr Words kAnEnumeration{Words::Kind::Enumerations};
constexpr Words kACommand{Words::Kind::Commands};
constexpr Words kALanguage{Words::Kind::Languages};
constexpr Words kYesOrNo{Words::Kind::Listed, "yes|no"_L1};

constexpr Words valueOf(QLatin1StringView enumeration)
{
    return {Words::Kind::Enumeration, enumeration};
}

constexpr Operand kMachines{"ID|NAME"_L1, 1, Operand::kAnyNumber,
                            "the machines, by content id, the first digits of one, or name"_L1,
                            kAMachine};
constexpr Operand kMachine{"ID|NAME"_L1, 1, 1,
                           "the machine, by content id, the first digits of one, or name"_L1,
                           kAMachine};
constexpr ExitMeaning kNotFound{ExitCode::Finding,
                                "a machine was not found, or a name fits several machines"_L1};

Command importCommand()
{
    return {
        .name = "import"_L1,
        .summary = "Check records in JSON and store them in the database"_L1,
        .description =
            "Reads printer drivers: one record object, an array of records, or one record a line. "
            "The database is created when it is missing.\n"
            "Every record of every file is checked before anything is stored, and all are stored "
            "together or none is. Refused is whatever could not be stored as it was written: text "
            "that is no JSON, missing, misspelt or ill-typed keys, unknown names of values, images "
            "that do not decode, invalid records, two records with the same content id. Each "
            "finding names the file, the line, the record and the place in it.\n"
            "Keys that no record has are reported and not kept. Children of an unknown kind are "
            "reported and kept as they came.\n"
            "A record replaces the stored one with the same content id, which is made of device "
            "id, "
            "faces mode, printer class and maximum faces; equal ones are left alone."_L1,
        .operands = {{"FILE"_L1, 1, Operand::kAnyNumber,
                      "the files to read; \"-\" is the standard input"_L1, kAFile}},
        .options = {{"--dry-run"_L1, ""_L1, ""_L1, "check and report, store nothing"_L1}},
        .exitCodes = {{ExitCode::Finding, "a record was refused; nothing was stored"_L1}},
        .examples = {{"import machines.json"_L1, "store every machine of a file"_L1},
                     {"import --dry-run machines.json"_L1, "see what would change"_L1},
                     {"--db other.tdb export | kilnjet import -"_L1,
                      "take over the machines of another database"_L1}},
        .run = runImport,
    };
}

Command listCommand()
{
    return {
        .name = "list"_L1,
        .summary = "List the machines of the database"_L1,
        .description = "One line a machine, ordered by name."_L1,
        .operands = {},
        .options = {{"--names"_L1, ""_L1, ""_L1, "the names and no more, each once"_L1}},
        .exitCodes = {},
        .examples = {{"list"_L1, "the machines of Printers.tdb"_L1},
                     {"--db plant.tdb list --json"_L1, "the same as JSON, of another file"_L1}},
        .run = runList,
    };
}

Command queryCommand()
{
    return {
        .name = "query"_L1,
        .summary = "List the machines that meet conditions"_L1,
        .description =
            "Lists, as list does, the machines that meet every condition given.\n"
            "Names of values are taken in any case; 'kilnjet enums' lists them. The channels may "
            "be spread over the print units of a machine. --elaboration, --levels and "
            "--resolution must hold for one elaboration together. A resolution is "
            "\"400x360DPI\", or \"400\" for both directions; the unit is DPI, PPM or PPMM, DPI "
            "when left out, and units are not converted. Every word of --text must occur in the "
            "names and descriptions of the machine and its children, in any case."_L1,
        .operands = {},
        .options =
            {{"--class"_L1, ""_L1, "NAME"_L1, "is of this printer class"_L1,
              valueOf("PrinterClass"_L1)},
             {"--channel"_L1, ""_L1, "NAME"_L1, "has this channel; may be given several times"_L1,
              valueOf("Channel"_L1), Option::Times::Many},
             {"--elaboration"_L1, ""_L1, "TYPE"_L1, "has an elaboration of this type"_L1,
              valueOf("ElaborationType"_L1)},
             {"--levels"_L1, ""_L1, "NAME"_L1, "... with this level management"_L1,
              valueOf("LevelManagement"_L1)},
             {"--resolution"_L1, ""_L1, "RESOLUTION"_L1, "... at this resolution"_L1},
             {"--online-elaboration"_L1, ""_L1, "yes|no"_L1, "elaborates online"_L1, kYesOrNo},
             {"--online-linearization"_L1, ""_L1, "yes|no"_L1, "linearises online"_L1, kYesOrNo},
             {"--experimental"_L1, ""_L1, "yes|no"_L1, "is experimental"_L1, kYesOrNo},
             {"--text"_L1, ""_L1, "WORDS"_L1, "is described with these words"_L1}},
        .exitCodes = {{ExitCode::Done, "machines were found"_L1},
                      {ExitCode::Finding, "no machine meets the conditions"_L1}},
        .examples = {{"query --channel Blue --channel Sinker"_L1,
                      "the machines that lay blue and a sinking material"_L1},
                     {"query --class Inkjet --levels Binary --resolution 360 --json"_L1,
                      "the inkjets with a binary elaboration at 360 DPI, as JSON"_L1}},
        .run = runQuery,
    };
}

Command showCommand()
{
    return {
        .name = "show"_L1,
        .summary = "Show one machine"_L1,
        .description =
            "A sheet to read: the machine and its limits, its print units with their channels in "
            "order, its elaborations by kind. On a terminal, inks have a swatch of about their "
            "colour; set NO_COLOR to do without. With --json: the content id and the whole "
            "record.\n"
            "A name is compared exactly first, then without regard to case. A content id may be "
            "written with or without braces, or shortened to at least four digits."_L1,
        .operands = {kMachine},
        .options = {},
        .exitCodes = {kNotFound},
        .examples = {{"show \"Kiln line 4\""_L1, "by name"_L1},
                     {"show c3dc --json"_L1, "by the first digits of its id, as JSON"_L1}},
        .run = runShow,
    };
}

Command diffCommand()
{
    return {
        .name = "diff"_L1,
        .summary = "Compare two catalogues or two machines field by field"_L1,
        .description =
            "A and B are files if files of these names are there (or \"-\", the standard input): "
            "each a database or records in JSON, which its first bytes show. Otherwise, with "
            "--db, they are two machines of that database, named as for show.\n"
            "The machines of two files are matched by content id. Children are matched by kind "
            "and device id, those left over by kind and position. A difference is named by its "
            "JSON pointer in A, or in B for what is only there. Metadata is left out, and of "
            "icons it is only said that they differ.\n"
            "With --json: the objects \"a\" and \"b\" and the array \"differences\" for two "
            "machines; for two files their names \"a\" and \"b\", the arrays \"onlyInA\", "
            "\"onlyInB\" and \"different\" of machines with \"id\" and \"name\", the last with "
            "\"differences\", and the number \"equal\". A difference has \"pointer\", \"change\" "
            "(changed, onlyInA, onlyInB, icon, order) and the values \"a\" and \"b\" as far as "
            "there are any.\n"
            "The key of --key-file is used for both files. Colours are for terminals only; set "
            "NO_COLOR to do without."_L1,
        .operands = {{"A"_L1, 1, 1, "a database, a file in JSON, or a machine"_L1, kASource},
                     {"B"_L1, 1, 1, "what A is compared with"_L1, kASource}},
        .options = {},
        .exitCodes = {{ExitCode::Done, "they are equal"_L1},
                      {ExitCode::Finding, "they differ, or a machine was not found"_L1},
                      {ExitCode::Io,
                       "a file is missing, cannot be read, or holds records that "
                       "import would refuse"_L1}},
        .examples = {{"diff Printers.tdb machines.json"_L1, "what an import would change"_L1},
                     {"--db Printers.tdb diff \"Kiln line 4\" \"Kiln line 5\""_L1,
                      "two machines of one database"_L1}},
        .run = runDiff,
    };
}

Command exportCommand()
{
    return {
        .name = "export"_L1,
        .summary = "Write records as JSON"_L1,
        .description =
            "An array of whole records, ordered by content id, which import takes back unchanged. "
            "Without operands: every machine.\n"
            "A file given with --output is written beside its place, synced and then moved there: "
            "it "
            "is complete or untouched."_L1,
        .operands = {{"ID|NAME"_L1, 0, Operand::kAnyNumber, "the machines; all when left out"_L1,
                      kAMachine}},
        .options = {{"--output"_L1, "-o"_L1, "FILE"_L1,
                     "write to FILE instead of the standard output"_L1, kAFile}},
        .exitCodes = {kNotFound},
        .examples = {{"export --output machines.json"_L1, "all machines into a file"_L1},
                     {"export \"Kiln line 4\""_L1, "one machine to the standard output"_L1}},
        .run = runExport,
    };
}

Command removeCommand()
{
    return {
        .name = "remove"_L1,
        .summary = "Remove machines from the database"_L1,
        .description = "All of them are removed, or none when one is not found."_L1,
        .operands = {kMachines},
        .options = {},
        .exitCodes = {kNotFound},
        .examples = {{"remove \"Kiln line 4\""_L1, "by name"_L1},
                     {"remove c3dc 1aeb"_L1, "two machines by the first digits of their ids"_L1}},
        .run = runRemove,
    };
}

Command renameCommand()
{
    return {
        .name = "rename"_L1,
        .summary = "Give a machine another name"_L1,
        .description = "The content id stays. The date of the record becomes the present time. "
                       "Another machine "
                       "of the same name is reported, not refused."_L1,
        .operands = {kMachine, {"NEW-NAME"_L1, 1, 1, "its new name"_L1}},
        .options = {},
        .exitCodes =
            {{ExitCode::Finding,
              "the machine was not found, its name fits several machines, or it is not valid"_L1}},
        .examples = {{"rename \"Kiln line 4\" \"Kiln line 5\""_L1, "by name"_L1},
                     {"rename c3dc \"Kiln line 5\""_L1, "by the first digits of its id"_L1}},
        .run = runRename,
    };
}

Command enumsCommand()
{
    return {
        .name = "enums"_L1,
        .summary = "List the enumerations and the names of their values"_L1,
        .description =
            "The names are what records store, the texts beside them what people read in the "
            "language of --lang or of the environment. Without NAME: all enumerations, and how "
            "many values each has."_L1,
        .operands = {{"NAME"_L1, 0, 1, "an enumeration"_L1, kAnEnumeration}},
        .options = {},
        .exitCodes = {{ExitCode::Finding, "there is no such enumeration"_L1}},
        .examples = {{"enums"_L1, "all enumerations"_L1},
                     {"enums Channel"_L1, "the channels with their numbers"_L1},
                     {"enums PrinterClass --lang it"_L1,
                      "the classes, and their Italian texts"_L1}},
        .run = runEnums,
    };
}

Command infoCommand()
{
    return {
        .name = "info"_L1,
        .summary = "Tell what the library is and what it carries"_L1,
        .description = "Its name and version, the version of Qt that runs, the version of the "
                       "database's file format, and how many enumerations, display texts, "
                       "languages and screening files the library holds."_L1,
        .operands = {},
        .options = {},
        .exitCodes = {},
        .examples = {{"info"_L1, "what to add to a report of a problem"_L1},
                     {"info --json"_L1, "the same for scripts"_L1}},
        .run = runInfo,
    };
}

Command validateCommand()
{
    return {
        .name = "validate"_L1,
        .summary = "Check the records of files or databases"_L1,
        .description =
            "Applies the checks of import to files in JSON, and to every record stored in a "
            "database. Which of the two a file is shows in its first bytes.\n"
            "The findings are the command's output. Warnings alone leave the exit code at 0."_L1,
        .operands = {{"FILE|DB"_L1, 1, Operand::kAnyNumber,
                      "files in JSON or databases; \"-\" is the standard input"_L1, kAFile}},
        .options = {},
        .exitCodes = {{ExitCode::Finding, "a record would be refused"_L1}},
        .examples = {{"validate machines.json"_L1, "before an import"_L1},
                     {"validate Printers.tdb --json"_L1, "what is stored already, as JSON"_L1}},
        .run = runValidate,
    };
}

Command verifyCommand()
{
    return {
        .name = "verify"_L1,
        .summary = "Check a database file from its first byte to its last"_L1,
        .description = "Reports every record that a program which opens the database does not get "
                       "to see, with "
                       "its line, its id and the reason, and every stretch of bytes that is "
                       "damaged. Nothing is "
                       "repaired: all other records are sound and can be exported, and recover "
                       "carries them into a new file.\n"
                       "A batch that was never completed, as a crash leaves it, and odd line ends "
                       "lose nothing "
                       "that was stored; they are reported and count as findings."_L1,
        .operands = {{"DB"_L1, 0, 1, "the database; that of --db when left out"_L1, kAFile}},
        .options = {},
        .exitCodes = {{ExitCode::Finding,
                       "records are left out because of their content, or bytes that "
                       "belong to no record lie about"_L1},
                      {ExitCode::Damaged,
                       "the file is damaged, no database, or of a newer format"_L1}},
        .examples = {{"verify"_L1, "check Printers.tdb"_L1},
                     {"verify backup.tdb --json"_L1, "check a copy, for a script"_L1}},
        .run = runVerify,
    };
}

Command helpCommand()
{
    return {
        .name = "help"_L1,
        .summary = "Explain the tool or one of its commands"_L1,
        .description = ""_L1,
        .operands = {{"COMMAND"_L1, 0, 1, "the command to explain"_L1, kACommand}},
        .options = {},
        .exitCodes = {},
        .examples = {{"help"_L1, "all commands"_L1}, {"help import"_L1, "one command"_L1}},
        .run = runHelp,
    };
}

} // namespace

const QList<Command> &commandTable()
{
    static const QList<Command> table =
        QList<Command>{
            importCommand(), listCommand(),     queryCommand(),  showCommand(),
            diffCommand(),   exportCommand(),   removeCommand(), renameCommand(),
            enumsCommand(),  validateCommand(), verifyCommand(), infoCommand(),
        }
        + maintenanceCommands() + QList<Command>{helpCommand()};
    return table;
}

const QList<Option> &globalOptions()
{
    static const QList<Option> options{
        {"--db"_L1, ""_L1, "FILE"_L1, "the database (Printers.tdb when left out)"_L1, kAFile},
        {"--key-file"_L1, ""_L1, "FILE"_L1,
         "the database's key is the content of FILE, without the line end at its end"_L1, kAFile},
        {"--wait"_L1, ""_L1, "SECONDS"_L1,
         "how long to wait for another process that holds the database (10)"_L1},
        {"--lang"_L1, ""_L1, "LANGUAGE"_L1,
         "show values by their texts in this language; C shows the stored names (the "
         "environment's language)"_L1,
         kALanguage},
        {"--json"_L1, ""_L1, ""_L1, "write data and messages as JSON"_L1},
        {"--quiet"_L1, "-q"_L1, ""_L1, "show no progress on the terminal"_L1},
        {"--help"_L1, "-h"_L1, ""_L1, "show this help"_L1},
        {"--version"_L1, ""_L1, ""_L1, "show the tool's version"_L1},
    };
    return options;
}

const QList<ExitMeaning> &exitCodeTable()
{
    static const QList<ExitMeaning> codes{
        {ExitCode::Done, "done"_L1},
        {ExitCode::Finding, "something is wrong with a record, or was not found"_L1},
        {ExitCode::Usage, "the command line cannot be understood"_L1},
        {ExitCode::Io, "a file is missing or could not be read or written"_L1},
        {ExitCode::Damaged, "the database is damaged, no database, or of a newer format"_L1},
        {ExitCode::WrongKey, "the key is wrong or missing"_L1},
        {ExitCode::Locked, "another process holds the database"_L1},
    };
    return codes;
}

const Command *findCommand(const QString &name)
{
    for (const Command &command : commandTable()) {
        if (name == command.name)
            return &command;
    }
    return nullptr;
}

QStringList commandNames()
{
    QStringList names;
    for (const Command &command : commandTable())
        names.append(command.name);
    return names;
}

} // namespace Norvane::Kilnjet::Tool
