// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The elements of one object as an algorithm sees them: matrix(i, j), or vector[i].

#include "runtime/addresses.h"
#include "runtime/groups.h"
#include "runtime/lanes.h"
#include "runtime/with_order.h"

#include <cstddef>
#include <type_traits>

namespace lxpm {

// Rows whose elements touch. The step from row to row is counted in elements.
template <class Element>
struct TouchingMatrix {
    Element *first;
    std::ptrdiff_t rowStep;

    Element &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return first[i * rowStep + j]; }
    void put(std::ptrdiff_t i, std::ptrdiff_t j, Element element) const { (*this)(i, j) = element; }
};

// Object 0 of an operand whose rows touch.
template <class Element>
[[gnu::always_inline]] inline TouchingMatrix<Element> touchingMatrix(const Addresses<Element> &operand) {
    return {operand.at(0, 0, 0), operand.step[1] / static_cast<std::ptrdiff_t>(sizeof(Element))};
}

// Object 0 of any operand. A copy, so that no address is taken of an operand which need not be in memory.
template <class Element>
struct AnyMatrix {
    Addresses<Element> operand;

    Element &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return *operand.at(0, i, j); }
    void put(std::ptrdiff_t i, std::ptrdiff_t j, Element element) const { (*this)(i, j) = element; }
};

// What is put into a matrix, kept at hand as well: where the order is known, in registers.
template <class T, int Order, class Matrix>
class KeptMatrix {
public:
    explicit KeptMatrix(const Matrix &matrix) : destination(matrix) {}

    [[gnu::always_inline]] T operator()(int i, int j) const { return kept[i * Order + j]; }
    [[gnu::always_inline]] void put(int i, int j, T element) {
        kept[i * Order + j] = element;
        destination.put(i, j, element);
    }

private:
    T kept[Order * Order];
    Matrix destination;
};

template <class Element>
struct AnyVector {
    Addresses<Element> operand;

    Element &operator[](std::ptrdiff_t i) const { return *operand.at(0, 0, i); }
};

// Object 0 of one operand to that of another.
template <Part part, class T>
void copyMatrix(const Addresses<const T> &source, const Addresses<T> &destination, int rows, int columns) {
    if (source.movesByBytes() && destination.movesByBytes()) {
        const T *from = source.at(0, 0, 0);
        T *to = destination.at(0, 0, 0);
        const std::ptrdiff_t fromStep = source.step[2];
        const std::ptrdiff_t toStep = destination.step[2];
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < lengthOf(part, i, columns); ++j) {
                *shifted(to, j * toStep) = *shifted(from, j * fromStep);
            }
            from = shifted(from, source.step[1]);
            to = shifted(to, destination.step[1]);
        }
        return;
    }
    for (int i = 0; i < rows; ++i) {
        for (int j = 0; j < lengthOf(part, i, columns); ++j) {
            *destination.at(0, i, j) = *source.at(0, i, j);
        }
    }
}

// Memory on the stack as an operand: rows without gaps.
template <class T>
inline Addresses<T> plainMatrix(T *first, int columns) {
    return Addresses<T>::strided(first, {0, columns * std::ptrdiff_t(sizeof(T)), sizeof(T)});
}

// Calls use(matrix) with a view of object 0 of each operand, as it stands: by rows if those of all touch, else element
// by element.
template <class Use, class... Elements>
[[gnu::always_inline]] inline auto withViews(const Use &use, const Addresses<Elements> &...operands) {
    if ((operands.rowsTouch() && ...)) {
        return use(touchingMatrix(operands)...);
    }
    return use(AnyMatrix<Elements>{operands}...);
}

// Calls use(matrix) with a view of object 0 of a source: as it stands if its rows touch, as a copy in `copy` if there
// is room for it, else element by element.
template <Part part, class T, std::size_t size, class Use>
[[gnu::always_inline]] inline void withViewOrCopy(const Addresses<const T> &source, int rows, int columns,
                                                  T (&copy)[size], const Use &use) {
    if (source.rowsTouch()) {
        use(touchingMatrix(source));
    } else if (static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns) <= size) {
        copyMatrix<part>(source, plainMatrix(copy, columns), rows, columns);
        use(TouchingMatrix<const T>{copy, columns});
    } else {
        use(AnyMatrix<const T>{source});
    }
}

// Calls f(i) for from <= i < to. Bound: a number not below `to` that the loop is to be unrolled for, with constants, 0
// if it is not.
template <int Bound, class F>
[[gnu::always_inline]] inline void overRange(int from, int to, const F &f) {
    if constexpr (Bound != 0) {
        forEachOf<Bound>([&](auto i) __attribute__((always_inline)) {
            if (i >= from && i < to) {
                f(i);
            }
        });
    } else {
        for (int i = from; i < to; ++i) {
            f(i);
        }
    }
}

// The same downwards.
template <int Bound, class F>
[[gnu::always_inline]] inline void overRangeDown(int from, int to, const F &f) {
    if constexpr (Bound != 0) {
        forEachOf<Bound>([&](auto i) __attribute__((always_inline)) {
            constexpr int mirrored = Bound - 1 - i;
            if (mirrored >= from && mirrored < to) {
                f(std::integral_constant<int, mirrored>());
            }
        });
    } else {
        for (int i = to - 1; i >= from; --i) {
            f(i);
        }
    }
}

} // namespace lxpm
