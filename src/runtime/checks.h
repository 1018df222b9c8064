// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The argument checks. Their order is part of what a family promises, so it is data: a family lists its orders in a
// table, and a call returns the status of the first check of its order that fails.

#include <lxpm/types.h>

#include <cstddef>
#include <utility>

namespace lxpm {

// LateStrides: those that a family looks at apart from the others.
enum class Check { Pointers, Count, Sizes, SizeMatch, Strides, Offsets, LateStrides };

constexpr LxpStatus statusOf(Check check) {
    switch (check) {
    case Check::Pointers:
        return lxpStatusNullPtrErr;
    case Check::Count:
        return lxpStatusCountErr;
    case Check::Sizes:
        return lxpStatusSizeErr;
    case Check::SizeMatch:
        return lxpStatusSizeMatchErr;
    case Check::Strides:
    case Check::LateStrides:
        return lxpStatusStrideErr;
    case Check::Offsets:
        return lxpStatusRoiShiftErr;
    }
    return lxpStatusOk;
}

// An order of checks. A check that no parameter of a call is subject to passes, so a layout without offsets needs no
// order of its own.
class InOrder {
public:
    template <class... Checks>
    consteval InOrder(Checks... list) : check{list...}, length(sizeof...(list)) {}

    // Structural, so that an order can be a template argument; not for use outside of firstFailure.
    Check check[6];
    std::size_t length;
};

template <InOrder order, class Arguments>
[[gnu::always_inline]] constexpr LxpStatus firstFailure(const Arguments &arguments) {
    LxpStatus status = lxpStatusOk;
    [&]<std::size_t... step>(std::index_sequence<step...>) __attribute__((always_inline)) {
        (void)((arguments.violates(order.check[step]) && ((status = statusOf(order.check[step])), true)) || ...);
    }
    (std::make_index_sequence<order.length>());
    return status;
}

} // namespace lxpm
