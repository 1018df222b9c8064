// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Results that no cache could keep until somebody reads them go past the caches. Otherwise the memory would have to
// deliver every line before it is overwritten, and what the caches held would be lost.

#include <cstddef>
#include <immintrin.h>
#include <lxpcore.h>

namespace lxpm {

// Runs of fewer bytes are not streamed: a cache line that is not written as a whole costs more than it would save.
inline constexpr std::ptrdiff_t shortestStream = 1024;

// Whether results of so many bytes, and as many of sources, are more than the largest cache holds.
inline bool outgrowsCaches(std::ptrdiff_t bytes) {
    constexpr std::ptrdiff_t smallestCache = 32 * 1024; // not worth the question
    int largestCache = 0;                               // unknown
    if (bytes > smallestCache) {
        lxpGetMaxCacheSizeB(&largestCache);
    }
    return largestCache != 0 && 2 * bytes > largestCache;
}

// Behind the last streaming store of a thread: nobody who then hears that the work is done finds old memory.
inline void finishStreaming() {
    _mm_sfence();
}

} // namespace lxpm
