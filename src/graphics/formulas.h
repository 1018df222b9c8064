// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Vector times matrix, each formula once. Taken with whole rows it gives a whole vector; taken with one element of each
// row, for many vectors at a time, it gives that element of all of them.

#include "graphics/matrix4.h"

#include <array>

namespace lxpm {

template <class V>
using RowsOf = std::array<V, 4>;

// A vector's missing elements are 0 but for the last one, which is 1 for a point and 0 for a normal.
struct Point2 {
    template <class V>
    static V sum(const std::array<V, 2> &v, const RowsOf<V> &r) {
        return (v[0] * r[0] + r[3]) + v[1] * r[1];
    }
};

struct Point3 {
    template <class V>
    static V sum(const std::array<V, 3> &v, const RowsOf<V> &r) {
        return ((v[0] * r[0] + r[3]) + v[1] * r[1]) + v[2] * r[2];
    }
};

struct Vector4 {
    template <class V>
    static V sum(const std::array<V, 4> &v, const RowsOf<V> &r) {
        return (v[0] * r[0] + v[1] * r[1]) + (v[2] * r[2] + v[3] * r[3]);
    }
};

struct Normal2 {
    template <class V>
    static V sum(const std::array<V, 2> &v, const RowsOf<V> &r) {
        return v[0] * r[0] + v[1] * r[1];
    }
};

struct Normal3 {
    template <class V>
    static V sum(const std::array<V, 3> &v, const RowsOf<V> &r) {
        return (v[0] * r[0] + v[1] * r[1]) + v[2] * r[2];
    }
};

// Points of three elements that are to be divided afterwards or to go through further matrices.
struct PairedPoint3 {
    template <class V>
    static V sum(const std::array<V, 3> &v, const RowsOf<V> &r) {
        return (v[0] * r[0] + v[1] * r[1]) + (r[3] + v[2] * r[2]);
    }
};

// The same bits as PairedPoint3 but for the payload of a NaN, which is the first operand's.
struct ExchangedPoint3 {
    template <class V>
    static V sum(const std::array<V, 3> &v, const RowsOf<V> &r) {
        return (r[3] + v[2] * r[2]) + (v[0] * r[0] + v[1] * r[1]);
    }
};

// From the left, the translation last.
struct LeftToRightPoint3 {
    template <class V>
    static V sum(const std::array<V, 3> &v, const RowsOf<V> &r) {
        return ((r[0] * v[0] + r[1] * v[1]) + r[2] * v[2]) + r[3];
    }
};

// One vector times a matrix, all elements in a register.
template <class Formula, std::size_t K>
inline Row timesRows(const std::array<Row, K> &v, const float *matrix) {
    return Formula::sum(v, loadRows(matrix));
}

// Each element of a vector in a register of its own.
template <std::size_t K>
inline std::array<Row, K> spreadElements(const float *vector) {
    std::array<Row, K> elements;
    for (std::size_t i = 0; i < K; ++i) {
        elements[i] = Row::splat(vector[i]);
    }
    return elements;
}

inline std::array<Row, 4> spreadElements(Row vector) {
    return {spread<0>(vector), spread<1>(vector), spread<2>(vector), spread<3>(vector)};
}

// Every element of a matrix in a register of its own, for many vectors at a time.
class MatrixInLanes {
public:
    using Lane = Lanes<float, 8>;

    explicit MatrixInLanes(const float *matrix) {
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < 4; ++column) {
                columns_[column][row] = Lane::splat(matrix[4 * row + column]);
            }
        }
    }

    // One element of the products.
    template <class Formula, std::size_t K>
    Lane times(const std::array<Lane, K> &v, int column) const {
        return Formula::sum(v, columns_[column]);
    }

    template <class Formula, std::size_t K>
    std::array<Lane, 4> times(const std::array<Lane, K> &v) const {
        return {times<Formula>(v, 0), times<Formula>(v, 1), times<Formula>(v, 2), times<Formula>(v, 3)};
    }

private:
    std::array<RowsOf<Lane>, 4> columns_;
};

} // namespace lxpm
