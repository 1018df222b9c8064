// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of Det run. For the sources that instantiate them, one for each type.

#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"
#include "solvers/by_groups.h"
#include "solvers/det.h"
#include "solvers/elimination.h"
#include "solvers/register_rows.h"
#include "solvers/scratch.h"

#include <cstddef>

namespace lxpm {

namespace detail::det {

inline constexpr InOrder orderOfChecks = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// When an array is serial.
inline constexpr Threshold threshold = serialUpTo(8000);

// Orders 1 to 4, by expansion along the first row.
template <class V, class Matrix>
[[gnu::always_inline]] inline V minor(const Matrix &a, int row, int i, int j) {
    return a(row, i) * a(row + 1, j) - a(row, j) * a(row + 1, i);
}

template <class V, class Matrix>
[[gnu::always_inline]] inline V minorOfThree(const Matrix &a, int row, int i, int j, int k) {
    return (a(row, i) * minor<V>(a, row + 1, j, k) - a(row, j) * minor<V>(a, row + 1, i, k)) +
           a(row, k) * minor<V>(a, row + 1, i, j);
}

template <int Order, class V, class Matrix>
[[gnu::always_inline]] inline V expand(const Matrix &a) {
    if constexpr (Order == 1) {
        return a(0, 0);
    } else if constexpr (Order == 2) {
        return minor<V>(a, 0, 0, 1);
    } else if constexpr (Order == 3) {
        return minorOfThree<V>(a, 0, 0, 1, 2);
    } else {
        static_assert(Order == 4);
        return (minorOfThree<V>(a, 1, 1, 2, 3) * a(0, 0) - minorOfThree<V>(a, 1, 0, 2, 3) * a(0, 1)) +
               (minorOfThree<V>(a, 1, 0, 1, 3) * a(0, 2) - minorOfThree<V>(a, 1, 0, 1, 2) * a(0, 3));
    }
}

// Rows that keep account of the sign of their permutation.
template <class Rows>
class SignedRows : public Rows {
public:
    using Number = typename Rows::Number;
    using Rows::Rows;

    template <class K, class Found>
    [[gnu::always_inline]] void bringUp(K k, Found pivot) {
        sign = choose(Rows::moves(pivot, k), negated(sign), sign);
        Rows::bringUp(k, pivot);
    }

    Number sign = constant<Number>(1);
};

// Larger orders, by elimination in place: the product of the pivots, in ascending order. A pivot of zero makes it 0.
template <class Rows>
[[gnu::always_inline]] inline bool multiplyPivots(SignedRows<Rows> &rows, typename Rows::Number &product) {
    const int n = rows.order();
    if (eliminate<DeterminantRules>(rows) < n) {
        return false;
    }
    product = rows.sign;
    overRange<Rows::knownOrder>(
        0, n, [&](auto k) __attribute__((always_inline)) { product = product * rows(k, k); });
    return true;
}

template <class T>
struct Determinants {
    int order;
    Addresses<const T> source;
    T *results;
};

template <class T, int Order, class Source>
bool determinantsOfGroup(const Source &source, int order, T *results, std::ptrdiff_t object) {
    const int n = Order != 0 ? Order : order;
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    source.template load<Order, Order>(object, a);
    Group<T> result;
    if constexpr (Order != 0 && Order <= 4) {
        result = expand<Order, Group<T>>(TouchingMatrix<Group<T>>{a, Order});
    } else {
        Group<T> rowNumbers[Order != 0 ? Order : largestCopied];
        SignedRows<LaneRows<Group<T>, Order>> rows(a, rowNumbers, n);
        if (!multiplyPivots(rows, result)) {
            return false;
        }
    }
    result.store(results + object);
    return true;
}

template <class T, int Order, class Matrix>
T determinantOfKnownOrder(const Matrix &a) {
    if constexpr (Order <= 4) {
        return expand<Order, T>(a);
    } else {
        SignedRows<RegisterRows<T, Order>> rows(a);
        T result = 0;
        return multiplyPivots(rows, result) ? result : 0;
    }
}

template <class T>
[[gnu::noinline]] T determinantOfAnyOrder(Addresses<const T> source, int n, T *copy) {
    copyMatrix<Part::Whole>(source, plainMatrix(copy, n), n, n);
    const TouchingMatrix<T> a = {copy, n};
    int small[largestCopied];
    int *const rowNumbers = n <= largestCopied ? small : reinterpret_cast<int *>(copy + std::ptrdiff_t(n) * n);
    SignedRows<IndexedRows<T, TouchingMatrix<T>>> rows(a, rowNumbers, n);
    T result = 0;
    return multiplyPivots(rows, result) ? result : 0;
}

// Of object 0. `copy` is for orders without a kernel of their own.
template <class T, int Order>
[[gnu::always_inline]] inline T determinantOf(const Addresses<const T> &source, int n, T *copy) {
    if constexpr (Order != 0) {
        return withViews([](const auto &a) { return determinantOfKnownOrder<T, Order>(a); }, source);
    } else {
        return determinantOfAnyOrder<T>(source, n, copy);
    }
}

// The elements that a matrix too large for the stack needs, with its row numbers.
template <class T>
std::size_t scratchOf(int order) {
    return static_cast<std::size_t>(order) * static_cast<std::size_t>(order) + static_cast<std::size_t>(order);
}

template <class T, int Order>
LxpStatus determinantsOf(const Determinants<T> &call, T *copy, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &source) {
        return determinantsOfGroup<T, Order>(source, n, call.results, object);
    };
    const auto one = [&](std::ptrdiff_t object) {
        call.results[object] = determinantOf<T, Order>(call.source.from(object), n, copy);
        return lxpStatusOk;
    };
    return byGroups<T, Order>(n <= largestCopied, first, count, inLanes, one, ForObjects{call.source, n, n});
}

// Calls the kernel of an order.
template <class Kernel>
[[gnu::always_inline]] inline LxpStatus withOrderOf(int order, const Kernel &kernel) {
    return withOrder<1, 6>(order, kernel);
}

template <class T>
LxpStatus determinantsOf(const Determinants<T> &call, T *copy, int first, int count) {
    return withOrderOf(call.order, [&](auto order) { return determinantsOf<T, order>(call, copy, first, count); });
}

template <class T>
LxpStatus determinants(bool parallel, int count, const Determinants<T> &call) {
    if (call.order <= largestCopied) {
        return overObjects(parallel, count, [&](int first, int objects) {
            T copy[largestGroup];
            return determinantsOf<T>(call, copy, first, objects);
        });
    }
    const OwnScratch<T> copy(scratchOf<T>(call.order));
    if (copy.isMissing()) {
        return lxpStatusSizeErr;
    }
    return overShares(parallel, count, copy.bytes(), [&](const Share &share) {
        return determinantsOf<T>(call, share.scratchOr(copy.get()), share.first, share.count);
    });
}

// Of the only matrix of a call.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus determinant(const Determinants<T> &call) {
    if constexpr (Order != 0) {
        *call.results = determinantOf<T, Order>(call.source, Order, nullptr);
        return lxpStatusOk;
    } else {
        return determinants<T>(false, 1, Determinants<T>(call)); // a copy: see AnyMatrix
    }
}

} // namespace detail::det

template <Code operands, class T, Layout memory>
LxpStatus DetMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::det::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, size, results, number] = arguments.parts;
    const int n = size.width();

    const detail::det::Determinants<T> call = {n, source.addresses(n, n), results.first};
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel = detail::det::threshold.isParallel(Work(n) * n * count);
        return detail::det::determinants<T>(parallel, count, call);
    } else {
        return detail::det::withOrderOf(n, [&](auto order) { return detail::det::determinant<T, order>(call); });
    }
}

} // namespace lxpm
