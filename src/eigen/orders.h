// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernels of both eigenproblems go through the objects of a call in the same way.

#include "runtime/addresses.h"

#include <lxpm/types.h>

#include <cstddef>
#include <type_traits>

namespace lxpm {

// Tells the compiler what it cannot see from where an order comes: that all loops over it run.
template <int least, int most>
inline void expectBetween(int order) {
    if (order < least || order > most) {
        __builtin_unreachable();
    }
}

// Of objects that are all computed, whatever becomes of the others: the first status other than lxpStatusOk.
class FirstStatus {
public:
    void record(LxpStatus status) {
        if (first_ == lxpStatusOk) {
            first_ = status;
        }
    }
    LxpStatus get() const { return first_; }

private:
    LxpStatus first_ = lxpStatusOk;
};

// Calls solve(object) for `count` objects.
template <class Solve>
inline LxpStatus overEach(int first, int count, const Solve &solve) {
    FirstStatus status;
    for (int object = first; object < first + count; ++object) {
        status.record(solve(object));
    }
    return status.get();
}

// Groups of `lanes` objects from object `done` on, `atOnce` of them side by side as long as there are as many. If what
// is left is more than half of that, it goes once more so, with objects that are done already; else half as many go.
template <int lanes, int atOnce, class Groups>
inline void overGroupsFrom(int first, int done, int count, const Groups &groups, FirstStatus &status) {
    constexpr int width = atOnce * lanes;
    const std::integral_constant<int, atOnce> number;
    for (; count - done >= width; done += width) {
        status.record(groups(number, first + done));
    }
    const int left = count - done;
    if constexpr (atOnce > 1) {
        if (done == 0 || left <= width / 2) {
            overGroupsFrom<lanes, atOnce / 2>(first, done, count, groups, status);
            return;
        }
    }
    if (left > 0) {
        status.record(groups(number, first + count - width));
    }
}

// Calls groups(number, object) for groups of as many objects as there are lanes, up to `atOnce` of them side by side,
// and solve(object) for each object where there are fewer. What no group is left for goes together with some that are
// computed again, to the same results: a group takes hardly longer than one object, and of several at a time each
// computes while the others wait for their roots and quotients.
template <int lanes, int atOnce, class Groups, class Solve>
inline LxpStatus overGroups(int first, int count, const Groups &groups, const Solve &solve) {
    if (count < lanes) {
        return overEach(first, count, solve);
    }
    FirstStatus status;
    overGroupsFrom<lanes, atOnce>(first, 0, count, groups, status);
    return status.get();
}

// An object as a dense matrix.
template <class Order, class T>
inline void loadDense(const Addresses<const T> &source, int object, Order order, T *to) {
    for (int i = 0; i < order; ++i) {
        for (int j = 0; j < order; ++j) {
            to[static_cast<std::ptrdiff_t>(i) * order + j] = *source.at(object, i, j);
        }
    }
}

} // namespace lxpm
