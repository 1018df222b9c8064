// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/groups.h"
#include "runtime/twice.h"

#include <lxpm/types.h>

#include <cstddef>

namespace lxpm {

// The objects of one thread in ascending order: whole groups in lanes, what remains one by one; the first status other
// than lxpStatusOk ends it. withGroup(over) calls over(group): group(lanes, object) computes the objects from that one
// on in lanes, a Group<T>, and says whether all of them are well. If not, it has written nothing, and they are done
// again one by one, so that what is written and where it stops are those of single objects.
//
// atOnce: 1, 2 or 4 groups side by side, in a SideBySide<Group<T>, atOnce>, as long as there are as many; then half of
// that, and so on.
template <class T, int atOnce = 1, class WithGroup, class One>
LxpStatus byGroups(bool fitsLanes, int first, int count, const WithGroup &withGroup, const One &one) {
    const std::ptrdiff_t end = std::ptrdiff_t(first) + count;
    std::ptrdiff_t object = first;
    LxpStatus status = lxpStatusOk;
    const auto oneByOne = [&](std::ptrdiff_t last) {
        for (; object < last && status == lxpStatusOk; ++object) {
            status = one(object);
        }
    };
    const auto inLanes = [&](auto lanes, const auto &group) __attribute__((always_inline)) {
        constexpr int width = NumberOf<decltype(lanes)>::lanes;
        while (object + width <= end && status == lxpStatusOk) {
            if (group(lanes, object)) {
                object += width;
            } else {
                oneByOne(object + width);
            }
        }
    };
    const auto overGroups = [&](const auto &group) {
        if constexpr (atOnce >= 4) {
            inLanes(SideBySide<Group<T>, 4>(), group);
        }
        if constexpr (atOnce >= 2) {
            inLanes(SideBySide<Group<T>, 2>(), group);
        }
        inLanes(Group<T>(), group);
    };
    if (fitsLanes && count >= groupSize<T>) {
        withGroup(overGroups);
    }
    oneByOne(end);
    return status;
}

} // namespace lxpm
