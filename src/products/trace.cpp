// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/trace.h"

#include "products/readers.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/straight.h"
#include "runtime/with_order.h"
#include "runtime/work.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

namespace {

constexpr Row<InOrder> orders[] = {
    {allCodes,
     Layouts::All,
     Types::Both,
     {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets}},
};

// When an array is serial.
constexpr Threshold threshold = serialUpTo(3600);

// A matrix's diagonal as a vector.
template <class T>
Addresses<const T> diagonalOf(Addresses<const T> matrix) {
    matrix.step[2] += matrix.step[1];
    matrix.pointerStep[2] += matrix.pointerStep[1];
    return matrix;
}

// The traces of some objects, one beside the other, from addresses that are bytes apart.
template <int Objects, class T>
[[gnu::always_inline]] inline void tracesOf(const T *first, std::ptrdiff_t objectStep, std::ptrdiff_t elementStep,
                                            int order, T *dst) {
    T sums[Objects] = {};
#pragma GCC unroll 16
    for (int i = 0; i < order; ++i) {
#pragma GCC unroll 4
        for (int object = 0; object < Objects; ++object) {
            sums[object] += *shifted(first, object * objectStep);
        }
        first = shifted(first, elementStep);
    }
    std::copy_n(sums, Objects, dst);
}

// Diagonals of up to so many elements are written out.
constexpr int longestWrittenOut = 16;

// Where the elements of a diagonal stand apart, a lane costs as much to fill as the sum that it would save. Short
// diagonals are written out; of longer ones several are summed at a time, for none to wait for its last sum.
//
// Order: of the matrices where it is known beforehand, else 0.
template <int Order, class T>
void tracesOneByOne(const Addresses<const T> &shared, T *dst, int anyOrder, std::ptrdiff_t objects) {
    const Addresses<const T> diagonal = shared; // a copy that no store below can reach
    const int order = Order != 0 ? Order : anyOrder;
    std::ptrdiff_t object = 0;
    if (diagonal.pointers == nullptr) {
        const std::ptrdiff_t objectStep = diagonal.step[0];
        const std::ptrdiff_t elementStep = diagonal.step[2];
        const T *first = diagonal.at(0, 0, 0);
        if constexpr (Order == 0) {
            for (; object + 4 <= objects; object += 4) {
                tracesOf<4>(first, objectStep, elementStep, order, dst + object);
                first = shifted(first, 4 * objectStep);
            }
        }
        for (; object < objects; ++object) {
            tracesOf<1>(first, objectStep, elementStep, order, dst + object);
            first = shifted(first, objectStep);
        }
        return;
    }
    for (; object < objects; ++object) {
        T sum = 0;
        for (int i = 0; i < order; ++i) {
            sum += *diagonal.at(object, 0, i);
        }
        dst[object] = sum;
    }
}

// Where the same element of successive objects touches: one object in each lane. Returns how many objects there were.
template <class T>
std::ptrdiff_t tracesInLanes(const Addresses<const T> &diagonal, T *dst, int order, int objects) {
    std::ptrdiff_t object = 0;
    for (; object + groupSize<T> <= objects; object += groupSize<T>) {
        const GroupReader<T, Reading::Objects> reader(diagonal, object);
        Group<T> sum = Group<T>::splat(0);
        for (int i = 0; i < order; ++i) {
            sum = sum + reader.template read<1>(0, i)[0];
        }
        sum.store(dst + object);
    }
    return object;
}

template <class T>
using Traces = void (*)(const Addresses<const T> &, T *, int, std::ptrdiff_t);

template <class T>
void traces(Addresses<const T> diagonal, T *dst, int order, int objects) {
    if (readingOf(diagonal) == Reading::Objects) {
        const std::ptrdiff_t done = tracesInLanes(diagonal, dst, order, objects);
        diagonal = diagonal.from(done);
        dst += done;
        objects -= static_cast<int>(done);
    }
    const auto chosen =
        withOrder<1, longestWrittenOut>(order, [](auto known) -> Traces<T> { return tracesOneByOne<known, T>; });
    chosen(diagonal, dst, order, objects);
}

// All objects of a call.
template <class T>
[[gnu::noinline]] LxpStatus traceObjects(bool parallel, int count, int order, const Addresses<const T> &source,
                                         T *dst) {
    const Addresses<const T> diagonal = withoutElementPointers(diagonalOf(source), 1, order);
    return overObjects(parallel, count, [&](int first, int objects) {
        traces(diagonal.from(first), dst + first, order, objects);
        return lxpStatusOk;
    });
}

} // namespace

template <Code operands, class T, Layout memory>
LxpStatus TraceMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<rowOf<TraceMember, orders>>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, size, results, number] = arguments.parts;
    const int order = size.width();
    const int count = number.value;

    const bool parallel = isArray && threshold.isParallel(Work(order) * count);
    return traceObjects<T>(parallel, count, order, source.addresses(order, order), results.first);
}

} // namespace lxpm

#define EXPORT_LIST "products/trace.list.h"
#include "runtime/instantiate.h"
