// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "runtime/parallel.h"

#include "runtime/thread_supply.h"

#include <cstdlib>
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

// Threads that write to one line take it from each other.
constexpr std::size_t cacheLine = 64;

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
[[gnu::noinline]] LxpStatus runTeam(int team, unsigned state, int count, std::byte *scratch, std::size_t scratchBytes,
                                    SerialKernel kernel, const void *call) {
    int quotient = 0;
    int remainder = 0;
    LxpStatus result = lxpStatusOk;
#pragma omp parallel num_threads(team) default(none)                                                                   \
    shared(quotient, remainder, result, count, scratch, scratchBytes, kernel, call, state)
    {
#pragma omp master
        {
            const int size = omp_get_num_threads(); // may be fewer than asked for
            quotient = count / size;
            remainder = count % size;
        }
#pragma omp barrier
        const int thread = omp_get_thread_num();
        const Block block = blockOf(thread, quotient, remainder);
        const bool hasOwn = thread > 0 && scratch != nullptr;
        const Share share = {block.first, block.count, thread,
                             hasOwn ? scratch + static_cast<std::size_t>(thread - 1) * scratchBytes : nullptr};
        const AsCaller asCaller(state);
        const LxpStatus status = kernel(call, share);
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

LxpStatus shareOut(int count, std::size_t scratchBytes, SerialKernel kernel, const void *call) noexcept {
    const Share all = {0, count, 0, nullptr};
    const unsigned state = _mm_getcsr(); // before the runtime is asked anything
    const int threads = ownGetNumThreads();
    if (threads <= 1 || count < threads) {
        return kernel(call, all);
    }
    // Asked again, because the setting is the caller's to change up to the moment at which the team starts.
    const int team = suppliedThreads(ownGetNumThreads());
    if (scratchBytes == 0 || team <= 1) {
        return runTeam(team, state, count, nullptr, 0, kernel, call);
    }
    const std::size_t each = (scratchBytes + cacheLine - 1) / cacheLine * cacheLine;
    std::size_t bytes;
    if (__builtin_mul_overflow(static_cast<std::size_t>(team - 1), each, &bytes)) {
        return kernel(call, all);
    }
    auto *const scratch = static_cast<std::byte *>(std::aligned_alloc(cacheLine, bytes));
    if (scratch == nullptr) {
        return kernel(call, all);
    }
    const LxpStatus status = runTeam(team, state, count, scratch, each, kernel, call);
    std::free(scratch);
    return status;
}

} // namespace lxpm
