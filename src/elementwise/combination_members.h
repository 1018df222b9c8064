// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of Saxpy and LComb run. For the sources that instantiate them, one for each type.

#include "elementwise/saxpy_lcomb.h"
#include "elementwise/threshold.h"
#include "runtime/map.h"

namespace lxpm {

namespace detail::combination {

inline constexpr InOrder order = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// The functions of elements. The product is rounded before it is added, as everywhere in the library.
template <class T>
struct ScaledSum {
    T val;

    template <class Number>
    Number operator()(Number a, Number b) const {
        return val * a + b;
    }
};

template <class T>
struct LinearCombination {
    T val1;
    T val2;

    template <class Number>
    Number operator()(Number a, Number b) const {
        return val1 * a + val2 * b;
    }
};

// The elements that a call reads and writes: those of arrays once for each object, those of single objects once.
inline Work workOf(Kind first, Kind second, int len, int count) {
    return Work(len) * (Work(first.array ? count : 1) + Work(second.array ? count : 1) + count);
}

// Calls kernel(function, length, count, destination, source, source).
template <class Op, class T, class Parts, class Kernel>
[[gnu::always_inline]] inline auto withFunction(const Parts &parts, const Kernel &kernel) {
    if constexpr (Op::constants == 1) {
        const auto &[src1, val, src2, dst, length, number] = parts;
        return kernel(ScaledSum<T>{val.value()}, length.width(), number.value, dst, src1, src2);
    } else {
        const auto &[src1, val1, src2, val2, dst, length, number] = parts;
        return kernel(LinearCombination<T>{val1.value(), val2.value()}, length.width(), number.value, dst, src1, src2);
    }
}

} // namespace detail::combination

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline bool CombinationMember<Op, operands, T, memory>::isShort(const Arguments &arguments) {
    return firstFailure<detail::combination::order>(arguments) == lxpStatusOk &&
           isSmall(1, std::get<VectorLength>(arguments.parts).width());
}

template <class Op, Code operands, class T, Layout memory>
[[gnu::always_inline]] inline void CombinationMember<Op, operands, T, memory>::runShort(const Arguments &arguments) {
    detail::combination::withFunction<Op, T>(
        arguments.parts, [](const auto &function, int len, int, const auto &dst, const auto &...src) {
            mapObject(function, 1, len, dst.object(1, len), src.object(1, len)...);
        });
}

template <class Op, Code operands, class T, Layout memory>
LxpStatus CombinationMember<Op, operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::combination::order>(arguments); status != lxpStatusOk) {
        return status;
    }
    return detail::combination::withFunction<Op, T>(arguments.parts, [](const auto &function, int len, int count,
                                                                        const auto &dst, const auto &...src) {
        const Work work = detail::combination::workOf(first, second, len, count);
        const bool parallel = isArray && movedByOneThread.isParallel(work);
        return mapElements<T, std::decay_t<decltype(function)>, 2>(function, parallel, count, 1, len,
                                                                   {dst.addresses(1, len), {src.addresses(1, len)...}});
    });
}

} // namespace lxpm
