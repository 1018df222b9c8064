// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// A run: elements of the destination that touch, computed in whole registers and their end in ever smaller pieces.
// Nothing behind the last element of an operand is read or written.

#include "runtime/addresses.h"
#include "runtime/lanes.h"

#include <cstddef>
#include <cstdint>

namespace lxpm {

// The function of copying. Elements go through registers unchanged, signalling NaN too: loads and stores quieten
// nothing.
struct Same {
    template <class Number>
    Number operator()(Number a) const {
        return a;
    }
};

// How a source moves along a run: its elements touch, or it is one element, or those of other runs touch, or anything.
enum class Moves { Along, Nowhere, Across, Any };

// One source along a run.
template <class T, Moves moves>
struct Run {
    const T *first;
    std::ptrdiff_t step;

    // N elements from the i-th on.
    template <int N>
    auto elements(std::ptrdiff_t i) const {
        if constexpr (moves == Moves::Any || moves == Moves::Across) {
            return *shifted(first, i * step);
        } else if constexpr (N == 1) {
            return moves == Moves::Along ? first[i] : *first;
        } else if constexpr (moves == Moves::Along) {
            return Lanes<T, N>::load(first + i);
        } else {
            return Lanes<T, N>::splat(*first);
        }
    }
};

// The elements from i on, fewer than 2 * N.
template <int N, class T, class F, class... S>
[[gnu::always_inline]] inline void runInPieces(const F &f, std::ptrdiff_t n, T *dst, std::ptrdiff_t i,
                                               const S &...src) {
    if constexpr (N == 1) {
        if (i < n) {
            dst[i] = f(src.template elements<1>(i)...);
        }
    } else {
        if (i + N <= n) {
            f(src.template elements<N>(i)...).store(dst + i);
            i += N;
        }
        runInPieces<N / 2>(f, n, dst, i, src...);
    }
}

template <class T, class F, class... S>
[[gnu::always_inline]] inline void runInRegisters(const F &f, std::ptrdiff_t n, T *dst, const S &...src) {
    constexpr int full = fullLanes<T>;
    std::ptrdiff_t i = 0;
#pragma GCC unroll 4
    for (; i + full <= n; i += full) {
        f(src.template elements<full>(i)...).store(dst + i);
    }
    runInPieces<full / 2>(f, n, dst, i, src...);
}

// The same of at least a whole register, with stores past the caches from the first element on that stands where a
// register may be stored so.
template <class T, class F, class... S>
[[gnu::always_inline]] inline void runStreamed(const F &f, std::ptrdiff_t n, T *dst, const S &...src) {
    constexpr int full = fullLanes<T>;
    constexpr std::uintptr_t size = full * sizeof(T);
    const std::uintptr_t bytes = -reinterpret_cast<std::uintptr_t>(dst) % size;
    std::ptrdiff_t i = static_cast<std::ptrdiff_t>(bytes / sizeof(T));
    if (bytes % sizeof(T) != 0) { // no element does
        runInRegisters(f, n, dst, src...);
        return;
    }
    runInPieces<full / 2>(f, i, dst, 0, src...);
#pragma GCC unroll 4
    for (; i + full <= n; i += full) {
        f(src.template elements<full>(i)...).stream(dst + i);
    }
    runInPieces<full / 2>(f, n, dst, i, src...);
}

} // namespace lxpm
