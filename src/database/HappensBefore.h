// SPDX-FileCopyrightText: 2026 Norvane
// SPDX-License-Identifier: MPL-2.0

#pragma once

// A distribution's Qt is not instrumented, so ThreadSanitizer sees no order between two threads
// that meet in a QRecursiveMutex or in the queue of a QThreadPool, unless it is told. Elsewhere
// these functions do nothing.

#if defined(__SANITIZE_THREAD__)
#define KILNJET_TSAN
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KILNJET_TSAN
#endif
#endif

#if defined(KILNJET_TSAN)
#include <sanitizer/tsan_interface.h>
#endif

namespace Norvane::Kilnjet {

/// What this thread has done so far comes before what follows noteAcquired() of the same object.
inline void noteReleased([[maybe_unused]] void *object)
{
#if defined(KILNJET_TSAN)
    __tsan_release(object);
#endif
}

/// What follows comes after what other threads did before noteReleased() of the same object.
inline void noteAcquired([[maybe_unused]] void *object)
{
#if defined(KILNJET_TSAN)
    __tsan_acquire(object);
#endif
}

} // namespace Norvane::Kilnjet
