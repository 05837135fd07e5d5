// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Run.h"

#include "Jobs.h"
#include "Machine.h"
#include "stores/DriverText.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDir>
#include <QtCore/QDirIterator>
#include <QtCore/QTemporaryDir>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

using Contenders = std::vector<std::unique_ptr<Contender>>;

bool complain(const QString &contender, const char *what)
{
    std::fprintf(stderr, "bench: %s %s\n", qPrintable(contender), what);
    return false;
}

Contenders wanted(const QStringList &parts)
{
    Contenders list = contenders();
    std::erase_if(list, [&](const std::unique_ptr<Contender> &contender) {
        return !parts.isEmpty()
            && std::none_of(parts.begin(), parts.end(), [&](const QString &part) {
                   return contender->name().contains(part, Qt::CaseInsensitive);
               });
    });
    return list;
}

double megabytesIn(const QString &folder)
{
    qint64 bytes = 0;
    for (QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories); it.hasNext();) {
        it.next();
        bytes += it.fileInfo().size();
    }
    return double(bytes) / 1e6;
}

/// One catalogue, in the hands of every store.
class Contest
{
public:
    Contest(const Options &options, Variant variant, int size, Results &results)
        : m_runs(options.runs)
        , m_contenders(wanted(options.contenders))
        , m_folder(options.output + u"/stores-XXXXXX"_s)
        , m_catalogue(catalogue(size, variant, options.seed))
        , m_random(options.seed)
        , m_results(results)
    {
        m_case = {variant, size, 0};
        for (const VPrinterDriver &driver : m_catalogue)
            m_case.jsonBytes += textOf(driver).size();
    }

    bool run()
    {
        std::fprintf(stderr, "%d drivers, %s\n", m_case.size, qPrintable(nameOf(m_case.variant)));
        if (!fill())
            return false;
        for (const std::unique_ptr<Job> &job : jobs(m_case.size)) {
            if (!run(*job))
                return false;
        }
        return isSame();
    }

private:
    QString folderOf(const Contender &contender) const
    {
        return m_folder.filePath(contender.name());
    }

    void report(const Contender &contender, const QString &job, const Sample &sample)
    {
        m_results.add(m_case, contender.name(), job, sample);
    }

    /// Gives every store the catalogue, and measures what does not vary.
    bool fill()
    {
        for (const auto &contender : m_contenders) {
            const QString folder = folderOf(*contender);
            if (!QDir().mkpath(folder) || !contender->open(folder)
                || !contender->commit(m_catalogue))
                return complain(contender->name(), "cannot be filled");
            contender->close();
            report(*contender, u"file"_s, {megabytesIn(folder), 0, {}});
        }
        const double empty = memoryOf({}, {});
        for (const auto &contender : m_contenders) {
            const double peak = memoryOf(contender->name(), folderOf(*contender));
            if (peak <= 0)
                return complain(contender->name(), "does not load in a process of its own");
            report(*contender, u"memory"_s, {peak - empty, 0, {}});
        }
        return true;
    }

    /// MB, 0 when the child fails.
    static double memoryOf(const QString &contender, const QString &folder)
    {
        const auto output = outputOf(QCoreApplication::applicationFilePath(),
                                     {u"--load-only"_s, contender, folder});
        return output ? output->trimmed().toDouble() * 1024 / 1e6 : 0;
    }

    bool run(Job &job)
    {
        for (int round = 0; round < m_runs; ++round) {
            job.begin(m_catalogue, m_random);
            for (std::size_t i = 0; i < m_contenders.size(); ++i) {
                // Every round begins with another store, in case the first has it harder.
                Contender &contender =
                    *m_contenders[(i + std::size_t(round)) % m_contenders.size()];
                const auto note = [&](const QString &name, const Sample &sample) {
                    report(contender, name, sample);
                };
                if (!job.turn(contender, folderOf(contender), note))
                    return complain(contender.name(), "fails, or gives something wrong");
            }
        }
        return true;
    }

    /// After all that they have been through, every store must hold the same drivers.
    bool isSame()
    {
        const QByteArray expected = digest(m_catalogue);
        for (const auto &contender : m_contenders) {
            if (!contender->open(folderOf(*contender)))
                return complain(contender->name(), "cannot be opened again");
            const std::optional<Drivers> drivers = contender->load();
            contender->close();
            if (!drivers || digest(*drivers) != expected)
                return complain(contender->name(), "has other drivers in the end");
        }
        return true;
    }

    int m_runs;
    Contenders m_contenders;
    QTemporaryDir m_folder;
    Drivers m_catalogue;
    QRandomGenerator m_random;
    Results &m_results;
    Case m_case;
};

} // namespace

bool run(const Options &options, Results &results)
{
    if (!QDir().mkpath(options.output))
        return complain(options.output, "cannot be made");
    results.machine = describeMachine(options.output);
    results.startup = measureStartup(QCoreApplication::applicationDirPath());
    for (const Variant variant : options.variants) {
        for (const int size : variant == Variant::Plain ? options.sizes : options.iconSizes) {
            if (!Contest(options, variant, size, results).run())
                return false;
        }
    }
    return true;
}

int loadAndReport(const QString &contender, const QString &folder)
{
    std::optional<Drivers> drivers;
    for (const auto &candidate : contenders()) {
        if (candidate->name() != contender)
            continue;
        if (!candidate->open(folder))
            return 1;
        drivers = candidate->load();
        if (!drivers)
            return 1;
        std::printf("%lld\n", peakMemory());
        candidate->close();
        return 0;
    }
    std::printf("%lld\n", peakMemory());
    return contender.isEmpty() ? 0 : 1;
}

} // namespace Bench
