// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Operands whose memory a kernel cannot use are copied, a few objects at a time, into dense memory that stays in the
// first cache: what is copied once is read by many products.

#include "runtime/addresses.h"

#include <cstddef>

namespace lxpm {

// Calls f(element, dense) with the address of each element of `count` objects and its place in dense memory. Inside of
// its loops there are steps by bytes alone.
template <class Element, class T, class F>
[[gnu::always_inline]] inline void overElements(const Addresses<Element> &operand, std::ptrdiff_t count,
                                                std::ptrdiff_t rows, std::ptrdiff_t columns, T *dense, const F &f) {
    if (operand.pointerStep[0] == 0 && (count > 1 || !operand.movesByBytes())) {
        const std::ptrdiff_t step = operand.step[0];
        const std::ptrdiff_t area = rows * columns;
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                Element *element = operand.at(0, i, j);
                T *to = dense + i * columns + j;
                for (std::ptrdiff_t k = 0; k < count; ++k) {
                    f(shifted(element, k * step), to + k * area);
                }
            }
        }
        return;
    }
    const std::ptrdiff_t rowStep = operand.step[1];
    const std::ptrdiff_t columnStep = operand.step[2];
    for (std::ptrdiff_t k = 0; k < count; ++k) {
        Element *object = operand.at(k, 0, 0);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            Element *row = shifted(object, i * rowStep);
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                f(shifted(row, j * columnStep), dense++);
            }
        }
    }
}

// A source, as it stands or copied. `capacity` elements are the most that pass through at a time.
template <class T, std::ptrdiff_t capacity>
class StagedSource {
public:
    StagedSource(const Addresses<const T> &operand, bool copies, std::ptrdiff_t rows, std::ptrdiff_t columns)
        : operand_(operand), copies_(copies), rows_(rows), columns_(columns) {
        if (copies && operand.isSingle()) {
            copy(0, 1);
            operand_ = Addresses<const T>::strided(dense_, {0, rowStep(), sizeof(T)});
            copies_ = false;
        }
    }

    Addresses<const T> objects(std::ptrdiff_t first, std::ptrdiff_t count) {
        if (!copies_) {
            return operand_.from(first);
        }
        copy(first, count);
        return Addresses<const T>::strided(dense_, {rows_ * rowStep(), rowStep(), sizeof(T)});
    }

private:
    std::ptrdiff_t rowStep() const { return columns_ * static_cast<std::ptrdiff_t>(sizeof(T)); }

    void copy(std::ptrdiff_t first, std::ptrdiff_t count) {
        overElements(operand_.from(first), count, rows_, columns_, dense_,
                     [](const T *element, T *dense) { *dense = *element; });
    }

    Addresses<const T> operand_;
    bool copies_;
    std::ptrdiff_t rows_;
    std::ptrdiff_t columns_;
    T dense_[capacity];
};

// A destination, as it stands or copied to its place when its objects are finished.
template <class T, std::ptrdiff_t capacity>
class StagedDestination {
public:
    StagedDestination(const Addresses<T> &operand, bool copies, std::ptrdiff_t rows, std::ptrdiff_t columns)
        : operand_(operand), copies_(copies), rows_(rows), columns_(columns) {}

    Addresses<T> objects(std::ptrdiff_t first) {
        if (!copies_) {
            return operand_.from(first);
        }
        const auto rowStep = columns_ * static_cast<std::ptrdiff_t>(sizeof(T));
        return Addresses<T>::strided(dense_, {rows_ * rowStep, rowStep, sizeof(T)});
    }

    void finish(std::ptrdiff_t first, std::ptrdiff_t count) {
        if (copies_) {
            overElements(operand_.from(first), count, rows_, columns_, dense_,
                         [](T *element, const T *dense) { *element = *dense; });
        }
    }

private:
    Addresses<T> operand_;
    bool copies_;
    std::ptrdiff_t rows_;
    std::ptrdiff_t columns_;
    T dense_[capacity];
};

} // namespace lxpm
