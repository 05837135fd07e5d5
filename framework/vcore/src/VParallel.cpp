// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#include <vcore/VParallel.h>

#include <algorithm>
#include <atomic>
#include <system_error>
#include <thread>
#include <vector>

namespace Norvane {

namespace {

/// Pieces for each thread: one that is held up leaves the rest to the others, and at the end all
/// wait for one piece at most.
constexpr std::size_t kPiecesPerThread = 32;

} // namespace

void parallelFor(std::size_t count, std::size_t grain,
                 const std::function<void(std::size_t, std::size_t)> &work)
{
    const std::size_t most = count / std::max<std::size_t>(grain, 1);
    // The number of cores is read from a file of the system: too dear for what is done here alone.
    const std::size_t threads =
        most < 2 ? 1 : std::min<std::size_t>(std::thread::hardware_concurrency(), most);
    if (threads < 2) {
        if (count > 0)
            work(0, count);
        return;
    }
    const std::size_t pieces = std::min(most, threads * kPiecesPerThread);
    std::atomic<std::size_t> next = 0;
    const auto takePieces = [&] {
        for (std::size_t piece = next++; piece < pieces; piece = next++)
            work(piece * count / pieces, (piece + 1) * count / pieces);
    };
    std::vector<std::jthread> helpers;
    try {
        while (helpers.size() + 1 < threads)
            helpers.emplace_back(takePieces);
    } catch (const std::system_error &) {
        // No more threads are to be had: those that are there do the work.
    }
    takePieces();
}

} // namespace Norvane
