// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The short way for single small objects: a call that computes a few elements has no time for the look at the memory
// that arrays deserve. The operands stay in registers from the argument list to the result.

#include "runtime/addresses.h"
#include "runtime/runs.h"

#include <lxpm/types.h>

#include <cstddef>
#include <type_traits>

namespace lxpm {

// One object whose elements stand at byte distances.
template <class E>
struct StridedObject {
    using Element = E;
    Element *first;
    std::ptrdiff_t rowStep;
    std::ptrdiff_t columnStep;

    Element *at(std::ptrdiff_t row, std::ptrdiff_t column) const {
        return shifted(first, row * rowStep + column * columnStep);
    }
    StridedObject transposed() const { return {first, columnStep, rowStep}; }
    StridedObject below() const { return {shifted(first, rowStep), rowStep, columnStep}; } // without the first row
    bool rowsTouch() const { return columnStep == static_cast<std::ptrdiff_t>(sizeof(Element)); }
    bool isDense(std::ptrdiff_t columns) const { return rowsTouch() && rowStep == columns * columnStep; }
    Run<std::remove_const_t<Element>, Moves::Along> row(std::ptrdiff_t i) const { return {at(i, 0), columnStep}; }
    const std::remove_const_t<Element> *lead() const { return first; }
};

// One object whose rows' elements are known to touch.
template <class E>
struct TouchingObject {
    using Element = E;
    Element *first;
    std::ptrdiff_t rowStep;

    explicit TouchingObject(const StridedObject<Element> &object) : first(object.first), rowStep(object.rowStep) {}

    Element *at(std::ptrdiff_t row, std::ptrdiff_t column) const { return shifted(first, row * rowStep) + column; }
    TouchingObject below() const { return TouchingObject({shifted(first, rowStep), rowStep, sizeof(Element)}); }
    static constexpr bool rowsTouch() { return true; }
};

// One object whose elements have pointers of their own; steps in pointers.
template <class E>
struct PointedObject {
    using Element = E;
    Element *const *pointers;
    std::ptrdiff_t offset;
    std::ptrdiff_t rowStep;
    std::ptrdiff_t columnStep;

    Element *at(std::ptrdiff_t row, std::ptrdiff_t column) const {
        return shifted(pointers[row * rowStep + column * columnStep], offset);
    }
    PointedObject transposed() const { return {pointers, offset, columnStep, rowStep}; }
    PointedObject below() const { return {pointers + rowStep, offset, rowStep, columnStep}; }
};

// The same value wherever one looks.
template <class T>
struct ConstantObject {
    using Element = const T;
    T value;

    const T *at(std::ptrdiff_t, std::ptrdiff_t) const { return &value; }
    static constexpr bool rowsTouch() { return true; }
    static constexpr bool isDense(std::ptrdiff_t) { return true; }
    Run<T, Moves::Nowhere> row(std::ptrdiff_t) const { return {&value, 0}; }
    T lead() const { return value; }
};

template <class Object>
concept MovesByBytes = !std::is_same_v<Object, PointedObject<typename Object::Element>>;

// Whether an object of this size takes the short way. Larger ones gain more by a look at their memory.
inline constexpr int mostSmallElements = 64;

constexpr bool isSmall(std::ptrdiff_t rows, std::ptrdiff_t columns) {
    return rows * columns <= mostSmallElements;
}

// Whether a size passes its check and is not above `most`.
constexpr bool isWithin(int size, int most) {
    return static_cast<unsigned>(size) - 1 < static_cast<unsigned>(most);
}

// The n elements of objects without gaps. A source is its first element's address, or a constant by value.
template <class F, class T, class... Lead>
[[gnu::noinline]] LxpStatus runDenseObject(F f, int n, T *dst, Lead... src) {
    const auto run = [](const auto &lead) __attribute__((always_inline)) {
        if constexpr (std::is_same_v<decltype(lead), const T &>) {
            return Run<T, Moves::Nowhere>{&lead, 0};
        } else {
            return Run<T, Moves::Along>{lead, sizeof(T)};
        }
    };
    runInRegisters(f, n, dst, run(src)...);
    return lxpStatusOk;
}

// dst(i, j) = f(src1(i, j), ...), row by row.
template <class F, class D, class... S>
[[gnu::always_inline]] inline void mapObject(const F &f, std::ptrdiff_t rows, std::ptrdiff_t columns, const D &dst,
                                             const S &...src) {
    if constexpr (MovesByBytes<D> && (MovesByBytes<S> && ...)) {
        if (dst.isDense(columns) && (src.isDense(columns) && ...)) {
            return runInRegisters(f, rows * columns, dst.first, src.row(0)...);
        }
        if (dst.rowsTouch() && (src.rowsTouch() && ...)) {
            for (std::ptrdiff_t i = 0; i < rows; ++i) {
                runInRegisters(f, columns, dst.at(i, 0), src.row(i)...);
            }
            return;
        }
    }
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        for (std::ptrdiff_t j = 0; j < columns; ++j) {
            *dst.at(i, j) = f(*src.at(i, j)...);
        }
    }
}

} // namespace lxpm
