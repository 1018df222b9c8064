// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>
#include <utility>

namespace lxpm {

// Returns kernel(order): a constant where the loops of an order are unrolled, 0 for all others.
// By default the orders with which the solvers are unrolled.
template <int least = 3, int greatest = 6, class Kernel>
[[gnu::always_inline]] inline auto withOrder(int order, const Kernel &kernel) {
    std::invoke_result_t<Kernel, std::integral_constant<int, 0>> result = {};
    const auto run = [&]<int... above>(std::integer_sequence<int, above...>) __attribute__((always_inline)) {
        return ((order == least + above && (result = kernel(std::integral_constant<int, least + above>()), true)) ||
                ...);
    };
    const bool isUnrolled = run(std::make_integer_sequence<int, greatest - least + 1>());
    return isUnrolled ? result : kernel(std::integral_constant<int, 0>());
}

} // namespace lxpm
