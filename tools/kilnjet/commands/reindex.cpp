// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"
#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Text.h"

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

ExitCode runReindex(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    // The index is in memory only, so that reading is enough to build it.
    Catalogue catalogue(settings, Catalogue::Mode::Read, console);
    if (!catalogue.database().reindex()) {
        Failure failure = storeFailure(surveyStore(settings, Access::Read), settings.path);
        failure.what = u"cannot index the database"_s;
        throw failure;
    }
    const qsizetype records = catalogue.survey().count;
    const int machines = catalogue.database().count();
    if (console.isJson()) {
        console.write(QJsonObject{
            {u"file"_s, settings.path}, {u"records"_s, records}, {u"machines"_s, machines}});
    } else {
        console.write(u"%1: %2, %3\n"_s.arg(printable(settings.path), counted(records, u"record"_s),
                                            counted(machines, u"machine"_s)));
    }
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
