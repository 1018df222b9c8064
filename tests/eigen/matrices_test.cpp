// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Named matrices and random ones, up to order 64: residuals, orthogonality and invariants, computed in a wider type.
// Arrays hold matrices whose iterations differ, so that the lanes part.

#include "eigen/calls.h"
#include "support/thread_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <complex>
#include <limits>
#include <random>
#include <vector>

namespace lxpm::test {

namespace {

using Wide = long double;
using WideComplex = std::complex<Wide>;
using Matrix = std::vector<double>;

Matrix make(int order, double (*element)(int i, int j, int order)) {
    Matrix matrix(order * order);
    for (int i = 0; i < order; ++i) {
        for (int j = 0; j < order; ++j) {
            matrix[i * order + j] = element(i, j, order);
        }
    }
    return matrix;
}

struct Named {
    const char *name;
    double (*element)(int i, int j, int order);
};

constexpr Named symmetricMatrices[] = {
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

constexpr Named generalMatrices[] = {
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

const int testedOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 11, 16, 17, 24, 40, 64};

template <class T>
std::vector<T> narrowed(const Matrix &matrix) {
    return {matrix.begin(), matrix.end()};
}

template <class T>
Wide normOf(const T *matrix, int order) {
    Wide squares = 0;
    for (int i = 0; i < order * order; ++i) {
        squares += Wide(matrix[i]) * matrix[i];
    }
    return std::sqrt(squares);
}

template <class T>
class EigenMatrices : public testing::Test {
protected:
    static constexpr Wide eps = std::numeric_limits<T>::epsilon();

    /// Of what the library gave for one symmetric matrix; absolute tolerances are added to the relative ones.
    static void expectSymmetric(const T *matrix, const T *vectors, const T *values, int order) {
        const Wide bound = (20 * normOf(matrix, order) + 4) * eps * order;
        Wide trace = 0;
        Wide sum = 0;
        for (int c = 0; c < order; ++c) {
            trace += matrix[c * order + c];
            sum += values[c];
            if (c > 0) {
                EXPECT_GE(values[c - 1], values[c]);
            }
            for (int i = 0; i < order; ++i) {
                Wide product = 0;
                Wide cosine = 0;
                for (int j = 0; j < order; ++j) {
                    product += Wide(matrix[i * order + j]) * vectors[j * order + c];
                    cosine += Wide(vectors[j * order + i]) * vectors[j * order + c];
                }
                EXPECT_LE(std::fabs(product - Wide(values[c]) * vectors[i * order + c]), bound) << "vector " << c;
                EXPECT_LE(std::fabs(cosine - (i == c)), 20 * order * eps) << "vectors " << i << ", " << c;
            }
        }
        EXPECT_LE(std::fabs(trace - sum), bound);
    }

    static void expectGeneral(const T *matrix, const GeneralResult<T> &result, int order, Wide scale = 1) {
        const Wide bound = 20 * normOf(matrix, order) * eps * order * scale;
        Wide trace = 0;
        Wide sum = 0;
        for (int c = 0; c < order; ++c) {
            trace += matrix[c * order + c];
            sum += result.re[c];
        }
        EXPECT_LE(std::fabs(trace - sum), bound);
        for (int c = 0; c < order; c += 1 + (result.im[c] != 0)) {
            const bool isPair = result.im[c] != 0;
            if (isPair) {
                ASSERT_LT(c + 1, order);
                EXPECT_GT(result.im[c], 0);
                EXPECT_EQ(result.im[c + 1], -result.im[c]);
                EXPECT_EQ(result.re[c + 1], result.re[c]);
            }
            const WideComplex value(result.re[c], result.im[c]);
            const auto element = [&](const std::vector<T> &vectors, int i) {
                return WideComplex(vectors[i * order + c], isPair ? vectors[i * order + c + 1] : T(0));
            };
            Wide right = 0;
            Wide left = 0;
            for (int i = 0; i < order; ++i) {
                WideComplex byRight = 0;
                WideComplex byLeft = 0;
                for (int j = 0; j < order; ++j) {
                    byRight += Wide(matrix[i * order + j]) * element(result.right, j);
                    byLeft += Wide(matrix[j * order + i]) * std::conj(element(result.left, j));
                }
                EXPECT_LE(std::abs(byRight - value * element(result.right, i)), bound) << "right vector " << c;
                EXPECT_LE(std::abs(byLeft - value * std::conj(element(result.left, i))), bound) << "left vector " << c;
                right += std::norm(element(result.right, i));
                left += std::norm(element(result.left, i));
            }
            EXPECT_LE(std::fabs(right - 1), 10 * order * eps);
            EXPECT_LE(std::fabs(left - 1), 10 * order * eps);
        }
    }

    /// Values alone come from another path.
    static void expectSameValues(std::vector<T> a, std::vector<T> b, Wide bound) {
        std::sort(a.begin(), a.end());
        std::sort(b.begin(), b.end());
        for (std::size_t i = 0; i < a.size(); ++i) {
            EXPECT_LE(std::fabs(Wide(a[i]) - b[i]), bound);
        }
    }

    static void solveSymmetric(const std::vector<T> &matrix, int order) {
        std::vector<T> buffer(order * order);
        std::vector<T> vectors(order * order);
        std::vector<T> values(order);
        std::vector<T> alone(order);
        const LxpStatus status = callSymmetric(matrix.data(), buffer.data(), vectors.data(), values.data(), order);
        Wide product = 1;
        for (const T value : values) {
            product *= value;
        }
        if (std::fabs(product) > 2 * eps || std::fabs(product) < eps / 2) {
            EXPECT_EQ(status, std::fabs(product) < eps ? lxpStatusSingularErr : lxpStatusOk);
        }
        expectSymmetric(matrix.data(), vectors.data(), values.data(), order);
        if (order > 2) {
            EXPECT_EQ(callSymmetric(matrix.data(), buffer.data(), alone.data(), order), status);
            expectSameValues(alone, values, 0);
        }
    }
};

using ElementTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(EigenMatrices, ElementTypes);

TYPED_TEST(EigenMatrices, NamedSymmetricOnes) {
    using T = TypeParam;
    for (const Named &named : symmetricMatrices) {
        for (const int order : testedOrders) {
            SCOPED_TRACE(std::string(named.name) + " of order " + std::to_string(order));
            this->solveSymmetric(narrowed<T>(make(order, named.element)), order);
        }
    }
}

TYPED_TEST(EigenMatrices, NamedGeneralOnes) {
    using T = TypeParam;
    for (const Named &named : generalMatrices) {
        for (const int order : testedOrders) {
            SCOPED_TRACE(std::string(named.name) + " of order " + std::to_string(order));
            const std::vector<T> matrix = narrowed<T>(make(order, named.element));
            this->expectGeneral(matrix.data(), callGeneral(matrix, order), order);
        }
    }
}

TYPED_TEST(EigenMatrices, ArraysOfRandomSymmetricOnes) {
    using T = TypeParam;
    setThreadCount(1);
    std::mt19937 generator(5);
    std::normal_distribution<double> normal;
    for (const int order : testedOrders) {
        const int count = order <= 16 ? 83 : 3;
        const int area = order * order;
        std::vector<T> source(count * area);
        for (int object = 0; object < count; ++object) {
            for (int i = 0; i < order; ++i) {
                for (int j = i; j < order; ++j) {
                    const T element = static_cast<T>(normal(generator) * (object % 5 == 0 && i != j ? 1e-3 : 1));
                    source[object * area + i * order + j] = source[object * area + j * order + i] = element;
                }
            }
        }
        std::vector<T> buffer(area);
        std::vector<T> vectors(count * area);
        std::vector<T> values(count * order);
        callSymmetric(source.data(), buffer.data(), vectors.data(), values.data(), order, count);
        for (int object = 0; object < count; ++object) {
            this->expectSymmetric(source.data() + object * area, vectors.data() + object * area,
                                  values.data() + object * order, order);
        }
    }
}

TYPED_TEST(EigenMatrices, RandomGeneralOnes) {
    using T = TypeParam;
    std::mt19937 generator(6);
    std::normal_distribution<double> normal;
    for (const int order : testedOrders) {
        for (int repetition = 0; repetition < (order <= 16 ? 50 : 3); ++repetition) {
            std::vector<T> matrix(order * order);
            for (T &element : matrix) {
                element = static_cast<T>(normal(generator));
            }
            this->expectGeneral(matrix.data(), callGeneral(matrix, order), order);
        }
    }
}

} // namespace

} // namespace lxpm::test
