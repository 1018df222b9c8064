// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Named matrices and random ones, up to order 64: residuals, orthogonality and invariants, computed in a wider type.
// Arrays hold matrices whose iterations differ, so that the lanes part.

#include "eigen/calls.h"
#include "eigen/named_matrices.h"
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

    /// The product of the values is the determinant of a matrix that differs from this one by `bound` in norm; and a
    /// determinant is no larger than the product of the lengths of its rows (Hadamard).
    static void expectDeterminant(const T *matrix, WideComplex product, int order, Wide bound) {
        Wide before = 1;
        Wide after = 1;
        for (int i = 0; i < order; ++i) {
            Wide squares = 0;
            for (int j = 0; j < order; ++j) {
                squares += Wide(matrix[i * order + j]) * matrix[i * order + j];
            }
            before *= std::sqrt(squares);
            after *= std::sqrt(squares) + bound;
        }
        EXPECT_LE(std::abs(product - determinant(matrix, order)), after - before);
    }

    /// By elimination with row pivots.
    static Wide determinant(const T *matrix, int order) {
        std::vector<Wide> a(matrix, matrix + order * order);
        Wide product = 1;
        for (int k = 0; k < order; ++k) {
            int pivot = k;
            for (int i = k + 1; i < order; ++i) {
                if (std::fabs(a[i * order + k]) > std::fabs(a[pivot * order + k])) {
                    pivot = i;
                }
            }
            if (pivot != k) {
                std::swap_ranges(&a[k * order], &a[k * order] + order, &a[pivot * order]);
                product = -product;
            }
            product *= a[k * order + k];
            if (product == 0) {
                return 0;
            }
            for (int i = k + 1; i < order; ++i) {
                const Wide factor = a[i * order + k] / a[k * order + k];
                for (int j = k; j < order; ++j) {
                    a[i * order + j] -= factor * a[k * order + j];
                }
            }
        }
        return product;
    }

    /// Of what the library gave for one symmetric matrix; absolute tolerances are added to the relative ones.
    static void expectSymmetric(const T *matrix, const T *vectors, const T *values, int order) {
        const Wide bound = (20 * normOf(matrix, order) + 4) * eps * order;
        Wide trace = 0;
        Wide sum = 0;
        Wide product = 1;
        for (int c = 0; c < order; ++c) {
            trace += matrix[c * order + c];
            sum += values[c];
            product *= values[c];
            if (c > 0) {
                EXPECT_GE(values[c - 1], values[c]);
            }
            for (int i = 0; i < order; ++i) {
                Wide image = 0;
                Wide cosine = 0;
                for (int j = 0; j < order; ++j) {
                    image += Wide(matrix[i * order + j]) * vectors[j * order + c];
                    cosine += Wide(vectors[j * order + i]) * vectors[j * order + c];
                }
                EXPECT_LE(std::fabs(image - Wide(values[c]) * vectors[i * order + c]), bound) << "vector " << c;
                EXPECT_LE(std::fabs(cosine - (i == c)), 20 * order * eps) << "vectors " << i << ", " << c;
            }
        }
        EXPECT_LE(std::fabs(trace - sum), bound);
        expectDeterminant(matrix, product, order, bound);
    }

    static void expectGeneral(const T *matrix, const GeneralResult<T> &result, int order, Wide scale = 1) {
        const Wide bound = 20 * normOf(matrix, order) * eps * order * scale;
        Wide trace = 0;
        Wide sum = 0;
        WideComplex product = 1;
        for (int c = 0; c < order; ++c) {
            trace += matrix[c * order + c];
            sum += result.re[c];
            product *= WideComplex(result.re[c], result.im[c]);
        }
        EXPECT_LE(std::fabs(trace - sum), bound);
        expectDeterminant(matrix, product, order, bound);
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
