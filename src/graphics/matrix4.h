// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// 4x4 matrices in registers: four rows of four, or two pairs of rows of eight lanes.

#include "runtime/lanes.h"

#include <lxpm/types.h>

#include <array>

namespace lxpm {

using Row = Lanes<float, 4>;
using RowPair = Lanes<float, 8>;

// One lane of a row in all lanes.
template <int lane>
inline Row spread(Row row) {
    return {_mm_permute_ps(row.vector, lane * 0x55)};
}

// One lane of each row of a pair in all lanes of that row.
template <int lane>
inline RowPair spread(RowPair rows) {
    return {_mm256_permute_ps(rows.vector, lane * 0x55)};
}

inline RowPair pairOf(const float *low, const float *high) {
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(low)), _mm_loadu_ps(high), 1)};
}

inline RowPair twice(const float *row) {
    return {_mm256_broadcast_ps(reinterpret_cast<const __m128 *>(row))};
}

inline Row lowRow(RowPair rows) {
    return {_mm256_castps256_ps128(rows.vector)};
}

inline Row highRow(RowPair rows) {
    return {_mm256_extractf128_ps(rows.vector, 1)};
}

inline std::array<Row, 4> loadRows(const float *matrix) {
    return {Row::load(matrix), Row::load(matrix + 4), Row::load(matrix + 8), Row::load(matrix + 12)};
}

// Row i is the sum of the rows of b, each times its element of row i of a, from the left.
inline std::array<RowPair, 2> product(const float *a, const float *b) {
    const std::array<RowPair, 4> row = {twice(b), twice(b + 4), twice(b + 8), twice(b + 12)};
    std::array<RowPair, 2> result;
    for (int half = 0; half < 2; ++half) {
        const RowPair factors = RowPair::load(a + 8 * half);
        result[half] = ((spread<0>(factors) * row[0] + spread<1>(factors) * row[1]) + spread<2>(factors) * row[2]) +
                       spread<3>(factors) * row[3];
    }
    return result;
}

inline void storeMatrix(const std::array<RowPair, 2> &rows, float *matrix) {
    rows[0].store(matrix);
    rows[1].store(matrix + 8);
}

// The inverse, if the determinant's magnitude is not below 2^-119. Else `inverse` is left alone, the determinant counts
// as 0, and the status says so. `determinant` may be null; it is stored before the inverse.
LxpStatus invert(const float *matrix, float *determinant, float *inverse);

float determinantOf(const float *matrix);

} // namespace lxpm
