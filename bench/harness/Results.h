// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "catalogue/Catalogue.h"

#include <QtCore/QJsonObject>
#include <QtCore/QList>
#include <QtCore/QString>
#include <QtCore/QStringList>

#include <optional>

namespace Bench {

/// One measured job.
struct Sample
{
    double wall = 0; ///< ms
    double cpu = 0; ///< ms, of all threads
    std::optional<double> store; ///< ms of `wall` that the store alone took, when that can be said
};

/// A catalogue that is measured.
struct Case
{
    Variant variant = Variant::Plain;
    int size = 0;
    qint64 jsonBytes = 0; ///< The drivers' compact JSON.

    bool operator==(const Case &other) const
    {
        return variant == other.variant && size == other.size;
    }
};

/// What one store did with one catalogue: samples for a job, single figures for what is counted.
struct Results
{
    struct Entry
    {
        Case where;
        QString contender;
        QString job;
        QList<Sample> samples;
    };

    void add(const Case &where, const QString &contender, const QString &job, const Sample &sample);
    void add(const Case &where, const QString &contender, const QString &job, double figure)
    {
        add(where, contender, job, Sample{figure, 0, {}});
    }

    const Entry *find(const Case &where, const QString &contender, const QString &job) const;
    /// The middle one of the samples; nothing when there is none.
    std::optional<Sample> median(const Case &where, const QString &contender,
                                 const QString &job) const;

    QList<Case> cases() const;
    QStringList contenders() const;
    QJsonObject toJson() const;

    QList<Entry> entries;
    QJsonObject machine; ///< Where and when.
    QJsonObject startup; ///< What it costs to start a process.
};

} // namespace Bench
