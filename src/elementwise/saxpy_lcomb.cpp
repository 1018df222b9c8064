// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/saxpy_lcomb.h"

#include "elementwise/threshold.h"
#include "runtime/entry_call.h"
#include "runtime/map.h"

namespace lxpm {

namespace {

constexpr InOrder order = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

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
Work workOf(Kind first, Kind second, int len, int count) {
    return Work(len) * (Work(first.array ? count : 1) + Work(second.array ? count : 1) + count);
}

template <class T, class F>
LxpStatus combine(const F &function, bool parallel, const auto &first, const auto &second, const auto &destination,
                  int len, int count) {
    return mapElements<T, F, 2>(function, parallel, count, 1, len,
                                {destination.addresses(1, len), {first.addresses(1, len), second.addresses(1, len)}});
}

} // namespace

template <class Op, Code operands, class T, Layout memory>
LxpStatus CombinationMember<Op, operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto parallel = [](const VectorLength &length, const Objects &number) {
        return isArray && movedByOneThread.isParallel(workOf(first, second, length.width(), number.value));
    };
    if constexpr (Op::constants == 1) {
        const auto &[src1, val, src2, dst, length, number] = arguments.parts;
        return combine<T>(ScaledSum<T>{val.value()}, parallel(length, number), src1, src2, dst, length.width(),
                          number.value);
    } else {
        const auto &[src1, val1, src2, val2, dst, length, number] = arguments.parts;
        return combine<T>(LinearCombination<T>{val1.value(), val2.value()}, parallel(length, number), src1, src2, dst,
                          length.width(), number.value);
    }
}

#define MEMBER(operation, code, type, layout, name)                                                                    \
    template struct Entry<Member<operation, #code, Element_##type, Layout_##layout>>;
#define EXPORT_LIST "elementwise/saxpy_lcomb.list.h"
#include "runtime/exports.h"

} // namespace lxpm
