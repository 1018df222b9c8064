// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The solution of L * U * x = b, in place: x holds b in pivot order. Orders with a kernel of their own subtract the
// products from an element one by one; the others subtract their sum, which starts at zero.

#include "runtime/numbers.h"
#include "solvers/matrices.h"

namespace lxpm {

// V: the numbers of x; those of the factors may be elements that all lanes share.

namespace detail {

// What elements `from` to `to` of x contribute to element i.
template <int Order, class V, class Factors, class Vector, class I>
[[gnu::always_inline]] inline void subtractProducts(const Factors &a, Vector &x, I i, int from, int to) {
    if constexpr (Order != 0) {
        overRange<Order>(
            from, to, [&](auto j) __attribute__((always_inline)) { x[i] = x[i] - number<V>(a(i, j)) * x[j]; });
    } else {
        V sum = constant<V>(0);
        for (int j = from; j < to; ++j) {
            sum = sum + number<V>(a(i, j)) * x[j];
        }
        x[i] = x[i] - sum;
    }
}

} // namespace detail

// L * x = b.
template <int Order, class V, class Factors, class Vector>
[[gnu::always_inline]] inline void substituteForwards(const Factors &a, Vector &x, int n) {
    overRange<Order>(
        1, n, [&](auto i) __attribute__((always_inline)) { detail::subtractProducts<Order, V>(a, x, i, 0, i); });
}

// U * x = b.
template <int Order, class V, class Factors, class Vector>
[[gnu::always_inline]] inline void substituteBackwards(const Factors &a, Vector &x, int n) {
    if constexpr (Order == 0) { // without a sum of nothing, which is not to be subtracted
        x[n - 1] = x[n - 1] / number<V>(a(n - 1, n - 1));
    }
    overRangeDown<Order>(
        0, Order != 0 ? n : n - 1, [&](auto i) __attribute__((always_inline)) {
            detail::subtractProducts<Order, V>(a, x, i, i + 1, n);
            x[i] = x[i] / number<V>(a(i, i));
        });
}

template <int Order, class V, class Factors, class Vector>
[[gnu::always_inline]] inline void substitute(const Factors &a, Vector &x, int order) {
    const int n = Order != 0 ? Order : order;
    substituteForwards<Order, V>(a, x, n);
    substituteBackwards<Order, V>(a, x, n);
}

} // namespace lxpm
