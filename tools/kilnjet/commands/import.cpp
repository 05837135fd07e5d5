// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "ChangePlan.h"
#include "CheckedFile.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Progress.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

/// The records of all files; throws a Failure with all findings when one is refused.
QList<VPrinterDriver> acceptedRecords(const QStringList &names, Console &console)
{
    QList<CheckedFile> files;
    for (const QString &name : names) {
        const Progress progress(console, u"checking "_s + name);
        files.append(checkFile(name, RecordFile::readAll(name)));
    }
    findRepeats(files);

    Findings findings;
    QList<VPrinterDriver> drivers;
    for (const CheckedFile &file : files) {
        findings += file.findings;
        for (const AcceptedRecord &accepted : file.accepted)
            drivers.append(accepted.driver);
    }
    const bool refused = hasErrors(findings);
    // In JSON the findings are part of the error.
    if (!refused || !console.isJson()) {
        for (const Finding &finding : findings)
            console.warn(finding);
    }
    if (!refused)
        return drivers;
    throw Failure{.code = ExitCode::Finding,
                  .what = u"nothing was imported"_s,
                  .why = counted(findings.size(), u"finding"_s),
                  .hint = u"mend the records named above, or leave them out"_s,
                  .details = {{u"findings"_s, toJsonArray(findings)}}};
}

void report(const ChangePlan &plan, const QString &path, bool isDryRun, Console &console)
{
    if (console.isJson()) {
        console.write(QJsonObject{{u"added"_s, toJsonArray(plan.added)},
                                  {u"replaced"_s, toJsonArray(plan.replaced)},
                                  {u"unchanged"_s, toJsonArray(plan.unchanged)},
                                  {u"dryRun"_s, isDryRun}});
        return;
    }
    console.write(toText(u"added"_s, plan.added) + toText(u"replaced"_s, plan.replaced)
                  + toText(u"unchanged"_s, plan.unchanged));
    console.write(u"%1: %2 added, %3 replaced, %4 unchanged%5\n"_s.arg(
        printable(path), QString::number(plan.added.size()), QString::number(plan.replaced.size()),
        QString::number(plan.unchanged.size()), isDryRun ? u" (nothing was stored)"_s : QString()));
}

} // namespace

ExitCode runImport(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    refuseRepeatedInput(invocation);
    const QList<VPrinterDriver> drivers = acceptedRecords(invocation.operands, console);
    const bool isDryRun = invocation.has("--dry-run"_L1);
    Catalogue catalogue(
        settings, isDryRun ? Catalogue::Mode::ReadIfThere : Catalogue::Mode::EditOrCreate, console);
    const ChangePlan plan = ChangePlan::of(drivers, catalogue.database());
    if (!isDryRun) {
        catalogue.database().insert(plan.added + plan.replaced);
        catalogue.commit();
    }
    report(plan, settings.path, isDryRun, console);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
