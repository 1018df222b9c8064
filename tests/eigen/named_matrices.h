// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Matrices with a name, and what is like them.

#ifndef LXPM_TESTS_EIGEN_NAMED_MATRICES_H
#define LXPM_TESTS_EIGEN_NAMED_MATRICES_H

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace lxpm::test {

using Matrix = std::vector<double>; // by rows

inline Matrix make(int order, double (*element)(int i, int j, int order)) {
    Matrix matrix(order * order);
    for (int i = 0; i < order; ++i) {
        for (int j = 0; j < order; ++j) {
            matrix[i * order + j] = element(i, j, order);
        }
    }
    return matrix;
}

/// A matrix of any order.
struct Named {
    const char *name;
    double (*element)(int i, int j, int order);
};

inline constexpr Named symmetricMatrices[] = {
    {"Hilbert", [](int i, int j, int) { return 1.0 / (i + j + 1); }},
    {"Wilkinson", [](int i, int j, int n) { return i == j ? std::abs(n - 1 - 2 * i) / 2.0 : std::abs(i - j) == 1; }},
    {"SecondDifference", [](int i, int j, int) { return i == j                 ? 2.0
                                                        : std::abs(i - j) == 1 ? -1.0
                                                                               : 0.0; }},
    {"Ones", [](int, int, int) { return 1.0; }},
    {"Identity", [](int i, int j, int) { return i == j ? 1.0 : 0.0; }},
    {"Clustered", [](int i, int j, int) { return (i == j ? 3.0 : 0.0) + 1e-5 * ((i + 1) * (j + 1) % 7); }},
    {"Graded", [](int i, int j, int) { return std::pow(10.0, -0.3 * (i + j)) * (1 + (i * j) % 3); }},
    {"GradedUpwards", [](int i, int j, int n) { return std::pow(10.0, 0.3 * (i + j - 2 * n)) * (1 + (i * j) % 3); }},
    {"Repeated", [](int i, int j, int) { return i == j ? 2.0 + i % 2 : 0.0; }},
    {"Exchange", [](int i, int j, int n) { return i + j == n - 1 ? 1.0 : 0.0; }},
    {"Minimum", [](int i, int j, int) { return 1.0 + std::min(i, j); }},
};

inline constexpr Named generalMatrices[] = {
    {"Frank",
     [](int i, int j, int n) { return j < i - 1    ? 0.0
                                      : j == i - 1 ? n - 1.0 - j
                                                   : n - std::max(i, j) + 0.0; }},
    {"Grcar", [](int i, int j, int) { return i == j + 1             ? -1.0
                                             : j >= i && j <= i + 3 ? 1.0
                                                                    : 0.0; }},
    {"Clement", [](int i, int j, int n) { return j == i + 1   ? n - 1.0 - i
                                                 : j == i - 1 ? i + 0.0
                                                              : 0.0; }},
    {"Jordan", [](int i, int j, int) { return i == j       ? 2.0
                                              : j == i + 1 ? 1.0
                                                           : 0.0; }},
    {"Nilpotent", [](int i, int j, int) { return j == i + 1 ? 1.0 : 0.0; }},
    {"NilpotentBelow", [](int i, int j, int) { return j == i - 1 ? 1.0 : 0.0; }},
    {"Zero", [](int, int, int) { return 0.0; }},
    {"CompanionOfOnes", [](int i, int j, int) { return i == 0       ? -1.0
                                                       : i == j + 1 ? 1.0
                                                                    : 0.0; }},
    {"Cyclic", [](int i, int j, int n) { return i == (j + 1) % n ? 1.0 : 0.0; }},
    {"Rotations",
     [](int i, int j, int) {
         return i == j ? std::cos(i / 2) : i / 2 != j / 2 ? 0.0 : (i < j ? -1 : 1) * std::sin(i / 2);
     }},
    {"Chebyshev", [](int i, int j, int) { return std::cos(0.3 * i * j) + (i == j ? 0.5 : 0.0); }},
    {"Hilbert", [](int i, int j, int) { return 1.0 / (i + j + 1); }},
    {"Lotkin", [](int i, int j, int) { return i == 0 ? 1.0 : 1.0 / (i + j + 1); }},
    {"Graded", [](int i, int j, int) { return std::pow(10.0, -0.3 * (i + j)) * (1 + (i * 5 + j * 3) % 7); }},
    {"Triangular", [](int i, int j, int) { return j < i ? 0.0 : 1.0 + (i * 5 + j * 3) % 7; }},
};

inline constexpr int testedOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 11, 16, 17, 24, 40, 64};

} // namespace lxpm::test

#endif
