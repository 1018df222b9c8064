// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/groups.h"
#include "runtime/twice.h"

#include <lxpm/types.h>

#include <cstddef>

namespace lxpm {

// The objects of one thread in ascending order: whole groups in lanes, what remains one by one; the first status other
// than lxpStatusOk ends it. withGroup(over) calls over(group): group(object) computes the group from an object on and
// says whether all of it is well. If not, it has written nothing, and the group is done again one by one, so that what
// is written and where it stops are those of single objects.
//
// isWide: two groups at a time as long as there are two; group is told the lanes first, as Twice<Group<T>> or Group<T>.
template <class T, bool isWide = false, class WithGroup, class One>
LxpStatus byGroups(bool fitsLanes, int first, int count, const WithGroup &withGroup, const One &one) {
    const std::ptrdiff_t end = std::ptrdiff_t(first) + count;
    std::ptrdiff_t object = first;
    LxpStatus status = lxpStatusOk;
    const auto oneByOne = [&](std::ptrdiff_t last) {
        for (; object < last && status == lxpStatusOk; ++object) {
            status = one(object);
        }
    };
    const auto inLanes = [&](int lanes, const auto &group) __attribute__((always_inline)) {
        while (object + lanes <= end && status == lxpStatusOk) {
            if (group(object)) {
                object += lanes;
            } else {
                oneByOne(object + lanes);
            }
        }
    };
    const auto overGroups = [&](const auto &group) {
        if constexpr (isWide) {
            inLanes(
                2 * groupSize<T>, [&](std::ptrdiff_t from)
                                      __attribute__((always_inline)) { return group(Twice<Group<T>>(), from); });
        }
        inLanes(
            groupSize<T>, [&](std::ptrdiff_t from) __attribute__((always_inline)) {
                if constexpr (requires { group(Group<T>(), from); }) {
                    return group(Group<T>(), from);
                } else {
                    return group(from);
                }
            });
    };
    if (fitsLanes && count >= groupSize<T>) {
        withGroup(overGroups);
    }
    oneByOne(end);
    return status;
}

} // namespace lxpm
