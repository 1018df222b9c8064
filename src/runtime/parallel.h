// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The parallel kernel of all families: the objects of an array, shared out among a team of threads.

#include <lxpm/types.h>

namespace lxpm {

// A serial kernel, run over `count` objects from object `first` on.
using SerialKernel = LxpStatus (*)(const void *call, int first, int count);

// Shares the objects of an array out among the team that ownGetNumThreads() asks for: contiguous blocks in the order of
// the threads, the first count mod team threads taking one object more than the others. With one thread, or fewer
// objects than threads, the serial kernel runs on the calling thread.
//
// Returns the first status other than lxpStatusOk that a thread recorded. The threads of the team compute under the
// caller's rounding and denormal modes, so their bits are the caller's.
LxpStatus shareOut(int count, SerialKernel kernel, const void *call) noexcept;

// Runs `kernel(first, count)` over all objects of a call, on one thread or on many.
template <class Kernel>
LxpStatus overObjects(bool parallel, int count, const Kernel &kernel) {
    if (!parallel) {
        return kernel(0, count);
    }
    const auto run = [](const void *call, int first, int objects) {
        return (*static_cast<const Kernel *>(call))(first, objects);
    };
    return shareOut(count, run, &kernel);
}

} // namespace lxpm
