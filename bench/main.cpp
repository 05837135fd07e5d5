// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "harness/Options.h"
#include "harness/Results.h"
#include "harness/Run.h"
#include "harness/Tables.h"
#include "stores/DurableFile.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QJsonDocument>

#include <cstdio>

using namespace Qt::StringLiterals;

// bench [OPTION...]: measures, and leaves results.json and tables.md in the folder --output.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == u"--load-only"_s)
        return Bench::loadAndReport(arguments.value(2), arguments.value(3));
    const std::optional<Bench::Options> options = Bench::optionsFrom(application);
    if (!options)
        return 1;
    Bench::Results results;
    if (!Bench::run(*options, results))
        return 1;
    const QByteArray text = Bench::tables(results).toUtf8();
    std::fputs(text.constData(), stdout);
    const bool isKept = Bench::replaceFile(options->output + u"/tables.md"_s, text)
        && Bench::replaceFile(options->output + u"/results.json"_s,
                              QJsonDocument(results.toJson()).toJson());
    return isKept ? 0 : 1;
}
