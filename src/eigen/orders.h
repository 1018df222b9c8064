// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The kernels of both eigenproblems go through the objects of a call in the same way.

#include "runtime/addresses.h"

#include <lxpm/types.h>

#include <cstddef>

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

// Calls wide(object) for groups of twice as many objects as there are lanes, group(object) for one of as many, and
// solve(object) for each where there are fewer. What no group is left for goes together with some that are computed
// again, to the same results: a group takes hardly longer than one object.
template <int lanes, class Wide, class Group, class Solve>
inline LxpStatus overGroups(int first, int count, const Wide &wide, const Group &group, const Solve &solve) {
    if (count < lanes) {
        return overEach(first, count, solve);
    }
    FirstStatus status;
    int object = 0;
    for (; object + 2 * lanes <= count; object += 2 * lanes) {
        status.record(wide(first + object));
    }
    const int left = count - object;
    if (left > lanes && object > 0) {
        status.record(wide(first + count - 2 * lanes));
        return status.get();
    }
    if (left > lanes) {
        status.record(group(first));
    }
    if (left > 0) {
        status.record(group(first + count - lanes));
    }
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
