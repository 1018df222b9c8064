// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The short way of products of single small objects: the operands are read where they stand, in every layout, and
// nothing is set up.

#include "products/unrolled_product.h"
#include "runtime/one_object.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace lxpm {

// Whether a product of these sizes takes the short way.
constexpr bool isShortProduct(int rows, int inner, int columns) {
    return std::max({rows, inner, columns}) <= 6;
}

// Orders of square matrices that have loops of their own.
constexpr bool isUnrolledOrder(int order) {
    return order >= 3 && order <= 6;
}

namespace detail {

// The rows of the second operand. Columns that touch, as those of a matrix that is read transposed, are turned in
// registers where they fill them.
template <int Order, class B>
[[gnu::always_inline]] inline auto rowsOf(const B &b) {
    using T = std::remove_const_t<typename B::Element>;
    std::array<ElementRow<T, Order>, Order> rows;
    if constexpr (Order == 4 && std::is_same_v<B, StridedObject<typename B::Element>>) {
        if (const auto turned = b.transposed(); turned.rowsTouch() && !b.rowsTouch()) {
            std::array<Lanes<T, 4>, 4> lanes;
            for (int k = 0; k < 4; ++k) {
                lanes[k] = Lanes<T, 4>::load(turned.at(k, 0));
            }
            transpose(lanes);
            for (int k = 0; k < 4; ++k) {
                rows[k] = ElementRow<T, 4>(lanes[k]);
            }
            return rows;
        }
    }
#pragma GCC unroll 8
    for (int k = 0; k < Order; ++k) {
        rows[k] = loadRow<Order>(b, k);
    }
    return rows;
}

template <int Order, class A, class Rows, class D, class... Addend>
[[gnu::always_inline]] inline void multiplySquare(int rows, const A &a, const Rows &b, const D &dst,
                                                  const Addend &...addend) {
    if (rows == 1) {
        multiplyRows<1, 0>(a, b, dst, addend...);
    } else {
        multiplyRows<Order, 0>(a, b, dst, addend...);
    }
}

template <int Order, class A, class B, class D, class... Addend>
[[gnu::always_inline]] inline void chooseSquare(int rows, const A &a, const B &b, const D &dst,
                                                const Addend &...addend) {
    if constexpr (MovesByBytes<B>) {
        if (b.rowsTouch() && dst.rowsTouch()) {
            return multiplySquare<Order>(rows, a, rowsOf<Order>(TouchingObject(b)), TouchingObject(dst), addend...);
        }
    }
    multiplySquare<Order>(rows, a, rowsOf<Order>(b), dst, addend...);
}

} // namespace detail

// A matrix without gaps, of which the compiler knows all distances.
template <int Order, class E>
[[gnu::always_inline]] inline StridedObject<E> denseMatrix(E *first) {
    return {first, Order * sizeof(E), sizeof(E)};
}

// Square matrices of an unrolled order without gaps, and such a matrix and a vector.

template <int Order, class T>
[[gnu::noinline]] LxpStatus multiplyDense(const T *a, const T *b, T *dst) {
    if constexpr (Order == 4 && std::is_same_v<T, float>) {
        constexpr std::ptrdiff_t row = Order * sizeof(T);
        multiplyRowsOfOrder4(a, row, rowsOfOrder4(b, row), dst, row);
    } else {
        detail::chooseSquare<Order>(Order, denseMatrix<Order>(a), denseMatrix<Order>(b), denseMatrix<Order>(dst));
    }
    return lxpStatusOk;
}

// As a row: the vector times the transposed matrix.
template <int Order, class T>
[[gnu::noinline]] LxpStatus multiplyDenseVector(const T *matrix, const T *vector, T *dst) {
    detail::chooseSquare<Order>(1, denseMatrix<Order>(vector), denseMatrix<Order>(matrix).transposed(),
                                denseMatrix<Order>(dst));
    return lxpStatusOk;
}

// dst = a * b + addend, with one addend or none.
template <class A, class B, class D, class... Addend>
[[gnu::always_inline]] inline void multiplyObject(int rows, int inner, int columns, const A &a, const B &b,
                                                  const D &dst, const Addend &...addend) {
    switch (inner == columns && (rows == inner || rows == 1) ? inner : 0) {
    case 3:
        return detail::chooseSquare<3>(rows, a, b, dst, addend...);
    case 4:
        return detail::chooseSquare<4>(rows, a, b, dst, addend...);
    case 5:
        return detail::chooseSquare<5>(rows, a, b, dst, addend...);
    case 6:
        return detail::chooseSquare<6>(rows, a, b, dst, addend...);
    }
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < columns; ++j) {
            std::remove_const_t<typename D::Element> sum = 0;
            for (int k = 0; k < inner; ++k) {
                sum = sum + *a.at(i, k) * *b.at(k, j);
            }
            ((sum = sum + *addend.at(i, j)), ...);
            *dst.at(i, j) = sum;
        }
    }
}

} // namespace lxpm
