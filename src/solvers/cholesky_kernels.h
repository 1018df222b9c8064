// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of CholeskyDecomp and CholeskyBackSubst run. For the sources that instantiate them, one for each
// type.

#include "runtime/numbers.h"
#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"
#include "solvers/by_groups.h"
#include "solvers/cholesky.h"
#include "solvers/matrices.h"
#include "solvers/right_sides.h"

#include <cstddef>
#include <immintrin.h>
#include <type_traits>

namespace lxpm {

namespace detail::cholesky {

inline constexpr InOrder orderOfChecks = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// When an array is serial.
inline constexpr Row<Thresholds> thresholds[] = {
    //                                    contiguous        strided
    {"ma", Layouts::S, Types::F32, {serialUpTo(7500), serialUpTo(7500)}},
    {"ma", Layouts::L, Types::F64, {serialUpTo(720), serialUpTo(2000)}},
    {"ma", Layouts::All, Types::Both, {serialUpTo(2000), serialUpTo(2000)}},
    {"mva", Layouts::S, Types::F32, {serialUpTo(1200), serialUpTo(1200)}},
    {"mva", Layouts::All, Types::Both, {serialUpTo(720), serialUpTo(720)}},
    {"mava", Layouts::S, Types::F32, {serialUpTo(2050), serialUpTo(1700)}},
    {"mava", Layouts::P, Types::F64, {serialUpTo(2050), serialUpTo(2050)}},
    {"mava", Layouts::All, Types::Both, {serialUpTo(1700), serialUpTo(1700)}},
};

// 1 / sqrt(d): in 32f the processor's estimate, refined by one step of Newton's method.
inline float estimate(float d) {
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(d)));
}

inline Group<float> estimate(Group<float> d) {
    return {_mm256_rsqrt_ps(d.vector)};
}

template <class V>
[[gnu::always_inline]] inline V reciprocalRoot(V d) {
    if constexpr (std::is_same_v<ElementOf<V>, float>) {
        const V y = estimate(d);
        return (constant<V>(-0.5) * y) * ((d * y) * y - constant<V>(3));
    } else {
        return constant<V>(1) / root(d);
    }
}

// Row by row; the factor may be where the source is. Returns the number of rows in front of the first one whose
// diagonal value is not positive, in any lane; the order if there is none. Of that row all but the diagonal is there.
template <int Order, class V, class Source, class Factor>
[[gnu::always_inline]] inline int factorize(const Source &a, Factor &l, int order) {
    const int n = Order != 0 ? Order : order;
    int done = n;
    overRange<Order>(
        0, n, [&](int i) __attribute__((always_inline)) {
            if (done < i) {
                return;
            }
            V d = a(i, i);
            overRange<Order>(
                0, i, [&](int j) __attribute__((always_inline)) {
                    V element = a(i, j);
                    overRange<Order>(
                        0, j, [&](int k) __attribute__((always_inline)) { element = element - l(i, k) * l(j, k); });
                    element = element * l(j, j);
                    l.put(i, j, element);
                    d = d - element * element;
                });
            if (any(isLessEqual(d, constant<V>(0)))) {
                done = i;
                return;
            }
            l.put(i, i, reciprocalRoot(d));
        });
    return done;
}

template <class T>
struct Decomposition {
    int order;
    Addresses<const T> source;
    Addresses<T> destination;

    Decomposition from(std::ptrdiff_t object) const { return {order, source.from(object), destination.from(object)}; }
};

template <class T, int Order, class Source, class Destination>
bool decomposeGroup(const Source &source, const Destination &destination, int order, std::ptrdiff_t object) {
    const int n = Order != 0 ? Order : order;
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    source.template loadLowerTriangle<Order>(object, a);
    const TouchingMatrix<Group<T>> matrix = {a, n};
    if (factorize<Order, Group<T>>(matrix, matrix, n) < n) {
        return false;
    }
    destination.template storeLowerTriangle<Order>(object, a);
    return true;
}

constexpr LxpStatus statusOf(int done, int order) {
    return done < order ? lxpStatusNotPosDefErr : lxpStatusOk;
}

template <class T, int Order, class Source, class Destination>
LxpStatus decomposeKnownOrder(const Source &source, const Destination &destination) {
    KeptMatrix<T, Order, Destination> factor(destination);
    return statusOf(factorize<Order, T>(source, factor, Order), Order);
}

template <class T>
[[gnu::noinline]] LxpStatus decomposeAnyOrder(Decomposition<T> call) {
    const auto &[n, source, destination] = call;
    const bool rowsTouch = source.rowsTouch() && destination.rowsTouch();
    if (rowsTouch || n > largestCopied) {
        return withViews(
            [&](const auto &a, const auto &l) { return statusOf(factorize<0, T>(a, l, call.order), call.order); },
            source, destination);
    }
    T a[largestGroup];
    copyMatrix<Part::LowerTriangle>(source, plainMatrix(a, n), n, n);
    const TouchingMatrix<T> matrix = {a, n};
    const int done = factorize<0, T>(matrix, matrix, n);
    copyMatrix<Part::LowerTriangle>(plainMatrix<const T>(a, n), destination, done, n);
    for (int j = 0; j < done && done < n; ++j) {
        *destination.at(0, done, j) = matrix(done, j);
    }
    return statusOf(done, n);
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus decomposeOne(const Decomposition<T> &call) {
    if constexpr (Order != 0) {
        return withViews([&](const auto &from, const auto &to) { return decomposeKnownOrder<T, Order>(from, to); },
                         call.source, call.destination);
    } else {
        return decomposeAnyOrder<T>(call);
    }
}

template <class T, int Order>
LxpStatus decomposeObjects(const Decomposition<T> &call, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &source, const auto &destination) {
        return decomposeGroup<T, Order>(source, destination, n, object);
    };
    const auto one = [&](std::ptrdiff_t object) { return decomposeOne<T, Order>(call.from(object)); };
    return byGroups<T, Order>(n <= largestCopied, first, count, inLanes, one, ForObjects{call.source, n, n},
                              ForObjects{call.destination, n, n});
}

template <class T>
LxpStatus decompose(bool parallel, int count, const Decomposition<T> &call) {
    return overObjects(parallel, count, [&](int first, int objects) {
        return withOrder(call.order, [&](auto order) { return decomposeObjects<T, order>(call, first, objects); });
    });
}

// L * y = b, then transposed(L) * x = y, in place.
template <int Order, class V, class Factor, class Vector>
[[gnu::always_inline]] inline void substitute(const Factor &l, Vector &x, int order) {
    const int n = Order != 0 ? Order : order;
    overRange<Order>(
        0, n, [&](int i) __attribute__((always_inline)) {
            V element = x[i];
            overRange<Order>(
                0, i, [&](int j) __attribute__((always_inline)) { element = element - number<V>(l(i, j)) * x[j]; });
            x[i] = element * number<V>(l(i, i));
        });
    overRangeDown<Order>(
        0, n, [&](int i) __attribute__((always_inline)) {
            V element = x[i];
            overRange<Order>(
                i + 1, n, [&](int j) __attribute__((always_inline)) { element = element - number<V>(l(j, i)) * x[j]; });
            x[i] = element * number<V>(l(i, i));
        });
}

template <class T>
struct Substitution {
    int order;
    Addresses<const T> factors;
    Addresses<const T> right;
    Addresses<T> solution;

    Substitution from(std::ptrdiff_t object) const {
        return {order, factors.from(object), right.from(object), solution.from(object)};
    }
};

// Factors and right-hand sides in lanes.
template <class T, int Order, class Source, class Destination>
void substituteGroup(const Source &factors, const Source &right, const Destination &solution, int order,
                     std::ptrdiff_t object) {
    const int n = Order != 0 ? Order : order;
    Group<T> l[Order != 0 ? Order * Order : largestGroup];
    Group<T> x[Order != 0 ? Order : largestCopied];
    factors.template loadLowerTriangle<Order>(object, l);
    right.template load<Order != 0, Order>(object, x);
    const TouchingMatrix<Group<T>> matrix = {l, n};
    substitute<Order, Group<T>>(matrix, x, n);
    solution.template store<Order != 0, Order>(object, x);
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus substituteOne(const Substitution<T> &call) {
    const int n = Order != 0 ? Order : call.order;
    const auto solve = [&](const auto &l, auto &&x) __attribute__((always_inline)) {
        overRange<Order>(
            0, n, [&](int i) __attribute__((always_inline)) { x[i] = *call.right.at(0, 0, i); });
        substitute<Order, T>(l, x, n);
    };
    solveOne<Order, Part::LowerTriangle>(call.factors, n, call.solution, solve);
    return lxpStatusOk;
}

template <class T, int Order>
LxpStatus substituteObjects(const Substitution<T> &call, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto one = [&](std::ptrdiff_t object) { return substituteOne<T, Order>(call.from(object)); };
    if (!call.factors.isSingle()) {
        const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &factors, const auto &right,
                                 const auto &solution) {
            substituteGroup<T, Order>(factors, right, solution, n, object);
        };
        return byGroups<T, Order>(n <= largestCopied, first, count, inLanes, one, ForObjects{call.factors, n, n},
                                  ForObjects{call.right, 1, n}, ForObjects{call.solution, 1, n});
    }
    LxpStatus status = lxpStatusOk;
    T copy[Order != 0 ? Order * Order : largestGroup];
    withViewOrCopy<Part::LowerTriangle>(call.factors, n, n, copy, [&](const auto &factor) {
        const auto solve = [&]<class V>(V * x) __attribute__((always_inline)) {
            substitute<Order, V>(factor, x, n);
        };
        status = overRightSides<Order, T>({call.right, n, call.solution, n}, first, count, AsTheyStand(), solve, one);
    });
    return status;
}

template <class T>
LxpStatus substituteAll(bool parallel, int count, const Substitution<T> &call) {
    return overObjects(parallel, count, [&](int first, int objects) {
        return withOrder(call.order, [&](auto order) { return substituteObjects<T, order>(call, first, objects); });
    });
}

} // namespace detail::cholesky

template <Code operands, class T, Layout memory>
LxpStatus CholeskyDecompMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::cholesky::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, destination, size, number] = arguments.parts;
    const int n = size.width();

    const detail::cholesky::Decomposition<T> call = {n, source.addresses(n, n), destination.addresses(n, n)};
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel = rowOf<CholeskyDecompMember, detail::cholesky::thresholds>.isParallel(
            Work(n) * n * count, source.isContiguous() && destination.isContiguous());
        return detail::cholesky::decompose<T>(parallel, count, call);
    } else {
        return withOrder(n, [&](auto order) { return detail::cholesky::decomposeOne<T, order>(call); });
    }
}

template <Code operands, class T, Layout memory>
LxpStatus CholeskyBackSubstMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::cholesky::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[factors, right, destination, size, number] = arguments.parts;
    const int n = size.width();

    const detail::cholesky::Substitution<T> call = {n, factors.addresses(n, n), right.addresses(1, n),
                                                    destination.addresses(1, n)};
    if constexpr (isArray) {
        constexpr Kind matrix = operands[0];
        const int count = number.value;
        const Work work = matrix.array ? (Work(n) + 2) * n * count : (Work(n) + Work(2) * count) * n;
        const bool parallel = rowOf<CholeskyBackSubstMember, detail::cholesky::thresholds>.isParallel(
            work, factors.isContiguous() && right.isContiguous() && destination.isContiguous());
        return detail::cholesky::substituteAll<T>(parallel, count, call);
    } else {
        return withOrder(n, [&](auto order) { return detail::cholesky::substituteOne<T, order>(call); });
    }
}

} // namespace lxpm
