// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "Console.h"
#include "DamageText.h"
#include "Invocation.h"
#include "Progress.h"
#include "Store.h"
#include "Text.h"

#include <QtCore/QSet>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Database::VDBDamage;

/// What a verification found.
struct Verdict
{
    QString file;
    StoreSurvey survey;
    QList<StoredRecord> leftOut;
};

QJsonObject toJsonObject(const Verdict &verdict)
{
    QJsonArray leftOut;
    for (const StoredRecord &record : verdict.leftOut) {
        leftOut.append(QJsonObject{
            {u"line"_s, record.line}, {u"id"_s, record.id}, {u"reason"_s, record.reason}});
    }
    QJsonArray damage;
    for (const VDBDamage &part : verdict.survey.damage) {
        QJsonObject object = damageObject(part);
        object.insert("harmless"_L1, isHarmless(part.reason));
        damage.append(object);
    }
    return {{u"file"_s, verdict.file},
            {u"keyed"_s, verdict.survey.isKeyed},
            {u"records"_s, verdict.survey.count},
            {u"leftOut"_s, leftOut},
            {u"damage"_s, damage}};
}

QString toText(const Verdict &verdict)
{
    QString text;
    QSet<qint64> named;
    for (const StoredRecord &record : verdict.leftOut) {
        text += placeText(verdict.file, record.line, record.id, u"left out: "_s + record.reason);
        named.insert(record.line);
    }
    for (const VDBDamage &part : verdict.survey.damage) {
        // A left-out record has been named already.
        if (part.reason == VDBDamage::Reason::BadSignature && named.contains(part.line))
            continue;
        text += placeText(verdict.file, part.line, part.id, extentText(part));
    }
    return text
        + u"%1: %2, %3 left out, %4 damaged\n"_s.arg(
            printable(verdict.file), counted(verdict.survey.count, u"record"_s),
            QString::number(verdict.leftOut.size()),
            counted(verdict.survey.damage.size(), u"place"_s));
}

ExitCode codeOf(const Verdict &verdict)
{
    if (isDamaged(verdict.survey))
        return ExitCode::Damaged;
    const bool clean = verdict.leftOut.isEmpty() && verdict.survey.damage.isEmpty();
    return clean ? ExitCode::Done : ExitCode::Finding;
}

Verdict verify(const StoreSettings &settings, Console &console)
{
    Progress progress(console, u"verifying "_s + settings.path);
    Verdict verdict{settings.path, {}, {}};
    verdict.survey = visitStore(settings, progress, [&verdict](const StoredRecord &record) {
        if (!record.driver)
            verdict.leftOut.append(record);
    });
    return verdict;
}

} // namespace

ExitCode runVerify(const Invocation &invocation, Console &console)
{
    StoreSettings settings = StoreSettings::from(invocation);
    if (!invocation.operands.isEmpty()) {
        if (invocation.has("--db"_L1)) {
            throw Failure{.code = ExitCode::Usage,
                          .where = u"verify"_s,
                          .what = u"the database is named twice, by --db and by an operand"_s};
        }
        settings.path = invocation.operands.first();
    }
    const Verdict verdict = verify(settings, console);
    if (console.isJson())
        console.write(toJsonObject(verdict));
    else
        console.write(toText(verdict));
    if (isDamaged(verdict.survey)) {
        console.warn(settings.path, u"parts of the file are damaged"_s,
                     wayOutOfDamage(settings.path));
    }
    return codeOf(verdict);
}

} // namespace Norvane::Kilnjet::Tool
