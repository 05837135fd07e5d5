// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Selection.h"

#include "Failure.h"
#include "Nearest.h"
#include "Text.h"

#include <QtCore/QJsonArray>

#include <algorithm>
#include <functional>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Predicate = std::function<bool(const VPrinterDriver &machine)>;

constexpr qsizetype kShortestPrefix = 4;

/// The digits of an id, without braces and dashes; empty when `text` is no part of an id.
QString digitsOf(const QString &text)
{
    QString digits;
    for (const QChar c : text.toLower()) {
        if ((c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'f'))
            digits += c;
        else if (c != u'-' && c != u'{' && c != u'}')
            return {};
    }
    return digits;
}

Failure ambiguous(const QString &text, const QList<VPrinterDriver> &fitting)
{
    QStringList candidates;
    QJsonArray list;
    for (const VPrinterDriver &machine : fitting) {
        const QString id = machine.dataId().toString();
        candidates.append(u"%1 %2"_s.arg(id, quoted(machine.name())));
        list.append(QJsonObject{{u"id"_s, id}, {u"name"_s, machine.name()}});
    }
    return {.code = ExitCode::Finding,
            .where = text,
            .what = u"this fits %1"_s.arg(counted(fitting.size(), u"machine"_s)),
            .why = candidates.join(u", "_s),
            .hint = u"use the id"_s,
            .details = {{u"candidates"_s, list}}};
}

Failure notFound(const QString &text, const QList<VPrinterDriver> &machines)
{
    QStringList names;
    for (const VPrinterDriver &machine : machines)
        names.append(machine.name());
    QString hint = suggestion(text, names);
    // Or the text is a part of the name.
    const QStringList longer = names.filter(text, Qt::CaseInsensitive);
    if (hint.isEmpty() && !text.isEmpty() && !longer.isEmpty())
        hint = u"did you mean %1?"_s.arg(quoted(longer.first()));
    if (hint.isEmpty())
        hint = u"'kilnjet list' shows the machines"_s;
    return {.code = ExitCode::Finding,
            .where = text,
            .what = u"there is no such machine"_s,
            .hint = hint};
}

} // namespace

VPrinterDriver selectMachine(const QList<VPrinterDriver> &machines, const QString &text)
{
    const QString digits = digitsOf(text);
    const QUuid id(digits.size() == 32 ? text : QString());
    const Predicate predicates[] = {
        [&](const VPrinterDriver &machine) { return !id.isNull() && machine.dataId() == id; },
        [&](const VPrinterDriver &machine) { return machine.name() == text; },
        [&](const VPrinterDriver &machine) {
            return machine.name().compare(text, Qt::CaseInsensitive) == 0;
        },
        [&](const VPrinterDriver &machine) {
            return digits.size() >= kShortestPrefix
                && digitsOf(machine.dataId().toString()).startsWith(digits);
        },
    };
    for (const Predicate &predicate : predicates) {
        QList<VPrinterDriver> fitting;
        std::copy_if(machines.begin(), machines.end(), std::back_inserter(fitting), predicate);
        if (fitting.size() == 1)
            return fitting.first();
        if (fitting.size() > 1)
            throw ambiguous(text, fitting);
    }
    throw notFound(text, machines);
}

QList<VPrinterDriver> selectMachines(const QList<VPrinterDriver> &machines,
                                     const QStringList &texts)
{
    QList<VPrinterDriver> selected;
    for (const QString &text : texts) {
        const VPrinterDriver machine = selectMachine(machines, text);
        const bool known =
            std::any_of(selected.begin(), selected.end(), [&](const VPrinterDriver &other) {
                return other.dataId() == machine.dataId();
            });
        if (!known)
            selected.append(machine);
    }
    return selected;
}

} // namespace Norvane::Kilnjet::Tool
