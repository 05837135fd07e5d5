// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

#include <vcore/Export.h>

#include <cstddef>
#include <functional>

namespace Norvane {

/// Calls `work(begin, end)` for pieces that together make up [0, count), on as many threads as the
/// machine has cores, the calling one among them; returns when all is done.
///
/// Pieces hold at least `grain` elements: below twice as many the calling thread does all alone.
/// The threads are started anew for each call. Those of a pool would be cheaper, but a job of the
/// pool that waited here for others could wait for ever. `work` must not throw.
VCORE_EXPORT void parallelFor(std::size_t count, std::size_t grain,
                              const std::function<void(std::size_t begin, std::size_t end)> &work);

} // namespace Norvane
