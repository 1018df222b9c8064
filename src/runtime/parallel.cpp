// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/parallel.h"

#include "runtime/thread_supply.h"

#include <immintrin.h>
#include <lxpcore.h>
#include <omp.h>

namespace lxpm {

namespace {

// The rounding and denormal modes of a thread, changed for a while. The exceptions raised meanwhile stay raised.
class ControlModes {
public:
    explicit ControlModes(unsigned wanted) : found(_mm_getcsr()) { _mm_setcsr((found & raised) | (wanted & ~raised)); }
    ~ControlModes() { _mm_setcsr((found & ~raised) | (_mm_getcsr() & raised)); }
    ControlModes(const ControlModes &) = delete;
    ControlModes &operator=(const ControlModes &) = delete;

private:
    static constexpr unsigned raised = 0x3f; // the exception flags of the register; the rest are modes and masks
    unsigned found;
};

struct Block {
    int first;
    int count;
};

// The objects of one thread of a team: contiguous, in the order of the threads, the remainder spread over the first.
constexpr Block blockOf(int thread, int quotient, int remainder) {
    if (thread < remainder) {
        return {thread * (quotient + 1), quotient + 1};
    }
    return {remainder * (quotient + 1) + (thread - remainder) * quotient, quotient};
}

} // namespace

LxpStatus shareOut(int count, SerialKernel kernel, const void *call) noexcept {
    const int threads = ownGetNumThreads();
    if (threads <= 1 || count < threads) {
        return kernel(call, 0, count);
    }
    // Asked again, because the setting is the caller's to change up to the moment at which the team starts.
    const int team = suppliedThreads(ownGetNumThreads());

    const unsigned modes = _mm_getcsr();
    int quotient = 0;
    int remainder = 0;
    LxpStatus result = lxpStatusOk;
#pragma omp parallel num_threads(team) default(none) shared(quotient, remainder, result, count, kernel, call, modes)
    {
#pragma omp master
        {
            const int size = omp_get_num_threads(); // may be fewer than asked for
            quotient = count / size;
            remainder = count % size;
        }
#pragma omp barrier
        const Block block = blockOf(omp_get_thread_num(), quotient, remainder);
        const ControlModes asCaller(modes);
        const LxpStatus status = kernel(call, block.first, block.count);
        if (status != lxpStatusOk) {
#pragma omp critical(lxpm_status)
            if (result == lxpStatusOk) {
                result = status;
            }
        }
    }
    return result;
}

} // namespace lxpm
