// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Commands.h"
#include "Console.h"
#include "Invocation.h"
#include "Progress.h"
#include "Store.h"
#include "Text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

void warnOfDamage(const QString &path, const StoreSurvey &survey, Console &console)
{
    if (isDamaged(survey)) {
        console.warn(path, u"parts of the file are damaged; they were carried over as they are"_s,
                     u"'kilnjet verify %1' tells more"_s.arg(path));
    }
    const auto dropped =
        std::count_if(survey.damage.begin(), survey.damage.end(), [](const auto &part) {
            return part.reason == Database::VDBDamage::Reason::Unfinished;
        });
    if (dropped > 0) {
        console.warn(
            path,
            u"dropped %1 of a batch that was never completed"_s.arg(counted(dropped, u"line"_s)));
    }
}

} // namespace

ExitCode runPurge(const Invocation &invocation, Console &console)
{
    const StoreSettings settings = StoreSettings::from(invocation);
    const Compaction done = [&] {
        const Progress progress(console, u"compacting "_s + settings.path);
        return compactStore(settings);
    }();
    warnOfDamage(settings.path, done.survey, console);
    if (console.isJson()) {
        console.write(QJsonObject{{u"file"_s, settings.path},
                                  {u"records"_s, done.survey.count},
                                  {u"bytesBefore"_s, done.sizeBefore},
                                  {u"bytesAfter"_s, done.sizeAfter}});
    } else {
        console.write(u"%1: %2, %3 before, %4 after\n"_s.arg(
            printable(settings.path), counted(done.survey.count, u"record"_s),
            counted(done.sizeBefore, u"byte"_s), counted(done.sizeAfter, u"byte"_s)));
    }
    return ExitCode::Done;
}

} // namespace Norvane::Kilnjet::Tool
