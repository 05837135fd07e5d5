// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "Console.h"
#include "DisplayTexts.h"
#include "Invocation.h"
#include "Nearest.h"
#include "Text.h"

#include <vcore/VEnumRegistry.h>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

QString kindOf(const IVEnum &enumeration)
{
    return enumeration.isFlags() ? u"flags"_s : u"plain"_s;
}

ExitCode listEnums(Console &console)
{
    QJsonArray array;
    TextTable table;
    table.addColumn(u"NAME"_s);
    table.addColumn(u"KIND"_s);
    table.addColumn(u"VALUES"_s, TextTable::Align::Right);
    for (const QString &name : VEnumRegistry::names()) {
        const IVEnum *enumeration = VEnumRegistry::find(name);
        if (enumeration == nullptr)
            continue;
        const auto count = enumeration->names().numbers().size();
        table.addRow({name, kindOf(*enumeration), QString::number(count)});
        array.append(QJsonObject{
            {u"name"_s, name}, {u"flags"_s, enumeration->isFlags()}, {u"count"_s, count}});
    }
    if (console.isJson())
        console.write(array);
    else
        console.write(table.toString());
    return ExitCode::Done;
}

/// The enumeration called `name`, in whatever case.
const IVEnum &findEnum(const QString &name)
{
    if (const IVEnum *enumeration = VEnumRegistry::find(name))
        return *enumeration;
    const QStringList names = VEnumRegistry::names();
    for (const QString &candidate : names) {
        const bool same = candidate.compare(name, Qt::CaseInsensitive) == 0;
        if (const IVEnum *enumeration = same ? VEnumRegistry::find(candidate) : nullptr)
            return *enumeration;
    }
    QString hint = suggestion(name, names);
    if (hint.isEmpty())
        hint = u"'kilnjet enums' lists them"_s;
    throw Failure{.code = ExitCode::Finding,
                  .where = name,
                  .what = u"there is no such enumeration"_s,
                  .hint = hint};
}

QString numberText(const IVEnum &enumeration, qint64 number)
{
    const QString decimal = QString::number(number);
    return enumeration.isFlags() ? u"%1 (0x%2)"_s.arg(decimal, QString::number(number, 16))
                                 : decimal;
}

/// "macOS (also read: OSX)": the written name and the others.
QString namesText(const QStringList &names)
{
    return names.size() == 1
        ? names.first()
        : u"%1 (also read: %2)"_s.arg(names.first(), names.sliced(1).join(u", "_s));
}

void writeTable(const IVEnum &enumeration, const DisplayTexts &texts, Console &console)
{
    const bool hasTexts = texts.has(enumeration.name());
    TextTable table;
    table.addColumn(u"NUMBER"_s, TextTable::Align::Right);
    table.addColumn(u"NAME"_s);
    if (hasTexts)
        table.addColumn(u"TEXT"_s);
    for (const qint64 number : enumeration.names().numbers()) {
        const QStringList names = enumeration.names().names(number);
        QStringList cells{numberText(enumeration, number), namesText(names)};
        if (hasTexts)
            cells.append(texts.text(enumeration.name(), names.first()));
        table.addRow(cells);
    }
    console.write(table.toString());
}

void writeJson(const IVEnum &enumeration, const DisplayTexts &texts, Console &console)
{
    QJsonArray values;
    for (const qint64 number : enumeration.names().numbers()) {
        const QStringList names = enumeration.names().names(number);
        QJsonObject value{{u"number"_s, number},
                          {u"name"_s, names.first()},
                          {u"aliases"_s, QJsonArray::fromStringList(names.sliced(1))}};
        if (texts.has(enumeration.name()))
            value.insert("text"_L1, texts.text(enumeration.name(), names.first()));
        values.append(value);
    }
    console.write(QJsonObject{{u"name"_s, enumeration.name()},
                              {u"flags"_s, enumeration.isFlags()},
                              {u"values"_s, values}});
}

} // namespace

ExitCode runEnums(const Invocation &invocation, Console &console)
{
    if (invocation.operands.isEmpty())
        return listEnums(console);
    const IVEnum &enumeration = findEnum(invocation.operands.first());
    if (console.isJson())
        writeJson(enumeration, DisplayTexts::asked(invocation), console);
    else
        writeTable(enumeration, DisplayTexts::from(invocation), console);
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
