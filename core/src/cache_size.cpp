// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "cache_files.h"

#include <algorithm>
#include <atomic>
#include <limits>
#include <lxpcore.h>
#include <unistd.h>

namespace lxpm {

namespace {

// The kernel knows which processors share a cache; where a processor has several of the last level, the C library may
// answer with all of them together.
int largestCache() {
    long long largest = largestListedCache("");
    if (largest == 0) {
        for (const int level :
             {_SC_LEVEL1_DCACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL4_CACHE_SIZE}) {
            largest = std::max<long long>(largest, sysconf(level));
        }
    }
    return static_cast<int>(std::min<long long>(largest, std::numeric_limits<int>::max()));
}

constexpr int unread = -1;
constinit std::atomic<int> known{unread};

} // namespace

extern "C" [[gnu::visibility("default")]] LxpStatus lxpGetMaxCacheSizeB(int *size) {
    if (size == nullptr) {
        return lxpStatusNullPtrErr;
    }
    int largest = known.load(std::memory_order_relaxed);
    if (largest == unread) {
        largest = largestCache();
        known.store(largest, std::memory_order_relaxed);
    }
    *size = largest;
    return lxpStatusOk;
}

} // namespace lxpm
