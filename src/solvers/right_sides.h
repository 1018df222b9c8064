// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Many right-hand sides of one matrix, one in each lane. Every element of the factors is fetched once for several
// groups, which go side by side: each waits for its sums and quotients while the others compute.

#include "runtime/groups.h"
#include "runtime/twice.h"
#include "solvers/by_groups.h"

#include <lxpm/types.h>

#include <algorithm>
#include <cstddef>

namespace lxpm {

// Where right-hand sides stand and solutions go; the numbers of their elements.
template <class T>
struct RightSides {
    Addresses<const T> right;
    int rows;
    Addresses<T> solution;
    int columns;
};

namespace detail {

template <class V, int Order, class Source, class Destination, class RowOf, class Solve>
void solveSideBySide(const Source &right, const Destination &solution, int rows, int columns, const RowOf &rowOf,
                     const Solve &solve, std::ptrdiff_t object) {
    using T = ElementOf<V>;
    constexpr int most = Order != 0 ? Order : largestGroup;
    V x[most];
    loadSideBySide<most>(
        x, Order != 0 ? Order : rows,
        [&](int group, Group<T> *to) __attribute__((always_inline)) {
            right.template load<Order != 0, Order>(object + group * groupSize<T>, to);
        },
        rowOf);
    solve(x);
    storeSideBySide<most>(
        x, Order != 0 ? Order : columns, [&](int group, const Group<T> *from) __attribute__((always_inline)) {
            solution.template store<Order != 0, Order>(object + group * groupSize<T>, from);
        });
}

} // namespace detail

// solve(x) makes of the elements of right-hand sides, x[i] the one of row rowOf(i), those of the solutions; one(object)
// does so for one object, where there are too few for a group or they are too large for one.
template <int Order, class T, class RowOf, class Solve, class One>
LxpStatus overRightSides(const RightSides<T> &sides, int first, int count, const RowOf &rowOf, const Solve &solve,
                         const One &one) {
    constexpr int atOnce = Order != 0 ? 2 : 4; // the elements of known orders stay in registers
    const GroupSource<T> right(sides.right, 1, sides.rows);
    const GroupDestination<T> solution(sides.solution, 1, sides.columns);
    const auto withGroup = [&](const auto &over) {
        withPlain<Order>(
            [&](const auto &from, const auto &to) {
                over([&](auto lanes, std::ptrdiff_t object) {
                    detail::solveSideBySide<decltype(lanes), Order>(from, to, sides.rows, sides.columns, rowOf, solve,
                                                                    object);
                    return true;
                });
            },
            right, solution);
    };
    return byGroups<T, atOnce>(std::max(sides.rows, sides.columns) <= largestGroup, first, count, withGroup, one);
}

} // namespace lxpm
