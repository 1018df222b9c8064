// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The orders and lengths of arrays that are measured: the library's cases and the peers' kernels are made of the same
// lists.

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace lxpm::bench {

inline constexpr std::array elementwiseOrders = {3, 4, 5, 6, 8};

// Orders 3 to 6 have unrolled kernels, 8 is the largest that does; 9 and 12, where the registers of a block do not fit,
// and 16 and 32, where they do, go by blocks.
inline constexpr std::array productOrders = {3, 4, 5, 6, 8, 9, 12, 16, 32};

inline constexpr std::array vectorLengths = {3, 4, 5, 6, 7, 8, 64, 1024};
inline constexpr std::array reductionOrders = {3, 4, 5, 6, 7, 8, 9, 12, 16};

inline constexpr std::array solverOrders = {3, 4, 5, 6, 8, 16};
inline constexpr std::array eigenproblemOrders = {3, 4, 6, 8, 16};

// Calls a function with each of them as a constant.
template <const auto &orders, class Function>
void forEach(Function function) {
    [&]<std::size_t... i>(std::index_sequence<i...>) {
        (function(std::integral_constant<int, orders[i]>()), ...);
    }
    (std::make_index_sequence<orders.size()>());
}

} // namespace lxpm::bench
