// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// What other graphics functions need of small vectors.

#include <cmath>

namespace lxpm {

// The sum of the products, from the left.
template <int K>
inline float dotOf(const float *a, const float *b) {
    float sum = a[0] * b[0];
    for (int i = 1; i < K; ++i) {
        sum = sum + a[i] * b[i];
    }
    return sum;
}

template <int K>
inline float lengthOf(const float *a) {
    return std::sqrt(dotOf<K>(a, a));
}

// Divisions, since a product with the reciprocal length would round twice.
template <int K>
inline void divideByLength(const float *a, float *result) {
    const float length = lengthOf<K>(a);
    for (int i = 0; i < K; ++i) {
        result[i] = a[i] / length;
    }
}

inline void cross(const float *a, const float *b, float *result) {
    result[0] = a[1] * b[2] - a[2] * b[1];
    result[1] = a[2] * b[0] - a[0] * b[2];
    result[2] = a[0] * b[1] - a[1] * b[0];
}

} // namespace lxpm
