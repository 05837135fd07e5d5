// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "Results.h"

#include <QtCore/QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Bench {

namespace {

double middle(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype half = values.size() / 2;
    return values.size() % 2 ? values[half] : (values[half - 1] + values[half]) / 2;
}

/// The middle of one figure of the samples, each figure by itself.
Sample middle(const QList<Sample> &samples)
{
    QList<double> wall;
    QList<double> cpu;
    QList<double> store;
    for (const Sample &sample : samples) {
        wall.append(sample.wall);
        cpu.append(sample.cpu);
        if (sample.store)
            store.append(*sample.store);
    }
    return {middle(wall), middle(cpu),
            store.isEmpty() ? std::nullopt : std::optional(middle(store))};
}

} // namespace

void Results::add(const Case &where, const QString &contender, const QString &job,
                  const Sample &sample)
{
    for (Entry &entry : entries) {
        if (entry.where == where && entry.contender == contender && entry.job == job) {
            entry.samples.append(sample);
            return;
        }
    }
    entries.append({where, contender, job, {sample}});
}

const Results::Entry *Results::find(const Case &where, const QString &contender,
                                    const QString &job) const
{
    for (const Entry &entry : entries) {
        if (entry.where == where && entry.contender == contender && entry.job == job)
            return &entry;
    }
    return nullptr;
}

std::optional<Sample> Results::median(const Case &where, const QString &contender,
                                      const QString &job) const
{
    const Entry *entry = find(where, contender, job);
    return entry ? std::optional(middle(entry->samples)) : std::nullopt;
}

QList<Case> Results::cases() const
{
    QList<Case> list;
    for (const Entry &entry : entries) {
        if (!list.contains(entry.where))
            list.append(entry.where);
    }
    return list;
}

QStringList Results::contenders() const
{
    QStringList list;
    for (const Entry &entry : entries) {
        if (!list.contains(entry.contender))
            list.append(entry.contender);
    }
    return list;
}

QJsonObject Results::toJson() const
{
    QJsonArray array;
    for (const Entry &entry : entries) {
        QJsonArray wall;
        for (const Sample &sample : entry.samples)
            wall.append(sample.wall);
        const Sample mid = middle(entry.samples);
        QJsonObject object{{"variant"_L1, nameOf(entry.where.variant)},
                           {"drivers"_L1, entry.where.size},
                           {"jsonBytes"_L1, entry.where.jsonBytes},
                           {"store"_L1, entry.contender},
                           {"job"_L1, entry.job},
                           {"median"_L1, mid.wall},
                           {"medianCpu"_L1, mid.cpu},
                           {"samples"_L1, wall}};
        if (mid.store)
            object.insert("medianStoreAlone"_L1, *mid.store);
        array.append(object);
    }
    return {{"machine"_L1, machine}, {"startup"_L1, startup}, {"results"_L1, array}};
}

} // namespace Bench
