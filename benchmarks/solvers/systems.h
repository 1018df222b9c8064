// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace lxpm::bench {

// Dense matrices that all contestants can factor and solve with accurately: symmetric and positive definite if square,
// with a large diagonal in any case.
template <class T>
std::vector<T> goodMatrices(const void *numbers, int height, int width, long count) {
    const auto *from = static_cast<const T *>(numbers);
    const long area = long{height} * width;
    std::vector<T> matrices(from, from + count * area);
    for (long k = 0; k < count; ++k) {
        T *matrix = matrices.data() + k * area;
        for (int i = 0; i < width; ++i) {
            matrix[i * width + i] += T(2 * height);
            for (int j = 0; j < i && height == width; ++j) {
                matrix[j * width + i] = matrix[i * width + j];
            }
        }
    }
    return matrices;
}

} // namespace lxpm::bench
