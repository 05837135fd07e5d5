// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Jobs.h"

#include "Stopwatch.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

/// `count` different indexes below `size`, all of them when there are fewer.
QList<int> someIndexes(int size, int count, QRandomGenerator &random)
{
    count = std::min(count, size);
    QList<int> all(size);
    std::iota(all.begin(), all.end(), 0);
    for (int i = 0; i < count; ++i)
        std::swap(all[i], all[i + random.bounded(size - i)]);
    return all.first(count);
}

/// Changes the drivers at `indexes` as a technician does who notes a revision, and gives them.
Drivers revised(Drivers &catalogue, const QList<int> &indexes, QRandomGenerator &random)
{
    Drivers changed;
    changed.reserve(indexes.size());
    for (const int index : indexes) {
        VPrinterDriver &driver = catalogue[index];
        const QString text = driver.description();
        driver.setDescription(text.chopped(5)
                              + u"%1."_s.arg(random.bounded(10'000), 4, 10, QLatin1Char('0')));
        changed.append(driver);
    }
    return changed;
}

/// Every driver back as a value.
class LoadJob : public Job
{
public:
    explicit LoadJob(int times)
        : m_times(times)
    { }

    void begin(Drivers &catalogue, QRandomGenerator &) override { m_count = catalogue.size(); }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        for (int i = 0; i < m_times; ++i) {
            const Stopwatch watch(contender);
            if (!contender.open(folder))
                return false;
            const std::optional<Drivers> drivers = contender.load();
            report(u"load"_s, watch.stop());
            contender.close();
            if (!drivers || drivers->size() != m_count)
                return false;
        }
        return true;
    }

private:
    int m_times;
    qsizetype m_count = 0;
};

/// The same, and then every field read: what a store has put off until then is counted.
class ReadJob : public Job
{
public:
    void begin(Drivers &catalogue, QRandomGenerator &) override
    {
        m_expected = std::make_unique<Expected>(catalogue);
    }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        const Stopwatch watch(contender);
        if (!contender.open(folder))
            return false;
        const std::optional<Drivers> drivers = contender.load();
        const bool isRight = drivers && m_expected->areEqual(*drivers);
        report(u"load and read"_s, watch.stop());
        contender.close();
        return isRight;
    }

private:
    std::unique_ptr<Expected> m_expected;
};

/// Single drivers by their ids; a sample is the mean of many.
class ValueJob : public Job
{
public:
    void begin(Drivers &catalogue, QRandomGenerator &random) override
    {
        m_ids.clear();
        for (int i = 0; i < kLookups; ++i)
            m_ids.append(catalogue[random.bounded(int(catalogue.size()))].dataId());
    }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        // All that is loaded has been loaded: what is measured is the look-up.
        if (!contender.open(folder) || !contender.load())
            return false;
        const Stopwatch watch(contender);
        Drivers found;
        for (const QUuid &id : m_ids)
            found.append(contender.value(id));
        Sample sample = watch.stop();
        sample.wall /= kLookups;
        sample.cpu /= kLookups;
        if (sample.store)
            *sample.store /= kLookups;
        report(u"value"_s, sample);
        contender.close();
        return std::equal(found.begin(), found.end(), m_ids.begin(),
                          [](const VPrinterDriver &driver, const QUuid &id) {
                              return driver.dataId() == id && driver.isValid();
                          });
    }

private:
    static constexpr int kLookups = 200;
    QList<QUuid> m_ids;
};

/// Changes `count` drivers and commits them, several times a turn.
class CommitJob : public Job
{
public:
    CommitJob(const QString &name, int count, int times)
        : m_name(name)
        , m_count(count)
        , m_times(times)
    { }

    void begin(Drivers &catalogue, QRandomGenerator &random) override
    {
        m_edits.clear();
        for (int i = 0; i < m_times; ++i)
            m_edits.append(
                revised(catalogue, someIndexes(int(catalogue.size()), m_count, random), random));
    }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        if (!contender.open(folder))
            return false;
        for (const Drivers &edit : m_edits) {
            const Stopwatch watch(contender);
            if (!contender.commit(edit))
                return false;
            report(m_name, watch.stop());
        }
        contender.close();
        return true;
    }

private:
    QString m_name;
    int m_count;
    int m_times;
    QList<Drivers> m_edits;
};

/// Changes one driver while other processes may have the files in between: a store that keeps them
/// out is opened and closed around the commit.
class SharedCommitJob : public Job
{
public:
    explicit SharedCommitJob(int times)
        : m_times(times)
    { }

    void begin(Drivers &catalogue, QRandomGenerator &random) override
    {
        m_edits.clear();
        for (int i = 0; i < m_times; ++i)
            m_edits.append(
                revised(catalogue, someIndexes(int(catalogue.size()), 1, random), random));
    }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        const bool isHeld = contender.holdsItsFiles();
        if (!isHeld && !contender.open(folder))
            return false;
        for (const Drivers &edit : m_edits) {
            const Stopwatch watch(contender);
            if ((isHeld && !contender.open(folder)) || !contender.commit(edit))
                return false;
            if (isHeld)
                contender.close();
            report(u"open, commit 1, close"_s, watch.stop());
        }
        contender.close();
        return true;
    }

private:
    int m_times;
    QList<Drivers> m_edits;
};

/// Removes every tenth driver and gives the space back, several times a turn. They come again, so
/// that the next time finds what this one found.
class CompactJob : public Job
{
public:
    explicit CompactJob(int times)
        : m_times(times)
    { }

    void begin(Drivers &catalogue, QRandomGenerator &random) override
    {
        m_removed.clear();
        m_ids.clear();
        const int size = int(catalogue.size());
        for (const int index : someIndexes(size, std::max(1, size / 10), random)) {
            m_removed.append(catalogue[index]);
            m_ids.append(catalogue[index].dataId());
        }
    }

    bool turn(Contender &contender, const QString &folder, const Report &report) override
    {
        if (!contender.open(folder))
            return false;
        for (int i = 0; i < m_times; ++i) {
            if (!compact(contender, report) || !contender.commit(m_removed))
                return false;
        }
        contender.close();
        return true;
    }

private:
    bool compact(Contender &contender, const Report &report)
    {
        const Stopwatch both(contender);
        if (!contender.remove(m_ids))
            return false;
        const auto removing = contender.takeStoreTime();
        const Stopwatch second(contender);
        if (!contender.compact())
            return false;
        const Sample compacting = second.stop();
        Sample all = both.stop();
        if (removing && compacting.store)
            all.store =
                std::chrono::duration<double, std::milli>(*removing).count() + *compacting.store;
        report(u"delete 10 %, compact"_s, all);
        report(u"compact"_s, compacting);
        return true;
    }

    int m_times;
    Drivers m_removed;
    QList<QUuid> m_ids;
};

} // namespace

std::vector<std::unique_ptr<Job>> jobs(int size)
{
    const bool isLarge = size > 10'000;
    std::vector<std::unique_ptr<Job>> list;
    list.push_back(std::make_unique<LoadJob>(size > 100 ? 1 : 5));
    list.push_back(std::make_unique<ReadJob>());
    list.push_back(std::make_unique<ValueJob>());
    list.push_back(std::make_unique<CommitJob>(u"commit 1"_s, 1, isLarge ? 3 : 10));
    list.push_back(std::make_unique<SharedCommitJob>(isLarge ? 2 : 5));
    list.push_back(std::make_unique<CommitJob>(u"commit 100"_s, 100, 2));
    list.push_back(std::make_unique<CompactJob>(isLarge ? 1 : 3));
    list.push_back(std::make_unique<CommitJob>(u"commit all"_s, size, 1));
    return list;
}

} // namespace Bench
