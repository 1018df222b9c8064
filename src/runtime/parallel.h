// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The parallel kernel of all families: the objects of an array, shared out among a team of threads.

#include <lxpm/types.h>

#include <cstddef>

namespace lxpm {

// What one thread of a team is given: `count` objects from `first` on. The calling thread is thread 0. The others have
// scratch memory of their own, as many bytes as were asked for and from a cache line's start on; the calling thread has
// the caller's, and null here.
struct Share {
    int first;
    int count;
    int thread;
    void *scratch;

    template <class T>
    T *scratchOr(T *ofCaller) const {
        return scratch != nullptr ? static_cast<T *>(scratch) : ofCaller;
    }
};

// A serial kernel, run over the objects of a share.
using SerialKernel = LxpStatus (*)(const void *call, const Share &share);

// Shares the objects of an array out among the team that ownGetNumThreads() asks for: contiguous blocks in the order of
// the threads, the first count mod team threads taking one object more than the others. With one thread, or fewer
// objects than threads, or if there is no memory for the scratch of a team, the serial kernel runs on the calling
// thread.
//
// Returns the first status other than lxpStatusOk that a thread recorded. The threads of the team compute under the
// caller's rounding and denormal modes, so their bits are the caller's.
LxpStatus shareOut(int count, std::size_t scratchBytes, SerialKernel kernel, const void *call) noexcept;

// Runs `kernel(share)` over all objects of a call, on one thread or on many.
template <class Kernel>
LxpStatus overShares(bool parallel, int count, std::size_t scratchBytes, const Kernel &kernel) {
    if (!parallel) {
        return kernel(Share{0, count, 0, nullptr});
    }
    const auto run = [](const void *call, const Share &share) { return (*static_cast<const Kernel *>(call))(share); };
    return shareOut(count, scratchBytes, run, &kernel);
}

// Runs `kernel(first, count)` over all objects of a call, on one thread or on many.
template <class Kernel>
LxpStatus overObjects(bool parallel, int count, const Kernel &kernel) {
    return overShares(parallel, count, 0, [&](const Share &share) { return kernel(share.first, share.count); });
}

// Calls use(operands) with what there is from object `first` on: as they stand if that is all, not a copy.
template <class Operands, class Use>
[[gnu::always_inline]] inline auto withFrom(const Operands &operands, std::ptrdiff_t first, const Use &use) {
    return first == 0 ? use(operands) : use(operands.from(first));
}

} // namespace lxpm
