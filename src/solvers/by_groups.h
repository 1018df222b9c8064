// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/addresses.h"
#include "runtime/groups.h"
#include "runtime/numbers.h"
#include "runtime/twice.h"
#include "solvers/matrices.h"

#include <lxpm/types.h>

#include <cstddef>
#include <type_traits>

namespace lxpm {

// An operand with an object for each of those that are computed.
template <class Element>
struct ForObjects {
    using T = std::remove_const_t<Element>;

    const Addresses<Element> &operand;
    int rows;
    int columns;

    auto inLanes() const {
        if constexpr (std::is_const_v<Element>) {
            return GroupSource<T>(operand, rows, columns);
        } else {
            return GroupDestination<T>(operand, rows, columns);
        }
    }
};

template <class Element>
ForObjects(const Addresses<Element> &, int, int) -> ForObjects<Element>;

namespace detail {

// A kernel that returns nothing cannot fail.
template <class Kernel, class... Arguments>
[[gnu::always_inline]] inline bool isDoneBy(const Kernel &kernel, const Arguments &...arguments) {
    if constexpr (std::is_void_v<std::invoke_result_t<const Kernel &, const Arguments &...>>) {
        kernel(arguments...);
        return true;
    } else {
        return kernel(arguments...);
    }
}

} // namespace detail

// Numbers of kernels with groups side by side, from lanes and back: load(group, elements) and store(group, elements) do
// so for one of the groups. Of `count` numbers, known or (0) at most `most`.
template <int known, int most, class V, class Load>
[[gnu::always_inline]] inline void loadGroups(V *to, int count, const Load &load) {
    if constexpr (groupsIn<V> == 1) {
        load(std::integral_constant<int, 0>(), to);
    } else {
        forEachOf<groupsIn<V>>([&](auto group) __attribute__((always_inline)) {
            Group<ElementOf<V>> elements[most];
            load(group, elements);
            overRange<known>(
                0, count, [&](int i) __attribute__((always_inline)) {
                    groupOf<group>(to[i]).vector = elements[i].vector;
                });
        });
    }
}

template <int known, int most, class V, class Store>
[[gnu::always_inline]] inline void storeGroups(const V *from, int count, const Store &store) {
    if constexpr (groupsIn<V> == 1) {
        store(std::integral_constant<int, 0>(), from);
    } else {
        forEachOf<groupsIn<V>>([&](auto group) __attribute__((always_inline)) {
            Group<ElementOf<V>> elements[most];
            overRange<known>(
                0, count, [&](int i) __attribute__((always_inline)) {
                    elements[i].vector = groupOf<group>(from[i]).vector;
                });
            store(group, elements);
        });
    }
}

// The objects of one thread in ascending order: whole groups in lanes if they fit, what remains one by one; the first
// status other than lxpStatusOk ends it. kernel(lanes, object, operands...) computes the objects from that one on in
// lanes, a Group<T>, and says whether all of them are well. If not, it has written nothing, and they are done again one
// by one, so that what is written and where it stops are those of single objects. (Not the exceptions that are raised:
// those of objects that come with a failing one, and of what a kernel computes before it fails, stay.) It is given the
// operands for reading into lanes and writing from them.
//
// Order: known, or 0. atOnce: 1, 2 or 4 groups side by side, in a SideBySide<Group<T>, atOnce>, as long as there are as
// many; then half of that, and so on.
template <class T, int Order, int atOnce = 1, class Kernel, class One, class... Elements>
LxpStatus byGroups(bool fitsLanes, int first, int count, const Kernel &kernel, const One &one,
                   const ForObjects<Elements> &...operands) {
    const std::ptrdiff_t end = std::ptrdiff_t(first) + count;
    std::ptrdiff_t object = first;
    LxpStatus status = lxpStatusOk;
    const auto oneByOne = [&](std::ptrdiff_t last) {
        for (; object < last && status == lxpStatusOk; ++object) {
            status = one(object);
        }
    };
    const auto inLanes = [&](auto lanes, const auto &...views) __attribute__((always_inline)) {
        constexpr int width = NumberOf<decltype(lanes)>::lanes;
        while (object + width <= end && status == lxpStatusOk) {
            if (detail::isDoneBy(kernel, lanes, object, views...)) {
                object += width;
            } else {
                oneByOne(object + width);
            }
        }
    };
    const auto overGroups = [&](const auto &...views) {
        if constexpr (atOnce >= 4) {
            inLanes(SideBySide<Group<T>, 4>(), views...);
        }
        if constexpr (atOnce >= 2) {
            inLanes(SideBySide<Group<T>, 2>(), views...);
        }
        inLanes(Group<T>(), views...);
    };
    if (fitsLanes && count >= groupSize<T>) {
        withPlain<Order>(overGroups, operands.inLanes()...);
    }
    oneByOne(end);
    return status;
}

} // namespace lxpm
