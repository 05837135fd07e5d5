// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Finding.h"

#include "Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

QString Finding::toString() const
{
    QString text = file;
    if (line > 0)
        text += u":%1"_s.arg(line);
    for (const QString &part : {record, pointer}) {
        if (!part.isEmpty())
            text += u": "_s + part;
    }
    text += severity == Severity::Warning ? u": warning: "_s : u": "_s;
    text += reason;
    if (!hint.isEmpty())
        text += u"; "_s + hint;
    return printable(text);
}

QJsonObject Finding::toJsonObject() const
{
    QJsonObject object{{u"severity"_s, severity == Severity::Error ? u"error"_s : u"warning"_s},
                       {u"file"_s, file},
                       {u"pointer"_s, pointer},
                       {u"reason"_s, reason}};
    if (line > 0)
        object.insert("line"_L1, line);
    if (!record.isEmpty())
        object.insert("record"_L1, record);
    if (!hint.isEmpty())
        object.insert("hint"_L1, hint);
    return object;
}

qsizetype countErrors(const Findings &findings)
{
    return std::count_if(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.severity == Severity::Error;
    });
}

QJsonArray toJsonArray(const Findings &findings)
{
    QJsonArray array;
    for (const Finding &finding : findings)
        array.append(finding.toJsonObject());
    return array;
}

} // namespace Norvane::Kilnjet::Tool
