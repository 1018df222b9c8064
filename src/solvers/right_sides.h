// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Many right-hand sides of one matrix, one in each lane. Every element of the factors is fetched once for several
// groups, which go side by side: each waits for its sums and quotients while the others compute.

#include "runtime/addresses.h"
#include "runtime/groups.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "runtime/twice.h"
#include "solvers/by_groups.h"
#include "solvers/matrices.h"

#include <lxpm/types.h>

#include <cstddef>
#include <type_traits>

namespace lxpm {

// Right-hand sides of `rows` elements, solutions of `columns`: those of the matrix, which has no more columns than
// rows.
template <class T>
struct RightSides {
    Addresses<const T> right;
    int rows;
    Addresses<T> solution;
    int columns;
};

// One right-hand side: solve(factors, x) leaves the solution of `size` elements in x.

template <Part part, class T, class Solve>
[[gnu::noinline]] void solveAnyOrder(Addresses<const T> factors, int size, Addresses<T> solution, const Solve &solve) {
    if (size > largestGroup) {
        withViews([&](const auto &a) { solve(a, AnyVector<T>{solution}); }, factors);
        return;
    }
    T copy[largestGroup];
    T x[largestGroup];
    withViewOrCopy<part>(factors, size, size, copy, [&](const auto &a) { solve(a, x); });
    for (int i = 0; i < size; ++i) {
        *solution.at(0, 0, i) = x[i];
    }
}

template <int Order, Part part, class T, class Solve>
[[gnu::always_inline]] inline void solveOne(const Addresses<const T> &factors, int size, const Addresses<T> &solution,
                                            const Solve &solve) {
    if constexpr (Order == 0) {
        solveAnyOrder<part>(factors, size, solution, solve);
    } else {
        T x[Order];
        withViews(
            [&](const auto &a) __attribute__((always_inline)) { solve(a, x); }, factors);
        overRange<Order>(
            0, size, [&](int i) __attribute__((always_inline)) { *solution.at(0, 0, i) = x[i]; });
    }
}

struct AsTheyStand {
    int operator()(int i) const { return i; }
};

namespace detail {

// As many elements as fit the stack and the first cache, whatever goes side by side.
template <class V>
inline constexpr int largestRightSide = largestGroup / groupsIn<V>;

// Never part of its callers, so that only one of them is on the stack.
template <class V, int Order, class Source, class Destination, class RowOf, class Solve>
[[gnu::noinline]] void solveSideBySide(const Source &right, const Destination &solution, int rows, int columns,
                                       const RowOf &rowOf, const Solve &solve, std::ptrdiff_t object) {
    using T = ElementOf<V>;
    constexpr int groups = groupsIn<V>;
    constexpr int most = Order != 0 ? Order : largestRightSide<V>;
    const int height = Order != 0 ? Order : rows;
    const int width = Order != 0 ? Order : columns;
    Group<T> elements[groups * most];
    V x[most];
    forEachOf<groups>([&](auto group) __attribute__((always_inline)) {
        right.template load<Order != 0, Order>(object + group * groupSize<T>, elements + group * height);
    });
    overRange<Order>(
        0, height, [&](int i) __attribute__((always_inline)) {
            forEachOf<groups>([&](auto group) __attribute__((always_inline)) {
                groupOf<group>(x[i]).vector = elements[group * height + rowOf(i)].vector;
            });
        });
    solve(x);
    storeGroups<Order, most>(
        x, width, [&](auto group, const Group<T> *results) __attribute__((always_inline)) {
            solution.template store<Order != 0, Order>(object + group * groupSize<T>, results);
        });
}

} // namespace detail

// solve(x) makes of the elements of right-hand sides, x[i] the one of row rowOf(i), those of the solutions; one(object)
// does so for one object, where there are too few for a group or they are too large for one.
template <int Order, class T, class RowOf, class Solve, class One>
LxpStatus overRightSides(const RightSides<T> &sides, int first, int count, const RowOf &rowOf, const Solve &solve,
                         const One &one) {
    const auto inLanes = [&](auto lanes, std::ptrdiff_t object, const auto &right, const auto &solution) {
        detail::solveSideBySide<decltype(lanes), Order>(right, solution, sides.rows, sides.columns, rowOf, solve,
                                                        object);
    };
    const auto run = [&]<int atOnce>(std::integral_constant<int, atOnce>, bool fitsLanes) {
        return byGroups<T, Order, atOnce>(fitsLanes, first, count, inLanes, one, ForObjects{sides.right, 1, sides.rows},
                                          ForObjects{sides.solution, 1, sides.columns});
    };
    if constexpr (Order != 0) {
        return run(std::integral_constant<int, 2>(), true); // the elements of more do not stay in registers
    } else if (sides.rows <= detail::largestRightSide<SideBySide<Group<T>, 4>>) {
        return run(std::integral_constant<int, 4>(), true);
    }
    return run(std::integral_constant<int, 1>(), sides.rows <= detail::largestRightSide<Group<T>>);
}

} // namespace lxpm
