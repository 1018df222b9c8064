// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Gaussian elimination with partial pivoting, P * A = L * U, in place and in pivot order: row k of the factors is the
// row that was chosen for column k, with the multipliers of L in front of its diagonal.
//
// The pivot is the candidate of the largest magnitude, the first of equals in pivot order; NaN is never larger. In
// lanes rows are exchanged under masks; of one object, of a small order whole rows in registers (register_rows.h), else
// their numbers. The order of candidates is the same, and so is every operation on an element: the products are
// subtracted in ascending order of columns.

#include "runtime/groups.h"
#include "runtime/lanes.h"
#include "runtime/numbers.h"
#include "solvers/matrices.h"

#include <limits>
#include <type_traits>
#include <utility>

namespace lxpm {

// When a column is singular, by the magnitude of its pivot, and how its multipliers come about.
struct SmallOrderRules { // orders 3 to 6
    template <class V>
    static MaskOf<V> isSingular(V largest) {
        return isLess(largest, constant<V>(2 * double(std::numeric_limits<ElementOf<V>>::min())));
    }
    static constexpr bool usesReciprocal(int column) { return column == 0; }
};

struct AnyOrderRules {
    template <class V>
    static MaskOf<V> isSingular(V largest) {
        return isLessEqual(largest, constant<V>(double(std::numeric_limits<ElementOf<V>>::epsilon())));
    }
    static constexpr bool usesReciprocal(int) { return true; }
};

// Nothing but zero is singular; a quotient of at most 1 cannot overflow as a reciprocal can.
struct DeterminantRules {
    template <class V>
    static MaskOf<V> isSingular(V largest) {
        return isEqual(largest, constant<V>(0));
    }
    static constexpr bool usesReciprocal(int) { return false; }
};

// The rules of a decomposition of known or (0) any other order.
template <int Order>
using RulesOf = std::conditional_t<Order == 0, AnyOrderRules, SmallOrderRules>;

// Position: what tells the pivot's row from the others.
template <class V, class Position>
struct Pivot {
    V magnitude;
    Position position;
};

// The pivot of column k of one object: candidate(i) is the element of row i.
template <int Order, class T, class K, class Candidate>
[[gnu::always_inline]] inline Pivot<T, int> firstLargest(K k, int order, const Candidate &candidate) {
    Pivot<T, int> pivot = {magnitude(candidate(k)), k};
    overRange<Order>(
        k + 1, order, [&](auto i) __attribute__((always_inline)) {
            const T other = magnitude(candidate(i));
            const bool isLarger = pivot.magnitude < other;
            pivot.magnitude = isLarger ? other : pivot.magnitude;
            pivot.position = isLarger ? i : pivot.position;
        });
    return pivot;
}

// One object: rows stay where they are, index[i] is the number of the i-th one in pivot order.
template <class T, class Matrix>
class IndexedRows {
public:
    using Number = T;
    static constexpr int knownOrder = 0;

    IndexedRows(const Matrix &matrix, int *rowNumbers, int anyOrder) : a(matrix), index(rowNumbers), n(anyOrder) {
        for (int i = 0; i < n; ++i) {
            index[i] = i;
        }
    }

    T &operator()(int i, int j) const { return a(index[i], j); }

    int order() const { return n; }

    Pivot<T, int> findPivot(int k) const {
        return firstLargest<0, T>(k, n, [&](int i) { return (*this)(i, k); });
    }

    static bool moves(Pivot<T, int> pivot, int k) { return pivot.position != k; }

    void bringUp(int k, Pivot<T, int> pivot) { std::swap(index[k], index[pivot.position]); }

    // Element (i, k) becomes the factor, and the columns behind it lose that multiple of row k.
    void subtract(int i, int k, T factor) const {
        (*this)(i, k) = factor;
        int j = k + 1;
        if constexpr (std::is_same_v<Matrix, TouchingMatrix<T>>) {
            T *row = &(*this)(i, 0);
            const T *other = &(*this)(k, 0);
            const Group<T> factors = Group<T>::splat(factor);
            for (; j + groupSize<T> <= n; j += groupSize<T>) {
                (Group<T>::load(row + j) - factors * Group<T>::load(other + j)).store(row + j);
            }
            for (; j < n; ++j) {
                row[j] = row[j] - factor * other[j];
            }
        } else {
            for (; j < n; ++j) {
                (*this)(i, j) = (*this)(i, j) - factor * (*this)(k, j);
            }
        }
    }

private:
    Matrix a;
    int *index;
    int n;
};

// Objects in lanes, of known or (0) any other order: rows are exchanged where the pivot is another one's.
template <class V, int Order>
class LaneMatrix {
public:
    using Number = V;
    static constexpr int knownOrder = Order;

    LaneMatrix(V *elements, int order) : a(elements), anyOrder(order) {}

    [[gnu::always_inline]] V &operator()(int i, int j) const { return a[i * order() + j]; }
    [[gnu::always_inline]] int order() const { return Order != 0 ? Order : anyOrder; }

    // Where row k makes room for another one: the first one in which the magnitude is found again.
    using Moves = MaskOf<V>;

    [[gnu::always_inline]] Pivot<V, Moves> findPivot(int k) const {
        V ofOthers = constant<V>(0);
        overRange<Order>(
            k + 1, order(), [&](int i) __attribute__((always_inline)) {
                ofOthers = larger(magnitude((*this)(i, k)), ofOthers);
            });
        const V ofRow = magnitude((*this)(k, k));
        return {larger(ofOthers, ofRow), isLess(ofRow, ofOthers)};
    }

    [[gnu::always_inline]] static Moves moves(Pivot<V, Moves> pivot, int) { return pivot.position; }

protected:
    // Calls use(isChosen): of the rows behind k, the lanes in which they are the pivot's.
    template <class Use>
    [[gnu::always_inline]] void withChosen(int k, Pivot<V, Moves> pivot, const Use &use) const {
        const int n = order();
        Moves isChosen[Order != 0 ? Order : largestCopied];
        Moves isLeft = pivot.position;
        overRange<Order>(
            k + 1, n - 1, [&](int i) __attribute__((always_inline)) {
                isChosen[i] = both(isLeft, isEqual(magnitude((*this)(i, k)), pivot.magnitude));
                isLeft = without(isLeft, isChosen[i]);
            });
        isChosen[n - 1] = isLeft;
        use(isChosen);
    }

    // Row k of a column of n elements, `step` apart, changes places with the chosen one.
    [[gnu::always_inline]] void exchange(int k, const Moves *isChosen, V *column, int step) const {
        const V old = column[k * step];
        V chosen = old;
        overRange<Order>(
            k + 1, order(), [&](int i) __attribute__((always_inline)) {
                V &element = column[i * step];
                chosen = choose(isChosen[i], element, chosen);
                element = choose(isChosen[i], old, element);
            });
        column[k * step] = chosen;
    }

    // Row i loses that multiple of row k, from column `from` on.
    [[gnu::always_inline]] void subtractFrom(int from, V *matrix, int i, int k, V factor) const {
        const int n = order();
        overRange<Order>(
            from, n, [&](int j) __attribute__((always_inline)) {
                matrix[i * n + j] = matrix[i * n + j] - factor * matrix[k * n + j];
            });
    }

    V *a;

private:
    int anyOrder;
};

// With the factors and the numbers of the rows.
template <class V, int Order>
class LaneRows : public LaneMatrix<V, Order> {
    using Matrix = LaneMatrix<V, Order>;

public:
    LaneRows(V *elements, V *rowNumbers, int order) : Matrix(elements, order), index(rowNumbers) {
        for (int i = 0; i < order; ++i) {
            index[i] = constant<V>(i);
        }
    }

    [[gnu::always_inline]] void bringUp(int k, Pivot<V, typename Matrix::Moves> pivot) {
        const int n = this->order();
        this->withChosen(
            k, pivot, [&](const auto &isChosen) __attribute__((always_inline)) {
                overRange<Order>(
                    0, n, [&](int j) __attribute__((always_inline)) { this->exchange(k, isChosen, this->a + j, n); });
                this->exchange(k, isChosen, index, 1);
            });
    }

    [[gnu::always_inline]] void subtract(int i, int k, V factor) const {
        (*this)(i, k) = factor;
        this->subtractFrom(k + 1, this->a, i, k, factor);
    }

private:
    V *index;
};

// With the identity beside it, of which elimination makes L^-1 * P. Its products are subtracted from an element in the
// order of a substitution. The factors are not kept.
template <class V, int Order>
class LaneRowsBesideIdentity : public LaneMatrix<V, Order> {
    static_assert(Order > 1); // the identity comes with the first exchange
    using Matrix = LaneMatrix<V, Order>;

public:
    // `beside`: for the result.
    LaneRowsBesideIdentity(V *elements, V *beside) : Matrix(elements, Order), x(beside) {}

    [[gnu::always_inline]] void bringUp(int k, Pivot<V, typename Matrix::Moves> pivot) {
        this->withChosen(
            k, pivot, [&](const auto &isChosen) __attribute__((always_inline)) {
                overRange<Order>(
                    k, Order, [&](int j) __attribute__((always_inline)) {
                        this->exchange(k, isChosen, this->a + j, Order);
                    });
                if (k == 0) {
                    exchangeOfIdentity(pivot.position, isChosen);
                    return;
                }
                overRange<Order>(
                    0, Order, [&](int j) __attribute__((always_inline)) { this->exchange(k, isChosen, x + j, Order); });
            });
    }

    [[gnu::always_inline]] void subtract(int i, int k, V factor) const {
        this->subtractFrom(k + 1, this->a, i, k, factor);
        this->subtractFrom(0, x, i, k, factor);
    }

private:
    // The identity, row 0 in the place of the chosen one.
    [[gnu::always_inline]] void exchangeOfIdentity(typename Matrix::Moves moves,
                                                   const typename Matrix::Moves *isChosen) const {
        const V zero = constant<V>(0);
        const V one = constant<V>(1);
        x[0] = choose(moves, zero, one);
        overRange<Order>(
            1, Order, [&](int i) __attribute__((always_inline)) {
                overRange<Order>(
                    1, Order, [&](int j) __attribute__((always_inline)) {
                        x[i * Order + j] = i == j ? choose(isChosen[i], zero, one) : zero;
                    });
                x[i] = only(isChosen[i], one);
                x[i * Order] = x[i];
            });
    }

    V *x;
};

// Returns the number of columns in front of the first singular one, of any lane; the order if there is none. A singular
// column is left as the columns before it made it.
template <class Rules, class Rows>
[[gnu::always_inline]] inline int eliminate(Rows &a) {
    using V = typename Rows::Number;
    constexpr int Order = Rows::knownOrder;
    const int n = a.order();
    int done = n;
    overRange<Order>(
        0, n, [&](auto k) __attribute__((always_inline)) {
            if (done < k) {
                return;
            }
            const auto pivot = a.findPivot(k);
            if (any(Rules::isSingular(pivot.magnitude))) {
                done = k;
                return;
            }
            if (k + 1 == n) {
                return;
            }
            a.bringUp(k, pivot);
            const V divisor = a(k, k);
            const V reciprocal = constant<V>(1) / divisor;
            overRange<Order>(
                k + 1, n, [&](auto i) __attribute__((always_inline)) {
                    a.subtract(i, k, Rules::usesReciprocal(k) ? a(i, k) * reciprocal : a(i, k) / divisor);
                });
        });
    return done;
}

} // namespace lxpm
