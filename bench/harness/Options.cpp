// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Options.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QCoreApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

QStringList parts(const QString &text)
{
    return text.split(u',', Qt::SkipEmptyParts);
}

/// Numbers above zero; an empty list when one is not.
QList<int> numbers(const QString &text)
{
    QList<int> list;
    for (const QString &part : parts(text)) {
        const int number = part.toInt();
        if (number <= 0)
            return {};
        list.append(number);
    }
    return list;
}

QList<Variant> variants(const QString &text)
{
    QList<Variant> list;
    for (const QString &part : parts(text)) {
        const std::optional<Variant> variant = variantFrom(part);
        if (!variant)
            return {};
        list.append(*variant);
    }
    return list;
}

} // namespace

std::optional<Options> optionsFrom(const QCoreApplication &application)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Keeps one catalogue in our database and in those that a host would pick instead."_s);
    parser.addHelpOption();
    parser.addOptions({
        {u"sizes"_s, u"Numbers of drivers, without icons."_s, u"N,..."_s, u"100,1000,10000"_s},
        {u"icon-sizes"_s, u"Numbers of drivers with icons."_s, u"N,..."_s, u"1000"_s},
        {u"variants"_s, u"The catalogues: plain, png, svg."_s, u"NAME,..."_s, u"plain,png,svg"_s},
        {u"stores"_s, u"Only the stores whose names contain one of these."_s, u"NAME,..."_s},
        {u"runs"_s, u"How often each store has its turn at each job."_s, u"N"_s, u"5"_s},
        {u"seed"_s, u"Another one gives other drivers."_s, u"N"_s, u"1"_s},
        {u"output"_s, u"The folder for the results."_s, u"FOLDER"_s, u"."_s},
    });
    parser.process(application);
    Options options;
    options.sizes = numbers(parser.value(u"sizes"_s));
    options.iconSizes = numbers(parser.value(u"icon-sizes"_s));
    options.variants = variants(parser.value(u"variants"_s));
    options.contenders = parts(parser.value(u"stores"_s));
    options.runs = parser.value(u"runs"_s).toInt();
    options.seed = parser.value(u"seed"_s).toUInt();
    options.output = parser.value(u"output"_s);
    if (options.sizes.isEmpty() || options.iconSizes.isEmpty() || options.variants.isEmpty()
        || options.runs <= 0) {
        std::fputs("bench: that makes no sense, see --help\n", stderr);
        return std::nullopt;
    }
    return options;
}

} // namespace Bench
