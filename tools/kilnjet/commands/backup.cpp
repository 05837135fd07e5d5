// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "ChangePlan.h"
#include "Commands.h"
#include "Console.h"
#include "CopyCheck.h"
#include "Invocation.h"
#include "NewFile.h"
#include "Paths.h"
#include "Progress.h"
#include "Text.h"

#include <optional>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Database::VDBStatus;

/// What was asked for, and where the copy goes.
struct Request
{
    StoreSettings copy; ///< Its path is the copy's place.
    bool isReplacement = false; ///< Nothing of an older file stays.
    bool isVerified = false;
};

/// What stands at the copy's place is a database that we may change, or nothing yet.
bool hasOlderCopy(const StoreSettings &copy, Console &console)
{
    const Progress progress(console, u"opening "_s + copy.path);
    const StoreSurvey survey = surveyStore(copy, Access::Write);
    if (survey.status == VDBStatus::NotFound || survey.status == VDBStatus::Empty)
        return false;
    if (survey.status == VDBStatus::Ok)
        return true;
    Failure failure = storeFailure(survey, copy.path);
    failure.what = u"cannot copy over this file"_s;
    failure.hint = u"it was left as it is; name another file"_s;
    throw failure;
}

/// Stores the machines in the database at `settings`, and compares when that was asked for.
ChangePlan store(const QList<VPrinterDriver> &machines, const StoreSettings &settings,
                 const Request &request, Console &console)
{
    try {
        Catalogue copy(settings, Catalogue::Mode::EditOrCreate, console);
        const ChangePlan plan = ChangePlan::of(machines, copy.database());
        copy.database().insert(plan.added + plan.replaced);
        copy.commit();
        if (request.isVerified) {
            Progress progress(console, u"comparing "_s + request.copy.path);
            verifyCopy(machines, settings, progress);
        }
        return plan;
    } catch (Failure &failure) {
        // The user knows the place, not the file beside it.
        failure.where = request.copy.path;
        throw;
    }
}

ChangePlan copyTo(const Request &request, const QList<VPrinterDriver> &machines, Console &console)
{
    if (hasOlderCopy(request.copy, console) && !request.isReplacement)
        return store(machines, request.copy, request, console);
    NewFile fresh(request.copy.path);
    StoreSettings settings = request.copy;
    settings.path = fresh.path();
    const ChangePlan plan = store(machines, settings, request, console);
    fresh.takePlace();
    return plan;
}

/// Says what is not in the copy although it is in the database, or the other way round; true when
/// something is missing.
bool warnOfGaps(Catalogue &catalogue, qsizetype invalid, const ChangePlan &plan,
                const StoreSettings &copy, Console &console)
{
    if (invalid > 0) {
        console.warn(catalogue.path(),
                     u"%1 not copied, because a database keeps valid ones only"_s.arg(
                         counted(invalid, u"machine"_s)),
                     u"'kilnjet validate %1' tells why"_s.arg(catalogue.path()));
    }
    if (!plan.extra.isEmpty()) {
        console.warn(copy.path,
                     u"%1 of an older copy kept, which the database does not have"_s.arg(
                         counted(plan.extra.size(), u"machine"_s)),
                     u"--replace makes a copy without them"_s);
    }
    if (catalogue.survey().isKeyed && copy.key.isEmpty()) {
        console.warn(copy.path, u"the copy is not signed, because no key was given"_s,
                     u"--key-file names the file that holds the database's key"_s);
    }
    return invalid > 0 || catalogue.leftOut() > 0;
}

void report(const Request &request, const ChangePlan &plan, Console &console)
{
    const auto count = plan.added.size() + plan.replaced.size() + plan.unchanged.size();
    if (console.isJson()) {
        console.write(QJsonObject{{u"file"_s, request.copy.path},
                                  {u"machines"_s, count},
                                  {u"added"_s, toJsonArray(plan.added)},
                                  {u"replaced"_s, toJsonArray(plan.replaced)},
                                  {u"unchanged"_s, toJsonArray(plan.unchanged)},
                                  {u"extra"_s, toJsonArray(plan.extra)},
                                  {u"verified"_s, request.isVerified}});
        return;
    }
    console.write(u"%1: %2 (%3 added, %4 replaced, %5 unchanged)%6\n"_s.arg(
        printable(request.copy.path), counted(count, u"machine"_s),
        QString::number(plan.added.size()), QString::number(plan.replaced.size()),
        QString::number(plan.unchanged.size()), request.isVerified ? u", verified"_s : QString()));
}

} // namespace

ExitCode runBackup(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    Request request{settings, invocation.has("--replace"_L1), invocation.has("--verify"_L1)};
    request.copy.path = fileMeantBy(invocation.operands.first(), settings.path);
    refuseDatabase(request.copy.path, settings.path);
    // Opened for reading, so that nothing can happen to the original.
    Catalogue catalogue(settings, Catalogue::Mode::Read, console);
    const QList<VPrinterDriver> all = catalogue.database().values();
    const QList<VPrinterDriver> machines = validAmong(all);
    const ChangePlan plan = copyTo(request, machines, console);
    const bool hasGaps =
        warnOfGaps(catalogue, all.size() - machines.size(), plan, request.copy, console);
    report(request, plan, console);
    return hasGaps ? ExitCode::Finding : ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
