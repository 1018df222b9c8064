// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <type_traits>
#include <utility>

namespace lxpm {

// Returns kernel(value): a constant where it is one of the known ones, a std::integer_sequence, 0 for all others.
template <class Known, class Kernel>
[[gnu::always_inline]] inline auto withKnown(Known known, int value, const Kernel &kernel) {
    std::invoke_result_t<Kernel, std::integral_constant<int, 0>> result = {};
    const auto run = [&]<int... k>(std::integer_sequence<int, k...>) __attribute__((always_inline)) {
        return ((value == k && (result = kernel(std::integral_constant<int, k>()), true)) || ...);
    };
    const bool isKnown = run(known);
    return isKnown ? result : kernel(std::integral_constant<int, 0>());
}

namespace detail {

template <int least, int... above>
std::integer_sequence<int, least + above...> from(std::integer_sequence<int, above...>);

} // namespace detail

template <int least, int greatest>
using Range = decltype(detail::from<least>(std::make_integer_sequence<int, greatest - least + 1>()));

// The same with an order whose loops are unrolled. By default the orders with which the solvers are unrolled.
template <int least = 3, int greatest = 6, class Kernel>
[[gnu::always_inline]] inline auto withOrder(int order, const Kernel &kernel) {
    return withKnown(Range<least, greatest>(), order, kernel);
}

} // namespace lxpm
