// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <kilnjet/VPrinterDriver.h>

#include <QtCore/QList>
#include <QtCore/QUuid>

#include <memory>
#include <vector>

namespace Norvane::Kilnjet {

/// Drivers by their ids, in ascending order of these.
///
/// The ids lie in blocks, beside each other, so that finding one takes a few looks at memory
/// however many there are: a tree's nodes, each somewhere else, would cost one for each of its
/// levels.
class DriverMap
{
public:
    struct Item
    {
        QUuid id;
        std::unique_ptr<VPrinterDriver> driver;
    };

    DriverMap() = default;
    /// Those whose driver is not null; of one id, the last.
    explicit DriverMap(std::vector<Item> items);

    qsizetype size() const { return m_size; }
    bool contains(const QUuid &id) const { return find(id) != nullptr; }
    /// Null when there is none; valid until the next change.
    const VPrinterDriver *find(const QUuid &id) const;
    QList<QUuid> keys() const;
    QList<VPrinterDriver> values() const;

    /// Adds a copy, or puts it in the place of what is there.
    void insert(const QUuid &id, const VPrinterDriver &driver);
    /// Whether it was there.
    bool remove(const QUuid &id);

private:
    struct Block
    {
        std::vector<QUuid> ids;
        // Not the drivers themselves: to assign to one that has not been decoded would decode it.
        std::vector<std::unique_ptr<VPrinterDriver>> drivers;
    };
    struct Place
    {
        std::size_t block = 0; ///< The one that the id belongs in; there may be none yet.
        std::ptrdiff_t at = 0; ///< Where in it the id is, or would be.
        bool isFound = false;
    };

    Place placeOf(const QUuid &id) const;
    void split(std::size_t block);

    qsizetype m_size = 0;
    std::vector<QUuid> m_firsts; ///< The first id of each block.
    std::vector<Block> m_blocks; ///< None is empty.
};

} // namespace Norvane::Kilnjet
