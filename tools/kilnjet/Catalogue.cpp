// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Catalogue.h"

#include "Progress.h"
#include "Text.h"

#include <vcore/VParallel.h>

#include <QtCore/QFileInfo>

#include <algorithm>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace Norvane::Kilnjet::Tool {

namespace {

using Database::VDBStatus;

bool isAbsent(VDBStatus status)
{
    return status == VDBStatus::NotFound || status == VDBStatus::Empty;
}

/// The failure of a database that could not be created.
Failure creationFailure(const QString &path)
{
    Failure failure{.code = ExitCode::Io, .where = path, .what = u"cannot create the database"_s};
    const QFileInfo folder(QFileInfo(path).absolutePath());
    if (!folder.isDir())
        failure.why = u"there is no folder %1"_s.arg(quoted(folder.filePath()));
    else if (!folder.isWritable())
        failure.why = u"the folder %1 cannot be written to"_s.arg(quoted(folder.filePath()));
    else
        failure.why = u"the system refused it"_s;
    return failure;
}

} // namespace

QList<VPrinterDriver> byName(const QList<VPrinterDriver> &machines)
{
    // The first look at a machine that was loaded decodes it, which all cores can share.
    constexpr std::size_t kWorthAThread = 64;
    std::vector<std::pair<QString, qsizetype>> names(std::size_t(machines.size()));
    parallelFor(names.size(), kWorthAThread, [&](std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i)
            names[i] = {machines.at(qsizetype(i)).name(), qsizetype(i)};
    });
    std::stable_sort(names.begin(), names.end(), [](const auto &a, const auto &b) {
        return a.first.compare(b.first, Qt::CaseInsensitive) < 0;
    });
    QList<VPrinterDriver> sorted;
    sorted.reserve(machines.size());
    for (const auto &[name, place] : names)
        sorted.append(machines.at(place));
    return sorted;
}

void warnOfLosses(const StoreSurvey &survey, qsizetype leftOut, const QString &path,
                  Console &console)
{
    const QString hint = u"'kilnjet verify %1' tells more"_s.arg(path);
    if (leftOut > 0) {
        console.warn(path,
                     u"%1 left out, because it cannot be read"_s.arg(counted(leftOut, u"record"_s)),
                     hint);
    } else if (isDamaged(survey)) {
        console.warn(path, u"parts of the file are damaged"_s, hint);
    }
}

Catalogue::Catalogue(const StoreSettings &settings, Mode mode, Console &console)
    : m_console(console)
    , m_settings(settings)
    , m_mode(mode)
    , m_file(settings.path)
{
    const Progress progress(console, u"loading "_s + settings.path);
    const bool edits = mode == Mode::Edit || mode == Mode::EditOrCreate;
    m_survey = surveyStore(settings, edits ? Access::Write : Access::Read);
    const bool mayBeAbsent = mode == Mode::EditOrCreate || mode == Mode::ReadIfThere;
    if (m_survey.status != VDBStatus::Ok && !(mayBeAbsent && isAbsent(m_survey.status)))
        throw storeFailure(m_survey, settings.path);
    load();
}

void Catalogue::load()
{
    if (m_mode == Mode::Edit || m_mode == Mode::EditOrCreate) {
        m_database = std::make_unique<VPrintersDb>(m_settings.path, m_settings.key);
    } else if (isAbsent(m_survey.status)) {
        // Never loaded, so it stays empty and touches no file.
        m_database = std::make_unique<VPrintersDb>(static_cast<QIODevice *>(nullptr), QString());
        return;
    } else {
        if (!m_file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
            throw storeFailure({.status = VDBStatus::Io, .error = m_file.errorString()},
                               m_settings.path);
        m_database = std::make_unique<VPrintersDb>(&m_file, m_settings.key);
    }
    m_database->init(false);
    if (m_database->isNull()) {
        const StoreSurvey again = surveyStore(m_settings, Access::Read);
        if (isAbsent(again.status))
            throw creationFailure(m_settings.path);
        throw storeFailure(again, m_settings.path);
    }
    m_leftOut = m_survey.count - m_database->count();
    warnOfLosses(m_survey, m_leftOut, m_settings.path, m_console);
}

QList<VPrinterDriver> Catalogue::machines()
{
    return byName(m_database->values());
}

void Catalogue::commit()
{
    const Progress progress(m_console, u"writing "_s + m_settings.path);
    bool isCommitted = false;
    QObject::connect(m_database.get(), &VPrintersDb::committed, [&] { isCommitted = true; });
    const bool isDirty = m_database->isDirty();
    m_database->commit();
    // Its destructor tries once more, so the outcome is known only behind it.
    m_database.reset();
    if (isCommitted || !isDirty)
        return;
    const StoreSurvey survey = surveyStore(m_settings, Access::Write);
    Failure failure = storeFailure(survey, m_settings.path);
    failure.what = u"cannot write the changes"_s;
    throw failure;
}

} // namespace Norvane::Kilnjet::Tool
