// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
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

struct DamageText
{
    VDBDamage::Reason reason;
    QLatin1StringView name; ///< In JSON.
    QLatin1StringView text;
};

constexpr DamageText kDamageTexts[] = {
    {VDBDamage::Reason::BadSignature, "badSignature"_L1,
     "the signature of this record does not match its content"_L1},
    {VDBDamage::Reason::NotALine, "notALine"_L1, "these bytes are no line of a database"_L1},
    {VDBDamage::Reason::BadLineEnd, "badLineEnd"_L1,
     "this line does not end as it should; nothing is lost"_L1},
    {VDBDamage::Reason::BadHeader, "badHeader"_L1,
     "one copy of the header is damaged or out of place"_L1},
    {VDBDamage::Reason::BadCommit, "badCommit"_L1,
     "the end of a batch does not match its records"_L1},
    {VDBDamage::Reason::Unfinished, "unfinished"_L1,
     "a batch was never completed; it does not count"_L1},
};

const DamageText &textOf(VDBDamage::Reason reason)
{
    for (const DamageText &text : kDamageTexts) {
        if (text.reason == reason)
            return text;
    }
    return kDamageTexts[1];
}

QJsonObject toJsonObject(const Verdict &verdict)
{
    QJsonArray leftOut;
    for (const StoredRecord &record : verdict.leftOut) {
        leftOut.append(QJsonObject{
            {u"line"_s, record.line}, {u"id"_s, record.id}, {u"reason"_s, record.reason}});
    }
    QJsonArray damage;
    for (const VDBDamage &part : verdict.survey.damage) {
        damage.append(QJsonObject{{u"offset"_s, part.offset},
                                  {u"size"_s, part.size},
                                  {u"line"_s, part.line},
                                  {u"id"_s, part.id},
                                  {u"reason"_s, QString(textOf(part.reason).name)},
                                  {u"harmless"_s, isHarmless(part.reason)}});
    }
    return {{u"file"_s, verdict.file},
            {u"keyed"_s, verdict.survey.isKeyed},
            {u"records"_s, verdict.survey.count},
            {u"leftOut"_s, leftOut},
            {u"damage"_s, damage}};
}

/// "Printers.tdb:12: record {...}: text", safe for a terminal.
QString lineText(const QString &file, qint64 line, const QString &id, const QString &text)
{
    const QString record = id.isEmpty() ? QString() : u" record %1:"_s.arg(id);
    return printable(u"%1:%2:%3 %4"_s.arg(file, QString::number(line), record, text)) + u'\n';
}

QString toText(const Verdict &verdict)
{
    QString text;
    QSet<qint64> named;
    for (const StoredRecord &record : verdict.leftOut) {
        text += lineText(verdict.file, record.line, record.id, u"left out: "_s + record.reason);
        named.insert(record.line);
    }
    for (const VDBDamage &part : verdict.survey.damage) {
        // A left-out record has been named already.
        if (part.reason == VDBDamage::Reason::BadSignature && named.contains(part.line))
            continue;
        const QString place =
            u"offset %1, %2: "_s.arg(QString::number(part.offset), counted(part.size, u"byte"_s));
        text += lineText(verdict.file, part.line, part.id, place + textOf(part.reason).text);
    }
    return text
        + u"%1: %2, %3 left out, %4 damaged\n"_s.arg(
            printable(verdict.file), counted(verdict.survey.count, u"record"_s),
            QString::number(verdict.leftOut.size()),
            counted(verdict.survey.damage.size(), u"place"_s));
}

ExitCode codeOf(const Verdict &verdict)
{
    for (const VDBDamage &part : verdict.survey.damage) {
        if (!isHarmless(part.reason))
            return ExitCode::Damaged;
    }
    const bool clean = verdict.leftOut.isEmpty() && verdict.survey.damage.isEmpty();
    return clean ? ExitCode::Done : ExitCode::Finding;
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
    Verdict verdict{settings.path, {}, {}};
    verdict.survey = visitStore(settings, [&verdict](const StoredRecord &record) {
        if (!record.driver)
            verdict.leftOut.append(record);
    });
    if (console.isJson())
        console.write(toJsonObject(verdict));
    else
        console.write(toText(verdict));
    return codeOf(verdict);
}

} // namespace Norvane::Kilnjet::Tool
