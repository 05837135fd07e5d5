// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DamageText.h"

#include "Text.h"

#include <algorithm>
#include <iterator>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Database::VDBDamage;

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

const DamageText &entryFor(VDBDamage::Reason reason)
{
    const auto entry = std::find_if(std::begin(kDamageTexts), std::end(kDamageTexts),
                                    [=](const DamageText &one) { return one.reason == reason; });
    return entry == std::end(kDamageTexts) ? kDamageTexts[1] : *entry;
}

} // namespace

QString damageText(VDBDamage::Reason reason)
{
    return entryFor(reason).text;
}

QJsonObject damageObject(const VDBDamage &damage)
{
    return {{u"offset"_s, damage.offset},
            {u"size"_s, damage.size},
            {u"line"_s, damage.line},
            {u"id"_s, damage.id},
            {u"reason"_s, QString(entryFor(damage.reason).name)}};
}

QString placeText(const QString &file, qint64 line, const QString &id, const QString &text)
{
    const QString record = id.isEmpty() ? QString() : u" record %1:"_s.arg(id);
    return printable(u"%1:%2:%3 %4"_s.arg(file, QString::number(line), record, text)) + u'\n';
}

QString extentText(const VDBDamage &damage)
{
    return u"offset %1, %2: %3"_s.arg(QString::number(damage.offset),
                                      counted(damage.size, u"byte"_s), damageText(damage.reason));
}

} // namespace Norvane::Kilnjet::Tool
