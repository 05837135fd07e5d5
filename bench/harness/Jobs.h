// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "Expected.h"
#include "Results.h"
#include "stores/Contender.h"

#include <QtCore/QRandomGenerator>

#include <functional>
#include <memory>
#include <vector>

namespace Bench {

/// What every store has its turn at.
class Job
{
public:
    using Report = std::function<void(const QString &job, const Sample &sample)>;

    virtual ~Job() = default;

    /// Decides what this round's turns do, the same for all stores; `catalogue` becomes what they
    /// hold afterwards.
    virtual void begin(Drivers &catalogue, QRandomGenerator &random) = 0;
    /// Lets a store do it, and reports what that took. The store is closed before and after. False
    /// when the store fails or gives something wrong.
    [[nodiscard]] virtual bool turn(Contender &contender, const QString &folder,
                                    const Report &report) = 0;
};

/// All jobs for a catalogue of `size` drivers, in the order in which they are done.
std::vector<std::unique_ptr<Job>> jobs(int size);

} // namespace Bench
