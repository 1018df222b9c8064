// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "processor_quota.h"

#include <algorithm>
#include <atomic>
#include <lxpcore.h>
#include <omp.h>
#include <pthread.h>
#include <sched.h>
#include <unistd.h>

namespace lxpm {

namespace {

// The processors that the process may run on. The kernel knows masks of threads only, and a thread may be bound to
// fewer: the initial one by the OpenMP runtime (OMP_PROC_BIND), the calling one by its application. The runtime answers
// for all of its places, and for the calling thread where it has none. So the larger of the initial thread's mask and
// the runtime's answer is taken.
int affinity() {
    cpu_set_t processors[8] = {}; // 1024 processors each: the kernel refuses a mask that is shorter than its own
    const int failed = sched_getaffinity(getpid(), sizeof processors, processors);
    return std::max(failed != 0 ? 0 : CPU_COUNT_S(sizeof processors, processors), omp_get_num_procs());
}

// What affinity and quota leave to the process. The first call reads and keeps it, because reading takes system calls;
// of several first calls at once, one decides for all.
constexpr int unread = 0;
constinit std::atomic<int> usableProcessors{unread};

int readUsableProcessors() {
    const int usable = std::max(std::min(affinity(), processorQuota("")), 1);
    int decided = unread;
    return usableProcessors.compare_exchange_strong(decided, usable, std::memory_order_relaxed) ? usable : decided;
}

// Whoever had asked may have run a team, and the OpenMP runtime's threads do not exist in a forked child: a parallel
// region would wait for them for ever. The number is kept, so the child's own children inherit it.
void stayAloneAfterFork() {
    if (usableProcessors.load(std::memory_order_relaxed) != unread) {
        usableProcessors.store(1, std::memory_order_relaxed);
    }
}

// Without the handler a child could not be told from its parent, so the process does without threads altogether.
[[gnu::constructor]] void watchForks() {
    if (pthread_atfork(nullptr, nullptr, stayAloneAfterFork) != 0) {
        usableProcessors.store(1, std::memory_order_relaxed);
    }
}

} // namespace

extern "C" [[gnu::visibility("default")]] int ownGetNumThreads() {
    const int known = usableProcessors.load(std::memory_order_relaxed);
    const int usable = known != unread ? known : readUsableProcessors();
    return std::max(std::min(usable, omp_get_max_threads()), 1);
}

} // namespace lxpm
