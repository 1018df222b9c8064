// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include "runtime/groups.h"

#include <lxpm/types.h>

#include <cstddef>

namespace lxpm {

// The objects of one thread in ascending order: whole groups in lanes, what remains one by one; the first status other
// than lxpStatusOk ends it. MakeGroups() gives a function that computes the group from an object on and says whether
// all of it is well. If not, it has written nothing, and the group is done again one by one, so that what is written
// and where it stops are those of single objects.
template <class T, class MakeGroups, class One>
LxpStatus byGroups(bool fitsLanes, int first, int count, const MakeGroups &makeGroups, const One &one) {
    const std::ptrdiff_t end = std::ptrdiff_t(first) + count;
    std::ptrdiff_t object = first;
    const auto oneByOne = [&](std::ptrdiff_t last) {
        for (; object < last; ++object) {
            if (const LxpStatus status = one(object); status != lxpStatusOk) {
                return status;
            }
        }
        return lxpStatusOk;
    };
    if (fitsLanes && count >= groupSize<T>) {
        const auto group = makeGroups();
        while (object + groupSize<T> <= end) {
            if (group(object)) {
                object += groupSize<T>;
            } else if (const LxpStatus status = oneByOne(object + groupSize<T>); status != lxpStatusOk) {
                return status;
            }
        }
    }
    return oneByOne(end);
}

} // namespace lxpm
