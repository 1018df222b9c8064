// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/load_identity.h"

#include "elementwise/copy_elements.h"
#include "elementwise/threshold.h"
#include "runtime/nest.h"
#include "runtime/parallel.h"

#include <algorithm>
#include <cstddef>

namespace lxpm {

namespace {

constexpr InOrder order = {Check::Pointers, Check::Sizes, Check::Count, Check::Strides, Check::Offsets};

// Matrices of up to so many elements are copies of one that is made ready; larger ones are written in place.
constexpr std::ptrdiff_t largestCopied = 1024;

template <class T>
LxpStatus copyReadyMade(bool parallel, int count, int rows, int columns, const Addresses<T> &dst) {
    T identity[largestCopied];
    std::fill_n(identity, rows * columns, T(0));
    for (int i = 0; i < std::min(rows, columns); ++i) {
        identity[i * columns + i] = 1;
    }
    const std::ptrdiff_t row = columns * std::ptrdiff_t(sizeof(T));
    return copyElements<T>(parallel, count, rows, columns,
                           {dst, {Addresses<const T>::strided(identity, {0, row, sizeof(T)})}});
}

// Writes one value to all elements, if there are any.
template <class T>
void fill(T value, std::ptrdiff_t rows, std::ptrdiff_t columns, const Addresses<T> &dst) {
    if (rows > 0 && columns > 0) {
        copyObjects<T>({1, rows, columns}, {dst, {Addresses<const T>::strided(&value, {0, 0, 0})}});
    }
}

// The zeros, then the ones of the diagonal.
template <class T>
void fillThenDiagonal(std::ptrdiff_t rows, std::ptrdiff_t columns, const Addresses<T> &dst) {
    Addresses<T> diagonal = dst;
    diagonal.step[1] += diagonal.step[2];
    fill(T(0), rows, columns, dst);
    fill(T(1), std::min(rows, columns), 1, diagonal);
}

// Elements one after another, so that of those which stand at one address the last one remains.
template <class T>
void inOrder(std::ptrdiff_t rows, std::ptrdiff_t columns, const Addresses<T> &dst) {
    for (std::ptrdiff_t row = 0; row < rows; ++row) {
        fill(T(0), 1, std::min(row, columns), dst.from(0, row));
        if (row < columns) {
            fill(T(1), 1, 1, dst.from(0, row, row));
            fill(T(0), 1, columns - row - 1, dst.from(0, row, row + 1));
        }
    }
}

template <class T>
void writeInPlace(std::ptrdiff_t rows, std::ptrdiff_t columns, const Addresses<T> &dst) {
    Nest<T, 0> nest({1, rows, columns}, {dst, {}});
    nest.straighten();
    const Addresses<T> straight = nest.operand.dst;
    nest.arrange();
    if (straight.movesByBytes() && nest.isDisjoint) {
        fillThenDiagonal(rows, columns, straight);
    } else {
        inOrder(rows, columns, straight);
    }
}

template <class T>
LxpStatus loadIdentities(bool parallel, int count, int rows, int columns, const Addresses<T> &dst) {
    if (std::ptrdiff_t(rows) * columns <= largestCopied) {
        return copyReadyMade(parallel, count, rows, columns, dst);
    }
    return overObjects(parallel, count, [&](int first, int objects) {
        for (int k = 0; k < objects; ++k) {
            writeInPlace(rows, columns, dst.from(std::ptrdiff_t(first) + k));
        }
        return lxpStatusOk;
    });
}

} // namespace

template <Code operands, class T, Layout layout>
LxpStatus LoadIdentityMember<operands, T, layout>::run(const Arguments &arguments) {
    if (const LxpStatus status = firstFailure<order>(arguments); status != lxpStatusOk) {
        return status;
    }
    const auto &[destination, size, number] = arguments.parts;
    const int width = size.width();
    const int height = size.height();
    const int count = number.value;

    const bool parallel = movedByOneThread.isParallel(Work(width) * height * count);
    return loadIdentities<T>(parallel, count, height, width, destination.addresses(height, width));
}

} // namespace lxpm

#define EXPORT_LIST "elementwise/load_identity.list.h"
#include "runtime/instantiate.h"
