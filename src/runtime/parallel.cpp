// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/parallel.h"

#include "runtime/thread_supply.h"

#include <immintrin.h>
#include <lxpcore.h>
#include <omp.h>

namespace lxpm {

namespace {

// The floating-point state of the caller, in a thread of its team. When the work is done the thread has its own modes
// back, with the exceptions that the work raised; those that starting the team raised on the caller are forgotten.
class AsCaller {
public:
    explicit AsCaller(unsigned caller) : found(_mm_getcsr()) { _mm_setcsr(caller); }
    ~AsCaller() { _mm_setcsr((found & ~exceptions) | (_mm_getcsr() & exceptions)); }
    AsCaller(const AsCaller &) = delete;
    AsCaller &operator=(const AsCaller &) = delete;

private:
    static constexpr unsigned exceptions = 0x3f; // the flags of the register; the rest are modes and masks
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

// The team at work. A function of its own, because Clang starts its runtime where a function with a parallel region is
// entered: a call that stays serial has no need of it, and starting it raises exceptions on the caller.
[[gnu::noinline]] LxpStatus runTeam(int team, unsigned state, int count, SerialKernel kernel, const void *call) {
    int quotient = 0;
    int remainder = 0;
    LxpStatus result = lxpStatusOk;
#pragma omp parallel num_threads(team) default(none) shared(quotient, remainder, result, count, kernel, call, state)
    {
#pragma omp master
        {
            const int size = omp_get_num_threads(); // may be fewer than asked for
            quotient = count / size;
            remainder = count % size;
        }
#pragma omp barrier
        const Block block = blockOf(omp_get_thread_num(), quotient, remainder);
        const AsCaller asCaller(state);
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

} // namespace

LxpStatus shareOut(int count, SerialKernel kernel, const void *call) noexcept {
    const unsigned state = _mm_getcsr(); // before the runtime is asked anything
    const int threads = ownGetNumThreads();
    if (threads <= 1 || count < threads) {
        return kernel(call, 0, count);
    }
    // Asked again, because the setting is the caller's to change up to the moment at which the team starts.
    return runTeam(suppliedThreads(ownGetNumThreads()), state, count, kernel, call);
}

} // namespace lxpm
