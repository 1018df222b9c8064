// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// One small matrix, four elements of a row in each register.

#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "solvers/elimination.h"
#include "solvers/matrices.h"

#include <type_traits>

namespace lxpm {

// Up to four elements of a row from column `column` on, from a view of a matrix and back.
template <int count, class T>
[[gnu::always_inline]] inline auto loadSomeOfRow(const TouchingMatrix<T> &a, int row, int column) {
    return loadFirst<count>(&a(row, column));
}

template <int count, class T>
[[gnu::always_inline]] inline auto loadSomeOfRow(const AnyMatrix<T> &a, int row, int column) {
    using Element = std::remove_const_t<T>;
    return Lanes<Element, 4>::of([&](auto j) __attribute__((always_inline))->Element {
        if constexpr (j < count) {
            return a(row, column + j);
        } else {
            return 0;
        }
    });
}

template <int count, class T>
[[gnu::always_inline]] inline void storeSomeOfRow(Lanes<T, 4> elements, const TouchingMatrix<T> &a, int row,
                                                  int column) {
    storeFirst<count>(&a(row, column), elements);
}

template <int count, class T>
[[gnu::always_inline]] inline void storeSomeOfRow(Lanes<T, 4> elements, const AnyMatrix<T> &a, int row, int column) {
    forEachOf<count>([&](auto j)
                         __attribute__((always_inline)) { a(row, column + j) = elements.vector[decltype(j)::value]; });
}

// The rows of a matrix in pivot order, for its elimination. Numbers of rows and columns are constants, of the type
// std::integral_constant.
template <class T, int Order>
class RegisterRows {
    static_assert(Order >= 3 && Order <= 8);

    using Quad = Lanes<T, 4>;

public:
    using Number = T;
    static constexpr int knownOrder = Order;
    static constexpr int parts = (Order + 3) / 4;
    template <int part>
    static constexpr int lengthOfPart = Order - 4 * part < 4 ? Order - 4 * part : 4;

    template <class Matrix>
    explicit RegisterRows(const Matrix &a) {
        forEachOf<Order>([&](auto i) __attribute__((always_inline)) {
            index[i] = i;
            forEachOf<parts>([&](auto part) __attribute__((always_inline)) {
                rows[i][part].vector = loadSomeOfRow<lengthOfPart<part>>(a, i, 4 * part).vector;
            });
        });
    }

    static constexpr int order() { return Order; }

    // Of row i in pivot order, the number.
    template <class I>
    [[gnu::always_inline]] int rowNumber(I) const {
        return index[I::value];
    }

    template <class I, class J>
    [[gnu::always_inline]] Number operator()(I, J) const {
        return oneLane<J::value % 4>(rows[I::value][J::value / 4]);
    }

    template <class K>
    [[gnu::always_inline]] Pivot<T, int> findPivot(K k) const {
        return firstLargest<Order, T>(
            k, Order, [&](auto i) __attribute__((always_inline)) { return (*this)(i, k); });
    }

    template <class K>
    static bool moves(Pivot<T, int> pivot, K k) {
        return pivot.position != k;
    }

    // Jumps, not choices: what follows need not wait for the search if the jump was foreseen.
    template <class K>
    [[gnu::always_inline]] void bringUp(K, Pivot<T, int> pivot) {
        forEachOf<Order>([&](auto i) __attribute__((always_inline)) {
            if constexpr (i > K::value) {
                if (pivot.position == i) {
                    forEachOf<parts>([&](auto part) __attribute__((always_inline)) {
                        const Quad row = rows[i][part];
                        rows[i][part].vector = rows[K::value][part].vector;
                        rows[K::value][part].vector = row.vector;
                    });
                    const int number = index[i];
                    index[i] = index[K::value];
                    index[K::value] = number;
                }
            }
        });
    }

    template <class I, class K>
    [[gnu::always_inline]] void subtract(I, K, T factor) {
        const Quad factors = Quad::splat(factor);
        forEachOf<parts>([&](auto part) __attribute__((always_inline)) {
            constexpr int column = K::value - 4 * part; // of the factor
            if constexpr (column < 4) {
                Quad &row = rows[I::value][part];
                // Zeros beside the columns that count, so that what is not used raises no exceptions; opaque, because
                // Clang leaves out what does not change a result.
                const Quad pivotRow = opaque(firstLanesOf<column + 1>(Quad{}, rows[K::value][part]));
                const Quad difference = row - factors * pivotRow;
                row = firstLanesOf<column>(row, firstLanesOf<column + 1>(factors, difference));
            }
        });
    }

    // To row `row` of a matrix.
    template <class I, class Matrix>
    [[gnu::always_inline]] void storeRow(I, const Matrix &to, int row) const {
        forEachOf<parts>([&](auto part) __attribute__((always_inline)) {
            storeSomeOfRow<lengthOfPart<part>>(rows[I::value][part], to, row, 4 * part);
        });
    }

private:
    Quad rows[Order][parts];
    int index[Order];
};

} // namespace lxpm
