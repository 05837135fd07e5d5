// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include "DriverMap.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace Norvane::Kilnjet {

namespace {

/// Its ids fill two kilobytes then.
constexpr std::size_t kLargestBlock = 128;

struct Candidate
{
    QUuid id;
    std::size_t index;
};

bool isBefore(const Candidate &a, const Candidate &b)
{
    return a.id < b.id || (a.id == b.id && a.index < b.index);
}

/// The ids in ascending order, each once, and where the last item of each is.
std::vector<Candidate> candidates(const std::vector<DriverMap::Item> &items)
{
    std::vector<Candidate> list;
    list.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (items[i].driver)
            list.push_back({items[i].id, i});
    }
    // By their first four bytes, which is quicker and nearly always enough.
    std::sort(list.begin(), list.end(), [](const Candidate &a, const Candidate &b) {
        return std::pair(a.id.data1, a.index) < std::pair(b.id.data1, b.index);
    });
    if (!std::is_sorted(list.begin(), list.end(), isBefore))
        std::sort(list.begin(), list.end(), isBefore);
    const auto isSame = [](const Candidate &a, const Candidate &b) { return a.id == b.id; };
    list.erase(list.begin(), std::unique(list.rbegin(), list.rend(), isSame).base());
    return list;
}

} // namespace

DriverMap::DriverMap(std::vector<Item> items)
{
    const std::vector<Candidate> list = candidates(items);
    m_size = qsizetype(list.size());
    m_blocks.reserve((list.size() + kLargestBlock - 1) / kLargestBlock);
    m_firsts.reserve(m_blocks.capacity());
    for (const Candidate &candidate : list) {
        if (m_blocks.empty() || m_blocks.back().ids.size() == kLargestBlock) {
            m_firsts.push_back(candidate.id);
            m_blocks.emplace_back();
            m_blocks.back().ids.reserve(kLargestBlock);
            m_blocks.back().drivers.reserve(kLargestBlock);
        }
        m_blocks.back().ids.push_back(candidate.id);
        m_blocks.back().drivers.push_back(std::move(items[candidate.index].driver));
    }
}

DriverMap::Place DriverMap::placeOf(const QUuid &id) const
{
    if (m_blocks.empty())
        return {};
    const auto behind = std::upper_bound(m_firsts.begin(), m_firsts.end(), id);
    const auto block = std::size_t(std::max<std::ptrdiff_t>(behind - m_firsts.begin() - 1, 0));
    const std::vector<QUuid> &ids = m_blocks[block].ids;
    const auto at = std::lower_bound(ids.begin(), ids.end(), id);
    return {.block = block, .at = at - ids.begin(), .isFound = at != ids.end() && *at == id};
}

const VPrinterDriver *DriverMap::find(const QUuid &id) const
{
    const Place place = placeOf(id);
    return place.isFound ? m_blocks[place.block].drivers[std::size_t(place.at)].get() : nullptr;
}

QList<QUuid> DriverMap::keys() const
{
    QList<QUuid> list;
    list.reserve(m_size);
    for (const Block &block : m_blocks)
        std::copy(block.ids.begin(), block.ids.end(), std::back_inserter(list));
    return list;
}

QList<VPrinterDriver> DriverMap::values() const
{
    QList<VPrinterDriver> list;
    list.reserve(m_size);
    for (const Block &block : m_blocks) {
        for (const std::unique_ptr<VPrinterDriver> &driver : block.drivers)
            list.append(*driver);
    }
    return list;
}

void DriverMap::insert(const QUuid &id, const VPrinterDriver &driver)
{
    Place place = placeOf(id);
    if (place.isFound) {
        m_blocks[place.block].drivers[std::size_t(place.at)] =
            std::make_unique<VPrinterDriver>(driver);
        return;
    }
    if (m_blocks.empty()) {
        m_blocks.emplace_back();
        m_firsts.push_back(id);
    } else if (m_blocks[place.block].ids.size() == kLargestBlock) {
        split(place.block);
        place = placeOf(id);
    }
    Block &block = m_blocks[place.block];
    block.ids.insert(block.ids.begin() + place.at, id);
    block.drivers.insert(block.drivers.begin() + place.at,
                         std::make_unique<VPrinterDriver>(driver));
    m_firsts[place.block] = block.ids.front();
    ++m_size;
}

/// Moves the second half of a block into one of its own behind it.
void DriverMap::split(std::size_t block)
{
    Block &first = m_blocks[block];
    const auto half = std::ptrdiff_t(first.ids.size() / 2);
    Block second;
    second.ids.assign(first.ids.begin() + half, first.ids.end());
    std::move(first.drivers.begin() + half, first.drivers.end(),
              std::back_inserter(second.drivers));
    first.ids.erase(first.ids.begin() + half, first.ids.end());
    first.drivers.erase(first.drivers.begin() + half, first.drivers.end());
    m_firsts.insert(m_firsts.begin() + std::ptrdiff_t(block) + 1, second.ids.front());
    m_blocks.insert(m_blocks.begin() + std::ptrdiff_t(block) + 1, std::move(second));
}

bool DriverMap::remove(const QUuid &id)
{
    const Place place = placeOf(id);
    if (!place.isFound)
        return false;
    --m_size;
    Block &block = m_blocks[place.block];
    block.ids.erase(block.ids.begin() + place.at);
    block.drivers.erase(block.drivers.begin() + place.at);
    if (block.ids.empty()) {
        m_blocks.erase(m_blocks.begin() + std::ptrdiff_t(place.block));
        m_firsts.erase(m_firsts.begin() + std::ptrdiff_t(place.block));
    } else {
        m_firsts[place.block] = block.ids.front();
    }
    return true;
}

} // namespace Norvane::Kilnjet
