// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include "catalogue/Catalogue.h"

#include <QtCore/QString>
#include <QtCore/QUuid>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace Bench {

using Clock = std::chrono::steady_clock;

/// A way of keeping a catalogue of drivers in a folder, as a host would write it.
///
/// All promise the same: what commit(), remove() and compact() have answered with true survives
/// a power cut.
class Contender
{
public:
    virtual ~Contender() = default;

    virtual QString name() const = 0;

    /// Opens the catalogue in `folder`; makes it when the folder is empty.
    [[nodiscard]] virtual bool open(const QString &folder) = 0;
    virtual void close() = 0;
    /// True when an open catalogue keeps other processes out.
    virtual bool holdsItsFiles() const { return true; }

    /// Every driver, whole, the data id of each checked against the one it is kept under. Nothing
    /// when a single one cannot be had.
    virtual std::optional<Drivers> load() = 0;
    virtual VPrinterDriver value(const QUuid &id) = 0;

    /// Stores the drivers under their data ids, in one transaction.
    [[nodiscard]] virtual bool commit(const Drivers &drivers) = 0;
    /// Removes the drivers, in one transaction.
    [[nodiscard]] virtual bool remove(const QList<QUuid> &ids) = 0;
    /// Gives the space of what was removed or replaced back to the file system.
    [[nodiscard]] virtual bool compact() = 0;

    /// How long the store alone was busy since the last call: without making text of drivers and
    /// drivers of text. Nothing when there is no such line to be drawn.
    virtual std::optional<Clock::duration> takeStoreTime() { return std::nullopt; }
};

/// Ours first, then the peers.
std::vector<std::unique_ptr<Contender>> contenders();

} // namespace Bench
