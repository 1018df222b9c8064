// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The elements of one object as an algorithm sees them: matrix(i, j), or vector[i].

#include "runtime/addresses.h"
#include "runtime/groups.h"
#include "runtime/with_order.h"

#include <cstddef>
#include <type_traits>
#include <utility>

namespace lxpm {

// Rows whose elements touch. The step from row to row is counted in elements.
template <class Element>
struct TouchingMatrix {
    Element *first;
    std::ptrdiff_t rowStep;

    Element &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return first[i * rowStep + j]; }
};

// Object 0 of an operand whose rows touch.
template <class Element>
inline TouchingMatrix<Element> touchingMatrix(const Addresses<Element> &operand) {
    return {operand.at(0, 0, 0), operand.step[1] / static_cast<std::ptrdiff_t>(sizeof(Element))};
}

// Object 0 of any operand.
template <class Element>
struct AnyMatrix {
    const Addresses<Element> &operand;

    Element &operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return *operand.at(0, i, j); }
};

template <class Element>
struct AnyVector {
    const Addresses<Element> &operand;

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

// Calls use(matrix) with a view of object 0 of a source too large for a copy: as it stands.
template <class T, class Use>
inline void withLargeMatrix(const Addresses<const T> &source, const Use &use) {
    if (source.rowsTouch()) {
        use(touchingMatrix(source));
    } else {
        use(AnyMatrix<const T>{source});
    }
}

// Calls use(matrix) with a view of object 0 of a source: as it stands if its rows touch, as a copy in `copy` if there
// is room for it, else element by element.
template <Part part, class T, std::size_t size, class Use>
[[gnu::always_inline]] inline void withMatrix(const Addresses<const T> &source, int rows, int columns, T (&copy)[size],
                                              const Use &use) {
    if (source.rowsTouch()) {
        use(touchingMatrix(source));
    } else if (static_cast<std::size_t>(rows) * static_cast<std::size_t>(columns) <= size) {
        copyMatrix<part>(source, plainMatrix(copy, columns), rows, columns);
        use(TouchingMatrix<const T>{copy, columns});
    } else {
        use(AnyMatrix<const T>{source});
    }
}

// Calls f(i) for from <= i < to. Bound: a number above `to` that the loop is to be unrolled for, 0 if it is not.
template <int Bound, class F>
[[gnu::always_inline]] inline void overRange(int from, int to, const F &f) {
    if constexpr (Bound != 0) {
        [&]<int... i>(std::integer_sequence<int, i...>) __attribute__((always_inline)) {
            ((i >= from && i < to ? f(i) : void()), ...);
        }
        (std::make_integer_sequence<int, Bound>());
    } else {
        for (int i = from; i < to; ++i) {
            f(i);
        }
    }
}

// The same downwards.
template <int Bound, class F>
[[gnu::always_inline]] inline void overRangeDown(int from, int to, const F &f) {
    overRange<Bound>(
        from, to, [&](int i) __attribute__((always_inline)) { f(to - 1 - (i - from)); });
}

} // namespace lxpm
