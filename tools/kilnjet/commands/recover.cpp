// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "DamageText.h"
#include "Invocation.h"
#include "NewFile.h"
#include "Paths.h"
#include "Progress.h"
#include "Text.h"

#include <vcommon/VDBSalvage.h>

#include <QtCore/QFileInfo>
#include <QtCore/QHash>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using namespace Database;
using Proof = VDBSalvagedRecord::Proof;

/// One record that goes into the new file.
struct Carried
{
    VDBSalvagedRecord found;
    qint64 line = 0; ///< Of the damaged file.
    QString name; ///< The machine's; empty when this program cannot read the record.
    QString reason; ///< Why it cannot.
};

/// One stretch of the damaged file that does not.
struct Lost
{
    VDBDamage damage;
    QString instead; ///< Which version of the record was carried: "none", "older" or "later".

    /// It held no record, or a later version of it is there.
    bool isHarmless() const
    {
        return damage.reason == VDBDamage::Reason::BadHeader
            || damage.reason == VDBDamage::Reason::BadCommit || instead == "later"_L1;
    }
};

struct Outcome
{
    QString file;
    QString newFile;
    bool wasKeyed = false;
    bool isSigned = false; ///< The new file is, and what it holds was checked with the key.
    QList<Carried> carried;
    QList<Lost> lost;
    qsizetype unproven = 0; ///< Damaged records that could be carried all the same.
};

Failure readFailure(const VDBSalvage &salvage, VDBStatus status, const QString &path)
{
    Failure failure = storeFailure(
        {.status = status, .error = salvage.errorString(), .isKeyed = salvage.isKeyed()}, path);
    failure.what = u"cannot recover anything"_s;
    if (status == VDBStatus::NotFound) {
        failure.hint = nearbyFile(path);
    } else if (status == VDBStatus::Empty) {
        failure.hint.clear();
    } else if (status == VDBStatus::NotADatabase || status == VDBStatus::DamagedHeader) {
        failure.why = u"nothing in it is a record of a database"_s;
        failure.hint = u"the file was left as it is"_s;
    }
    return failure;
}

/// Sorts what was found into what is carried and what is not.
Outcome sorted(const VDBSalvage &salvage, bool takesUnproven, Progress &progress)
{
    Outcome outcome;
    QHash<QString, qint64> offsets;
    progress.begin(salvage.count());
    for (qsizetype i = 0; i < salvage.count(); ++i) {
        progress.advance();
        VDBSalvagedRecord found = salvage.record(i);
        const StoredRecord judgement = judgedByContent(found.record);
        if (found.proof == Proof::None) {
            if (!judgement.driver)
                continue;
            ++outcome.unproven;
            if (!takesUnproven)
                continue;
            // Only what the content id vouches for, not what else stands in the line.
            const qint64 offset = found.record.offset();
            found.record = VDBRecord();
            found.record.insert(u"id"_s, judgement.id);
            found.record.insert(u"driver"_s, QString::fromUtf8(judgement.json));
            offsets.insert(found.id, offset);
        } else {
            offsets.insert(found.id, found.record.offset());
        }
        outcome.carried.append({found, judgement.line,
                                judgement.driver ? judgement.driver->name() : QString(),
                                judgement.reason});
    }
    for (const VDBDamage &damage : salvage.damage()) {
        const qint64 offset = damage.id.isEmpty() ? -1 : offsets.value(damage.id, -1);
        if (offset != damage.offset) {
            outcome.lost.append({damage,
                                 offset < 0                   ? u"none"_s
                                     : offset < damage.offset ? u"older"_s
                                                              : u"later"_s});
        }
    }
    return outcome;
}

void refuseToOverwrite(const QString &path)
{
    if (QFileInfo::exists(path) || QFileInfo(path).isSymLink()) {
        throw Failure{.code = ExitCode::Io,
                      .where = path,
                      .what = u"cannot write the file"_s,
                      .why = u"there is one of this name"_s,
                      .hint = u"name a new file; the machines can be merged into another database "
                              "with 'kilnjet restore --merge'"_s};
    }
}

void refuseToMakeNothing(const Outcome &outcome, const VDBSalvage &salvage)
{
    // A sound database without records is recovered as what it is.
    if (!outcome.carried.isEmpty() || (salvage.hasHeader() && outcome.lost.isEmpty()))
        return;
    throw Failure{.code = ExitCode::Damaged,
                  .where = outcome.file,
                  .what = u"cannot recover anything"_s,
                  .why = u"no record in it is sound"_s,
                  .hint = outcome.unproven > 0
                      ? u"--unproven carries %1 whose content id is right"_s.arg(
                          counted(outcome.unproven, u"damaged record"_s))
                      : u"the file was left as it is"_s};
}

/// Makes the new file, and has it read again before it takes its place.
void writeNewFile(const QList<Carried> &carried, const StoreSettings &settings, Console &console)
{
    NewFile fresh(settings.path);
    StoreSettings own = settings;
    own.path = fresh.path();
    QList<VDBRecord> records;
    for (const Carried &one : carried)
        records.append(one.found.record);
    try {
        Catalogue(own, Catalogue::Mode::EditOrCreate, console).commit();
        insertRecords(records, own);
        const StoreSurvey survey = surveyStore(own, Access::Read);
        if (survey.status != VDBStatus::Ok || survey.count != records.size()
            || !survey.damage.isEmpty()) {
            throw Failure{.code = ExitCode::Io,
                          .what = u"cannot write the file"_s,
                          .why = u"what was written cannot be read back"_s,
                          .hint = u"recover to another disk"_s};
        }
    } catch (Failure &failure) {
        failure.where = settings.path; // The user knows the place, not the file beside it.
        throw;
    }
    fresh.takePlace();
}

QString proofName(Proof proof)
{
    switch (proof) {
    case Proof::Code:
        return u"code"_s;
    case Proof::Sum:
        return u"sum"_s;
    case Proof::None:
        break;
    }
    return u"none"_s;
}

QJsonObject toJsonObject(const Outcome &outcome)
{
    QJsonArray carried;
    for (const Carried &one : outcome.carried) {
        carried.append(QJsonObject{{u"id"_s, one.found.id},
                                   {u"name"_s, one.name},
                                   {u"line"_s, one.line},
                                   {u"proof"_s, proofName(one.found.proof)},
                                   {u"unfinished"_s, one.found.isUnfinished},
                                   {u"reason"_s, one.reason}});
    }
    QJsonArray lost;
    for (const Lost &one : outcome.lost) {
        QJsonObject object = damageObject(one.damage);
        object.insert("instead"_L1, one.instead);
        object.insert("harmless"_L1, one.isHarmless());
        lost.append(object);
    }
    return {{u"file"_s, outcome.file},        {u"newFile"_s, outcome.newFile},
            {u"keyed"_s, outcome.wasKeyed},   {u"signed"_s, outcome.isSigned},
            {u"carried"_s, carried},          {u"lost"_s, lost},
            {u"unproven"_s, outcome.unproven}};
}

/// What deserves a line about a record that was carried; empty for one like any other.
QString remarkOn(const Carried &one)
{
    if (one.found.proof == Proof::None)
        return u"carried without proof: its content id is right, its sum is not"_s;
    if (!one.reason.isEmpty())
        return u"carried, but left out by this program: "_s + one.reason;
    if (one.found.isUnfinished)
        return u"carried from a batch that has no end"_s;
    return {};
}

QString toText(const Outcome &outcome)
{
    QString text;
    for (const Carried &one : outcome.carried) {
        if (const QString remark = remarkOn(one); !remark.isEmpty())
            text += placeText(outcome.file, one.line, one.found.id, remark);
    }
    qsizetype lost = 0;
    for (const Lost &one : outcome.lost) {
        QString remark = (one.isHarmless() ? u"no loss: "_s : u"lost: "_s) + extentText(one.damage);
        if (one.instead != "none"_L1)
            remark += u"; %1 version was carried"_s.arg(one.instead == "older"_L1 ? u"an older"_s
                                                                                  : u"a later"_s);
        text += placeText(outcome.file, one.damage.line, one.damage.id, remark);
        lost += one.isHarmless() ? 0 : 1;
    }
    return text
        + u"%1: %2 carried, %3 lost\n"_s.arg(printable(outcome.newFile),
                                             counted(outcome.carried.size(), u"record"_s),
                                             counted(lost, u"place"_s));
}

void warn(const Outcome &outcome, bool takesUnproven, Console &console)
{
    if (outcome.wasKeyed && !outcome.isSigned) {
        console.warn(outcome.file,
                     u"no key was given: only sums were checked, and the new file is not signed"_s,
                     u"--key-file names the file that holds the key"_s);
    }
    if (outcome.unproven > 0 && !takesUnproven) {
        console.warn(outcome.file,
                     u"%1 not carried, although the content id is right"_s.arg(
                         counted(outcome.unproven, u"damaged record"_s)),
                     u"--unproven carries them, too"_s);
    }
}

ExitCode codeOf(const Outcome &outcome)
{
    const bool isWhole = std::all_of(outcome.lost.begin(), outcome.lost.end(),
                                     [](const Lost &one) { return one.isHarmless(); })
        && std::none_of(outcome.carried.begin(), outcome.carried.end(),
                        [](const Carried &one) { return one.found.proof == Proof::None; });
    return isWhole ? ExitCode::Done : ExitCode::Finding;
}

Outcome recover(const QString &damaged, const StoreSettings &settings, bool takesUnproven,
                Console &console)
{
    Progress progress(console, u"recovering "_s + damaged);
    QFile file(damaged);
    VDBSalvage salvage(u"id"_s);
    const VDBStatus status = salvage.read(&file, settings.key, settings.wait);
    if (status != VDBStatus::Ok)
        throw readFailure(salvage, status, damaged);
    Outcome outcome = sorted(salvage, takesUnproven, progress);
    outcome.file = damaged;
    outcome.newFile = settings.path;
    outcome.wasKeyed = salvage.isKeyed();
    outcome.isSigned = !settings.key.isEmpty();
    refuseToMakeNothing(outcome, salvage);
    writeNewFile(outcome.carried, settings, console);
    return outcome;
}

} // namespace

ExitCode runRecover(const Invocation &invocation, Console &console)
{
    StoreSettings settings = StoreSettings::from(invocation);
    const QString damaged = invocation.operands.first();
    const bool takesUnproven = invocation.has("--unproven"_L1);
    settings.path = invocation.operands.last();
    refuseToOverwrite(settings.path);

    const Outcome outcome = recover(damaged, settings, takesUnproven, console);
    warn(outcome, takesUnproven, console);
    if (console.isJson())
        console.write(toJsonObject(outcome));
    else
        console.write(toText(outcome));
    return codeOf(outcome);
}

} // namespace Norvane::Kilnjet::Tool
