// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "CheckedFile.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Progress.h"
#include "Store.h"
#include "Text.h"

#include <QtCore/QJsonDocument>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// What the check of one operand gave.
struct Outcome
{
    QString file;
    QString kind; ///< "records" or "database".
    qsizetype count = 0; ///< How many records there are.
    Findings findings;
};

Outcome validateRecords(const QString &name, const QByteArray &text)
{
    QList<CheckedFile> files{checkFile(name, text)};
    findRepeats(files);
    const CheckedFile &file = files.constFirst();
    return {file.source.name(), u"records"_s, file.source.records().size(), file.findings};
}

Outcome validateStore(StoreSettings settings, const QString &name, Progress &progress)
{
    settings.path = name;
    Outcome outcome{name, u"database"_s, 0, {}};
    const auto visit = [&outcome, &name](const StoredRecord &record) {
        Findings findings;
        if (record.driver)
            findings = checkRecord(QJsonDocument::fromJson(record.json).object()).findings;
        else
            findings = {{.reason = u"the record is left out: "_s + record.reason}};
        for (Finding &finding : findings) {
            finding.file = name;
            finding.line = record.line;
            finding.record = record.id;
        }
        outcome.findings += findings;
    };
    outcome.count = visitStore(settings, progress, visit).count;
    return outcome;
}

void report(const QList<Outcome> &outcomes, Console &console)
{
    QJsonArray files;
    for (const Outcome &outcome : outcomes) {
        const auto errors = countErrors(outcome.findings);
        files.append(QJsonObject{{u"file"_s, outcome.file},
                                 {u"kind"_s, outcome.kind},
                                 {u"records"_s, outcome.count},
                                 {u"findings"_s, toJsonArray(outcome.findings)}});
        if (console.isJson())
            continue;
        for (const Finding &finding : outcome.findings)
            console.write(finding.toString() + u'\n');
        console.write(u"%1: %2, %3, %4\n"_s.arg(
            printable(outcome.file), counted(outcome.count, u"record"_s),
            counted(errors, u"error"_s), counted(outcome.findings.size() - errors, u"warning"_s)));
    }
    if (console.isJson())
        console.write(QJsonObject{{u"files"_s, files}});
}

} // namespace

ExitCode runValidate(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    refuseRepeatedInput(invocation);
    QList<Outcome> outcomes;
    ExitCode code = ExitCode::Done;
    for (const QString &name : invocation.operands) {
        Progress progress(console, u"validating "_s + name);
        const QByteArray text = RecordFile::readAll(name);
        const bool stored = !RecordFile::isStandardInput(name) && isStore(text);
        outcomes.append(stored ? validateStore(settings, name, progress)
                               : validateRecords(name, text));
        if (hasErrors(outcomes.constLast().findings))
            code = ExitCode::Finding;
    }
    report(outcomes, console);
    return code;
}

} // namespace Norvane::Kilnjet::Tool
