// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <lxpm/types.h>

#include <type_traits>
#include <utility>

namespace lxpm {

// Calls kernel(order): a constant where the loops of an order are unrolled, 0 for all others.
// By default the orders with which the solvers are unrolled.
template <int least = 3, int greatest = 6, class Kernel>
inline LxpStatus withOrder(int order, const Kernel &kernel) {
    LxpStatus status = lxpStatusOk;
    const auto run = [&]<int... above>(std::integer_sequence<int, above...>) {
        return ((order == least + above && (status = kernel(std::integral_constant<int, least + above>()), true)) ||
                ...);
    };
    const bool isUnrolled = run(std::make_integer_sequence<int, greatest - least + 1>());
    return isUnrolled ? status : kernel(std::integral_constant<int, 0>());
}

} // namespace lxpm
