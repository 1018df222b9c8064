// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// How the members of LUDecomp and LUBackSubst run. For the sources that instantiate them, one for each type.

#include "runtime/parallel.h"
#include "runtime/rows.h"
#include "runtime/work.h"
#include "solvers/by_groups.h"
#include "solvers/elimination.h"
#include "solvers/lu.h"
#include "solvers/lu_substitution.h"
#include "solvers/register_rows.h"
#include "solvers/right_sides.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <immintrin.h>

namespace lxpm {

namespace detail::lu {

inline constexpr InOrder orderOfChecks = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// When an array is serial.
inline constexpr Row<Threshold> thresholds[] = {
    {"ma", Layouts::All, Types::Both, serialUpTo(1000)},
    {"mva", Layouts::All, Types::Both, serialUpTo(700)},
    {"mava", Layouts::All, Types::Both, serialUpTo(1200)},
};

// Four numbers of each object, as integers: register after register.
inline void integersOfObjects(Group<double> a, Group<double> b, Group<double> c, Group<double> d, __m128i *objects) {
    const auto integers = [](Group<double> numbers) {
        return Lanes<float, 4>{_mm_castsi128_ps(_mm256_cvttpd_epi32(numbers.vector))};
    };
    std::array<Lanes<float, 4>, 4> rows = {integers(a), integers(b), integers(c), integers(d)};
    transpose(rows);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        objects[i] = _mm_castps_si128(rows[i].vector);
    }
}

inline void integersOfObjects(Group<float> a, Group<float> b, Group<float> c, Group<float> d, __m128i *objects) {
    const auto integers = [](Group<float> numbers) {
        return Group<float>{_mm256_castsi256_ps(_mm256_cvttps_epi32(numbers.vector))};
    };
    std::array<Group<float>, 4> rows = {integers(a), integers(b), integers(c), integers(d)};
    transposeHalves(rows);
#pragma GCC unroll 4
    for (int i = 0; i < 4; ++i) {
        objects[i] = _mm_castps_si128(lowHalf(rows[i]).vector);
        objects[i + 4] = _mm_castps_si128(highHalf(rows[i]).vector);
    }
}

// Row numbers of a group, as they are stored with its objects: by fours, the last of more than four together with some
// that are stored again. The three of an object are stored with the first one of the next, which follows.
template <class T>
[[gnu::always_inline]] inline void storeIndex(const Group<T> *index, int n, int *to) {
    if (n < 3) {
        T numbers[groupSize<T>];
        for (int k = 0; k < n; ++k) {
            index[k].store(numbers);
            for (int lane = 0; lane < groupSize<T>; ++lane) {
                to[lane * n + k] = static_cast<int>(numbers[lane]);
            }
        }
        return;
    }
    const int last = std::max(n - 4, 0);
    for (int first = 0; first < n; first += 4) {
        const int k = std::min(first, last);
        __m128i objects[groupSize<T>];
        integersOfObjects(index[k], index[k + 1], index[k + 2], index[std::min(k + 3, n - 1)], objects);
#pragma GCC unroll 8
        for (int lane = 0; lane + 1 < groupSize<T>; ++lane) {
            _mm_storeu_si128(reinterpret_cast<__m128i *>(to + std::ptrdiff_t(lane) * n + k), objects[lane]);
        }
        int *const ofLast = to + std::ptrdiff_t(groupSize<T> - 1) * n + k;
        if (n == 3) {
            _mm_storel_epi64(reinterpret_cast<__m128i *>(ofLast), objects[groupSize<T> - 1]);
            ofLast[2] = _mm_extract_epi32(objects[groupSize<T> - 1], 2);
        } else {
            _mm_storeu_si128(reinterpret_cast<__m128i *>(ofLast), objects[groupSize<T> - 1]);
        }
    }
}

template <class T>
struct Decomposition {
    int order;
    Addresses<const T> source;
    int *index;
    Addresses<T> destination;

    Decomposition from(std::ptrdiff_t object) const {
        return {order, source.from(object), index + object * order, destination.from(object)};
    }
};

template <class T, int Order, class Source, class Destination>
bool decomposeGroup(const Source &source, const Destination &destination, int order, int *index,
                    std::ptrdiff_t object) {
    const int n = Order != 0 ? Order : order;
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    Group<T> rowNumbers[Order != 0 ? Order : largestCopied];
    source.template load<Order, Order>(object, a);
    LaneRows<Group<T>, Order> rows(a, rowNumbers, n);
    if (eliminate<RulesOf<Order>>(rows) < n) {
        return false;
    }
    storeIndex(rowNumbers, n, index);
    if constexpr (Order == 3) { // nine elements are fewer stores than three times three
        Group<T> inPlace[9];
        putRows<3, 3>(a, rowNumbers, inPlace);
        destination.template store<3, 3>(object, inPlace);
    } else {
        destination.template store<Order>(object, a, index, rowNumbers);
    }
    return true;
}

// Orders with rules of their own work on a copy: what is written of an object that fails are the rows finished before.
template <class T, int Order, class Source, class Destination>
LxpStatus decomposeKnownOrder(const Source &source, int *index, const Destination &destination) {
    RegisterRows<T, Order> rows(source);
    const int done = eliminate<RulesOf<Order>>(rows);
    overRange<Order>(
        0, done, [&](auto k) __attribute__((always_inline)) {
            index[k] = rows.rowNumber(k);
            rows.storeRow(k, destination, rows.rowNumber(k));
        });
    return done < Order ? lxpStatusSingularErr : lxpStatusOk;
}

// Others work in the destination.
template <class T, class Matrix>
LxpStatus eliminateAnyOrder(const Matrix &matrix, int *index, int n) {
    IndexedRows<T, Matrix> rows(matrix, index, n);
    return eliminate<AnyOrderRules>(rows) < n ? lxpStatusSingularErr : lxpStatusOk;
}

template <class T>
[[gnu::noinline]] LxpStatus decomposeAnyOrder(Decomposition<T> call) {
    const auto &[n, source, index, destination] = call;
    if (!destination.rowsTouch() && n <= largestCopied) {
        T a[largestGroup];
        copyMatrix<Part::Whole>(source, plainMatrix(a, n), n, n);
        const LxpStatus status = eliminateAnyOrder<T>(TouchingMatrix<T>{a, n}, index, n);
        copyMatrix<Part::Whole>(plainMatrix<const T>(a, n), destination, n, n);
        return status;
    }
    copyMatrix<Part::Whole>(source, destination, n, n);
    return withViews([&](const auto &a) { return eliminateAnyOrder<T>(a, call.index, call.order); }, destination);
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus decomposeOne(const Decomposition<T> &call) {
    if constexpr (Order != 0) {
        return withViews(
            [&](const auto &from, const auto &to) { return decomposeKnownOrder<T, Order>(from, call.index, to); },
            call.source, call.destination);
    } else {
        return decomposeAnyOrder<T>(call);
    }
}

template <class T, int Order>
LxpStatus decomposeObjects(const Decomposition<T> &call, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &source, const auto &destination) {
        return decomposeGroup<T, Order>(source, destination, n, call.index + object * n, object);
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

template <class T>
struct Substitution {
    int order;
    Addresses<const T> factors;
    const int *index;
    Addresses<const T> right;
    Addresses<T> solution;

    Substitution from(std::ptrdiff_t object) const {
        const int *const indexOfObject = factors.isSingle() ? index : index + object * order;
        return {order, factors.from(object), indexOfObject, right.from(object), solution.from(object)};
    }
};

// Factors and right-hand sides in lanes.
template <class T, int Order, class Source, class Destination>
void substituteGroup(const Source &factors, const Source &right, const Destination &solution, int order,
                     const int *index, std::ptrdiff_t object) {
    const int n = Order != 0 ? Order : order;
    Group<T> a[Order != 0 ? Order * Order : largestGroup];
    Group<T> x[Order != 0 ? Order : largestCopied];
    factors.template load<Order, Order>(object, a, index);
    right.template load<Order, 1>(object, x, index);
    const TouchingMatrix<Group<T>> matrix = {a, n};
    substitute<Order, Group<T>>(matrix, x, n);
    solution.template store<Order != 0, Order>(object, x);
}

// Object 0.
template <class T, int Order>
[[gnu::always_inline]] inline LxpStatus substituteOne(const Substitution<T> &call) {
    const int n = Order != 0 ? Order : call.order;
    const auto solve = [&](const auto &a, auto &&x) __attribute__((always_inline)) {
        overRange<Order>(
            0, n, [&](int i) __attribute__((always_inline)) { x[i] = *call.right.at(0, 0, call.index[i]); });
        const auto inPivotOrder = [&](int i, int j) __attribute__((always_inline)) {
            return a(call.index[i], j);
        };
        substitute<Order, T>(inPivotOrder, x, n);
    };
    solveOne<Order, Part::Whole>(call.factors, n, call.solution, solve);
    return lxpStatusOk;
}

// One matrix, many right-hand sides.
template <class T, int Order>
LxpStatus substituteMany(const Substitution<T> &call, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto oneByOne = [&](std::ptrdiff_t object) { return substituteOne<T, Order>(call.from(object)); };
    const auto inPivotOrder = [index = call.index](int i) { return index[i]; };
    const auto run = [&](const auto &factors) {
        const auto solve = [&]<class V>(V * x) __attribute__((always_inline)) {
            substitute<Order, V>(factors, x, n);
        };
        return overRightSides<Order, T>({call.right, n, call.solution, n}, first, count, inPivotOrder, solve, oneByOne);
    };
    if (count < groupSize<T> || n > largestCopied) { // not worth a copy, or too large for it
        return run([&](int i, int j) { return *call.factors.at(0, call.index[i], j); });
    }
    T a[Order != 0 ? Order * Order : largestGroup];
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            a[i * n + j] = *call.factors.at(0, call.index[i], j);
        }
    }
    return run(TouchingMatrix<T>{a, n});
}

// A matrix for each right-hand side.
template <class T, int Order>
LxpStatus substituteEach(const Substitution<T> &call, int first, int count) {
    const int n = Order != 0 ? Order : call.order;
    const auto inLanes = [&](auto, std::ptrdiff_t object, const auto &factors, const auto &right,
                             const auto &solution) {
        substituteGroup<T, Order>(factors, right, solution, n, call.index + object * n, object);
    };
    const auto one = [&](std::ptrdiff_t object) { return substituteOne<T, Order>(call.from(object)); };
    const auto right = call.right.transposed(); // for its rows to be permuted
    return byGroups<T, Order>(n <= largestCopied, first, count, inLanes, one, ForObjects{call.factors, n, n},
                              ForObjects{right, n, 1}, ForObjects{call.solution, 1, n});
}

template <class T, int Order>
LxpStatus substituteObjects(const Substitution<T> &call, int first, int count) {
    return call.factors.isSingle() ? substituteMany<T, Order>(call, first, count)
                                   : substituteEach<T, Order>(call, first, count);
}

template <class T>
LxpStatus substituteAll(bool parallel, int count, const Substitution<T> &call) {
    return overObjects(parallel, count, [&](int first, int objects) {
        return withOrder(call.order, [&](auto order) { return substituteObjects<T, order>(call, first, objects); });
    });
}

} // namespace detail::lu

template <Code operands, class T, Layout memory>
LxpStatus LUDecompMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::lu::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[source, index, destination, size, number] = arguments.parts;
    const int n = size.width();

    const detail::lu::Decomposition<T> call = {n, source.addresses(n, n), index.first, destination.addresses(n, n)};
    if constexpr (isArray) {
        const int count = number.value;
        const bool parallel = rowOf<LUDecompMember, detail::lu::thresholds>.isParallel(Work(n) * n * count);
        return detail::lu::decompose<T>(parallel, count, call);
    } else {
        return withOrder(n, [&](auto order) { return detail::lu::decomposeOne<T, order>(call); });
    }
}

template <Code operands, class T, Layout memory>
LxpStatus LUBackSubstMember<operands, T, memory>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<detail::lu::orderOfChecks>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[factors, index, right, destination, size, number] = arguments.parts;
    const int n = size.width();

    const detail::lu::Substitution<T> call = {n, factors.addresses(n, n), index.first, right.addresses(1, n),
                                              destination.addresses(1, n)};
    if constexpr (isArray) {
        constexpr Kind matrix = operands[0];
        const int count = number.value;
        const Work work = matrix.array ? (Work(n) + 2) * n * count : (Work(n) + Work(2) * count) * n;
        const bool parallel = rowOf<LUBackSubstMember, detail::lu::thresholds>.isParallel(work);
        return detail::lu::substituteAll<T>(parallel, count, call);
    } else {
        return withOrder(n, [&](auto order) { return detail::lu::substituteOne<T, order>(call); });
    }
}

} // namespace lxpm
