// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "ChangePlan.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Paths.h"
#include "Progress.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Database::VDBStatus;

/// What was asked for.
struct Request
{
    StoreSettings backup;
    bool isMerge = false;
    bool isDryRun = false;
    bool takesAnyKey = false;
    bool takesEmpty = false;

    /// The refusal of a backup from which a restore would remove what is worth keeping.
    Failure refusal(ExitCode code, const QString &why, const QString &hint) const
    {
        return {.code = code,
                .where = backup.path,
                .what = u"nothing was restored"_s,
                .why = why,
                .hint = hint};
    }
};

Failure backupFailure(const StoreSurvey &survey, const QString &path)
{
    Failure failure = storeFailure(survey, path);
    failure.what = u"cannot read the backup"_s;
    const QString near = nearbyFile(path);
    if (survey.status == VDBStatus::NotFound)
        failure.hint =
            near.isEmpty() ? u"name the backup's file, or the folder that holds it"_s : near;
    else if (survey.status == VDBStatus::Empty)
        failure.hint = u"it is no backup; nothing was changed"_s;
    else if (survey.status == VDBStatus::WrongKey)
        failure.hint += u"; --any-key takes it all the same, checking its sums only"_s;
    return failure;
}

/// The settings with the key with which the backup can be read; throws a Failure when it cannot.
StoreSettings readable(const Request &request, Console &console)
{
    const Progress progress(console, u"opening "_s + request.backup.path);
    StoreSettings settings = request.backup;
    StoreSurvey survey = surveyStore(settings, Access::Read);
    if (survey.status == VDBStatus::WrongKey && request.takesAnyKey) {
        settings.key.clear();
        survey = surveyStore(settings, Access::Read);
        console.warn(settings.path,
                     u"the backup was not made with this key; only its sums were checked"_s);
    }
    if (survey.status != VDBStatus::Ok)
        throw backupFailure(survey, settings.path);
    return settings;
}

/// The machines of the backup. One that is not whole is only good for adding to what there is.
QList<VPrinterDriver> machinesOf(const Request &request, Console &console)
{
    Catalogue backup(readable(request, console), Catalogue::Mode::Read, console);
    const QList<VPrinterDriver> all = backup.machines();
    const QList<VPrinterDriver> valid = validAmong(all);
    const qsizetype unusable = backup.leftOut() + all.size() - valid.size();
    if (request.isMerge)
        return valid;
    if (isDamaged(backup.survey()) || unusable > 0) {
        throw request.refusal(
            ExitCode::Damaged,
            unusable > 0 ? u"%1 of the backup cannot be used, and what it stands for would be "
                           "removed"_s.arg(counted(unusable, u"record"_s))
                         : u"parts of the backup are damaged, and what stood there would be "
                           "removed"_s,
            u"--merge takes what is sound and removes nothing; 'kilnjet recover' saves more"_s);
    }
    return valid;
}

void report(const ChangePlan &plan, const QString &path, const Request &request, Console &console)
{
    const QList<VPrinterDriver> removed = request.isMerge ? QList<VPrinterDriver>() : plan.extra;
    if (console.isJson()) {
        console.write(QJsonObject{{u"added"_s, toJsonArray(plan.added)},
                                  {u"replaced"_s, toJsonArray(plan.replaced)},
                                  {u"removed"_s, toJsonArray(removed)},
                                  {u"unchanged"_s, toJsonArray(plan.unchanged)},
                                  {u"dryRun"_s, request.isDryRun}});
        return;
    }
    console.write(toText(u"added"_s, plan.added) + toText(u"replaced"_s, plan.replaced)
                  + toText(u"removed"_s, removed));
    console.write(u"%1: %2 added, %3 replaced, %4 removed, %5 unchanged%6\n"_s.arg(
        printable(path), QString::number(plan.added.size()), QString::number(plan.replaced.size()),
        QString::number(removed.size()), QString::number(plan.unchanged.size()),
        request.isDryRun ? u" (nothing was stored)"_s : QString()));
}

} // namespace

ExitCode runRestore(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    Request request{settings, invocation.has("--merge"_L1), invocation.has("--dry-run"_L1),
                    invocation.has("--any-key"_L1), invocation.has("--allow-empty"_L1)};
    request.backup.path = fileMeantBy(invocation.operands.first(), settings.path);
    refuseDatabase(request.backup.path, settings.path);
    const QList<VPrinterDriver> machines = machinesOf(request, console);
    Catalogue catalogue(
        settings, request.isDryRun ? Catalogue::Mode::ReadIfThere : Catalogue::Mode::EditOrCreate,
        console);
    const ChangePlan plan = ChangePlan::of(machines, catalogue.database());
    if (machines.isEmpty() && !request.isMerge && !request.takesEmpty && !plan.extra.isEmpty()) {
        throw request.refusal(ExitCode::Finding,
                              u"the backup holds no machine, and all of the database's would be "
                              "removed"_s,
                              u"--allow-empty removes them all the same"_s);
    }
    if (!request.isDryRun) {
        // One commit: the file is as it was, or holds the backup's machines.
        if (!request.isMerge)
            catalogue.database().removes(plan.extra);
        catalogue.database().insert(plan.added + plan.replaced);
        catalogue.commit();
    }
    report(plan, settings.path, request, console);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
