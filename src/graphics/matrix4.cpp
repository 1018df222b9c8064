// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "graphics/matrix4.h"

#include "graphics/graphics.h"

#include <cmath>

namespace lxpm {

namespace {

// A lane for each column that is left out: what the others are, in ascending order. Lane 0 leaves out column 0, so its
// columns are 1, 2, 3.
template <class V>
struct OtherColumns {
    V first;  // 1 0 0 0
    V second; // 2 2 1 1
    V third;  // 3 3 3 2
};

inline OtherColumns<Row> otherColumns(Row row) {
    return {{_mm_permute_ps(row.vector, _MM_SHUFFLE(0, 0, 0, 1))},
            {_mm_permute_ps(row.vector, _MM_SHUFFLE(1, 1, 2, 2))},
            {_mm_permute_ps(row.vector, _MM_SHUFFLE(2, 3, 3, 3))}};
}

inline OtherColumns<RowPair> otherColumns(RowPair rows) {
    return {{_mm256_permute_ps(rows.vector, _MM_SHUFFLE(0, 0, 0, 1))},
            {_mm256_permute_ps(rows.vector, _MM_SHUFFLE(1, 1, 2, 2))},
            {_mm256_permute_ps(rows.vector, _MM_SHUFFLE(2, 3, 3, 3))}};
}

// The minors of order 2 of two rows, named for the column, of the three others, that they leave out.
template <class V>
struct Minors {
    V withoutFirst;
    V withoutSecond;
    V withoutThird;
};

template <class V>
inline Minors<V> minors(const OtherColumns<V> &upper, const OtherColumns<V> &lower) {
    return {upper.second * lower.third - upper.third * lower.second,
            upper.first * lower.third - upper.third * lower.first,
            upper.first * lower.second - upper.second * lower.first};
}

// The minors of order 3 of a row with those two: lane j leaves out column j. Which of the three rows is on top makes no
// difference to the sign if the other two are neighbours.
template <class V>
inline V minorsOfThree(const OtherColumns<V> &row, const Minors<V> &others) {
    return (row.first * others.withoutFirst - row.second * others.withoutSecond) + row.third * others.withoutThird;
}

// Expansion along the first row: (c0 - c1) + (c2 - c3).
inline float expand(Row minorsOfOthers, Row firstRow) {
    const __m128 c = (minorsOfOthers * firstRow).vector;
    const __m128 differences = _mm_sub_ps(c, _mm_movehdup_ps(c)); // c0-c1 . c2-c3 .
    return _mm_cvtss_f32(_mm_add_ss(differences, _mm_movehl_ps(differences, differences)));
}

// The processor's estimate of the reciprocal with one step of Newton's method.
inline float reciprocalOf(float x) {
    const float estimate = _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
    return (estimate + estimate) - x * (estimate * estimate);
}

// Columns 0 and 2 in one register, 1 and 3 in the other, to rows in memory. The comments give row and column, a bar
// between the halves of a register.
inline void storeFromColumns(RowPair columns02, RowPair columns13, float *matrix) {
    const __m256 rows01 = _mm256_unpacklo_ps(columns02.vector, columns13.vector);         // 00 01 10 11 | 02 03 12 13
    const __m256 rows23 = _mm256_unpackhi_ps(columns02.vector, columns13.vector);         // 20 21 30 31 | 22 23 32 33
    const __m256d left = _mm256_castps_pd(_mm256_permute2f128_ps(rows01, rows23, 0x20));  // 00 01 10 11 | 20 21 30 31
    const __m256d right = _mm256_castps_pd(_mm256_permute2f128_ps(rows01, rows23, 0x31)); // 02 03 12 13 | 22 23 32 33
    storeHalves({_mm256_castpd_ps(_mm256_unpacklo_pd(left, right))}, matrix, matrix + 8);
    storeHalves({_mm256_castpd_ps(_mm256_unpackhi_pd(left, right))}, matrix + 4, matrix + 12);
}

} // namespace

float determinantOf(const float *matrix) {
    const auto [r0, r1, r2, r3] = loadRows(matrix);
    return expand(minorsOfThree(otherColumns(r1), minors(otherColumns(r2), otherColumns(r3))), r0);
}

// The adjugate's columns are the signed minors of the rows, two columns in each register.
LxpStatus invert(const float *matrix, float *determinant, float *inverse) {
    const RowPair rows02 = pairOf(matrix, matrix + 8);
    const RowPair rows13 = pairOf(matrix + 4, matrix + 12);
    const OtherColumns<RowPair> others02 = otherColumns(rows02);
    const OtherColumns<RowPair> others13 = otherColumns(rows13);

    // Column 0 and 1 take the minors of rows 2 and 3, columns 2 and 3 those of rows 0 and 1.
    const Minors<RowPair> ownRows = minors(others02, others13); // rows 0 and 1 | rows 2 and 3
    const auto exchanged = [](RowPair rows) -> RowPair {
        return {_mm256_permute2f128_ps(rows.vector, rows.vector, 1)};
    };
    const Minors<RowPair> otherRows = {exchanged(ownRows.withoutFirst), exchanged(ownRows.withoutSecond),
                                       exchanged(ownRows.withoutThird)};
    const RowPair minors02 = minorsOfThree(others13, otherRows); // of columns 0 | 2
    const RowPair minors13 = minorsOfThree(others02, otherRows); // of columns 1 | 3

    const float expanded = expand(lowRow(minors02), lowRow(rows02));
    const bool isSingular = std::abs(expanded) < 0x1p-119F;
    if (determinant != nullptr) {
        *determinant = isSingular ? 0 : expanded;
    }
    if (isSingular) {
        return lxpStatusSingularErr;
    }

    // Every other sign changes, by a subtraction from +0.
    const RowPair zero = RowPair::splat(0);
    const RowPair factor = RowPair::splat(reciprocalOf(expanded));
    const RowPair adjugate02 = {_mm256_blend_ps(minors02.vector, (zero - minors02).vector, 0b10101010)};
    const RowPair adjugate13 = {_mm256_blend_ps(minors13.vector, (zero - minors13).vector, 0b01010101)};
    storeFromColumns(factor * adjugate02, factor * adjugate13, inverse);
    return lxpStatusOk;
}

namespace implementation {

LxpStatus lxpmMul_mm4x4_32f(const float *src1, const float *src2, float *dst) {
    if (src1 == nullptr || src2 == nullptr || dst == nullptr) {
        return lxpStatusNullPtrErr;
    }
    storeMatrix(product(src1, src2), dst);
    return lxpStatusOk;
}

LxpStatus lxpmMulTranspose_m4_32f(const float *src1, const float *src2, float *dst) {
    const auto [rows01, rows23] = product(src1, src2);
    std::array<Row, 4> rows = {lowRow(rows01), highRow(rows01), lowRow(rows23), highRow(rows23)};
    transpose(rows);
    for (int i = 0; i < 4; ++i) {
        rows[i].store(dst + 4 * i);
    }
    return lxpStatusOk;
}

LxpStatus lxpmTranspose_m4_32f(const float *src, float *dst) {
    std::array<Row, 4> rows = loadRows(src);
    transpose(rows);
    for (int i = 0; i < 4; ++i) {
        rows[i].store(dst + 4 * i);
    }
    return lxpStatusOk;
}

LxpStatus lxpmDet_m4_32f(const float *src, float *dst) {
    *dst = determinantOf(src);
    return lxpStatusOk;
}

LxpStatus lxpmInvert_m4_32f(const float *src, float *det, float *dst) {
    return invert(src, det, dst);
}

} // namespace implementation

} // namespace lxpm
