// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The product kernels, one set for all operand codes and layouts: a transposed operand has its steps exchanged, a
// vector is a row.
//
// Bits. Every element of a result is a sum that starts from +0 and takes its products in ascending order, each product
// and each sum rounded. Registers hold different elements of results, never parts of one sum, so all paths agree.

#include "runtime/addresses.h"

#include <lxpm/types.h>

#include <cstddef>
#include <optional>

namespace lxpm {

// dst = a * b + addend, objects of rows x inner, inner x columns, and rows x columns.
template <class T>
struct MatrixProduct {
    std::ptrdiff_t rows;
    std::ptrdiff_t inner;
    std::ptrdiff_t columns;
    Addresses<const T> a;
    Addresses<const T> b;
    std::optional<Addresses<const T>> addend;
    Addresses<T> dst;

    // Whether every operand moves from object to object by bytes.
    bool walksByBytes() const {
        return a.pointerStep[0] == 0 && b.pointerStep[0] == 0 && dst.pointerStep[0] == 0 &&
               (!addend || addend->pointerStep[0] == 0);
    }

    // Whether the elements of a row touch where it is written, and where what is added to it is read.
    bool writesRows() const { return dst.rowsTouch() && (!addend || addend->rowsTouch()); }

    // The same product of transposed matrices, from a transposed result's point of view.
    MatrixProduct transposed() const {
        MatrixProduct turned = {columns, inner, rows, b.transposed(), a.transposed(), std::nullopt, dst.transposed()};
        if (addend) {
            turned.addend = addend->transposed();
        }
        return turned;
    }

    // The same product without what stands before an object.
    MatrixProduct from(std::ptrdiff_t object) const {
        MatrixProduct later = {rows, inner, columns, a.from(object), b.from(object), std::nullopt, dst.from(object)};
        if (addend) {
            later.addend = addend->from(object);
        }
        return later;
    }
};

// dst = matrix * vector + addend, for rows x inner matrices: as a row, the vector times the transposed matrix.
template <class T>
[[gnu::always_inline]] inline MatrixProduct<T>
rowProduct(int rows, int inner, const Addresses<const T> &matrix, const Addresses<const T> &vector,
           const std::optional<Addresses<const T>> &addend, const Addresses<T> &dst) {
    return {1, inner, rows, vector, matrix.transposed(), addend, dst};
}

template <class T>
LxpStatus multiply(bool parallel, int count, const MatrixProduct<T> &product);

extern template LxpStatus multiply(bool, int, const MatrixProduct<float> &);
extern template LxpStatus multiply(bool, int, const MatrixProduct<double> &);

} // namespace lxpm
