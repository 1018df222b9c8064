// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

namespace lxpm::bench {

// Calls body(begin, end) for everything from 0 to count at once, or for one block of it in each thread.
template <class Body>
void inBlocks(long count, int threads, const Body &body) {
    if (threads == 1) {
        body(0L, count);
        return;
    }
#pragma omp parallel for schedule(static) num_threads(threads)
    for (int thread = 0; thread < threads; ++thread) {
        body(count * thread / threads, count * (thread + 1) / threads);
    }
}

} // namespace lxpm::bench
