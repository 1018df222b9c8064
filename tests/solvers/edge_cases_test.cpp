// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Cases of the solvers that have a name of their own.

#include "support/raised_flags.h"
#include "support/thread_count.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace lxpm::test {

namespace {

// --- The functions of one type, on dense memory ---

template <class T>
constexpr int size = sizeof(T);

#define LXPM_OF_TYPE(name, ...)                                                                                        \
    [&] {                                                                                                              \
        if constexpr (sizeof(T) == sizeof(float)) {                                                                    \
            return name##_32f(__VA_ARGS__);                                                                            \
        } else {                                                                                                       \
            return name##_64f(__VA_ARGS__);                                                                            \
        }                                                                                                              \
    }()

#define LXPM_BY_POINTERS_OF_TYPE(name, ...)                                                                            \
    [&] {                                                                                                              \
        if constexpr (sizeof(T) == sizeof(float)) {                                                                    \
            return name##_32f_P(__VA_ARGS__);                                                                          \
        } else {                                                                                                       \
            return name##_64f_P(__VA_ARGS__);                                                                          \
        }                                                                                                              \
    }()

template <class T>
LxpStatus factorLU(const T *src, int *index, T *dst, int n) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmLUDecomp_m, src, row, size<T>, index, dst, row, size<T>, n);
}

template <class T>
LxpStatus factorLU(const T *src, int *index, T *dst, int n, int count) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmLUDecomp_ma, src, n * row, row, size<T>, index, dst, n * row, row, size<T>, n, count);
}

template <class T>
LxpStatus solveLU(const T *factors, const int *index, const T *b, T *x, int n) {
    return LXPM_OF_TYPE(lxpmLUBackSubst_mv, factors, n * size<T>, size<T>, index, b, size<T>, x, size<T>, n);
}

template <class T>
LxpStatus solveLU(const T *factors, const int *index, const T *b, T *x, int n, int count) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmLUBackSubst_mva, factors, row, size<T>, index, b, row, size<T>, x, row, size<T>, n, count);
}

template <class T>
LxpStatus factorCholesky(const T *src, int *, T *dst, int n) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmCholeskyDecomp_m, src, row, size<T>, dst, row, size<T>, n);
}

template <class T>
LxpStatus factorCholesky(const T *src, int *, T *dst, int n, int count) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmCholeskyDecomp_ma, src, n * row, row, size<T>, dst, n * row, row, size<T>, n, count);
}

template <class T>
LxpStatus solveCholesky(const T *factors, const T *b, T *x, int n) {
    return LXPM_OF_TYPE(lxpmCholeskyBackSubst_mv, factors, n * size<T>, size<T>, b, size<T>, x, size<T>, n);
}

template <class T>
LxpStatus solveCholesky(const T *factors, const T *b, T *x, int n, int count) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmCholeskyBackSubst_mva, factors, row, size<T>, b, row, size<T>, x, row, size<T>, n, count);
}

template <class T>
LxpStatus factorQR(const T *src, T *dst, int width, int height) {
    const int row = width * size<T>;
    std::vector<T> buffer(height);
    return LXPM_OF_TYPE(lxpmQRDecomp_m, src, row, size<T>, buffer.data(), dst, row, size<T>, width, height);
}

template <class T>
LxpStatus factorQR(const T *src, int *, T *dst, int n) {
    return factorQR(src, dst, n, n);
}

template <class T>
LxpStatus factorQR(const T *src, int *, T *dst, int n, int count) {
    const int row = n * size<T>;
    std::vector<T> buffer(n);
    return LXPM_OF_TYPE(lxpmQRDecomp_ma, src, n * row, row, size<T>, buffer.data(), dst, n * row, row, size<T>, n, n,
                        count);
}

template <class T>
LxpStatus solveQR(const T *factors, const T *b, T *x, int width, int height) {
    std::vector<T> buffer(height);
    return LXPM_OF_TYPE(lxpmQRBackSubst_mv, factors, width * size<T>, size<T>, buffer.data(), b, size<T>, x, size<T>,
                        width, height);
}

template <class T>
LxpStatus invert(const T *src, int *, T *dst, int n) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmInvert_m, src, row, size<T>, dst, row, size<T>, n);
}

template <class T>
LxpStatus invert(const T *src, int *, T *dst, int n, int count) {
    const int row = n * size<T>;
    return LXPM_OF_TYPE(lxpmInvert_ma, src, n * row, row, size<T>, dst, n * row, row, size<T>, n, count);
}

template <class T>
T determinant(const std::vector<T> &src, int n) {
    T result = -1;
    EXPECT_EQ(LXPM_OF_TYPE(lxpmDet_m, src.data(), n * size<T>, size<T>, n, &result), lxpStatusOk);
    return result;
}

// --- Matrices ---

template <class T>
std::vector<T> randomNumbers(int count, unsigned seed) {
    std::mt19937 generator(seed);
    std::uniform_real_distribution<T> distribution(-1, 1);
    std::vector<T> numbers(count);
    for (T &number : numbers) {
        number = distribution(generator);
    }
    return numbers;
}

template <class T>
std::vector<T> diagonal(int n, T value = 1) {
    std::vector<T> matrix(n * n);
    for (int i = 0; i < n; ++i) {
        matrix[i * n + i] = value;
    }
    return matrix;
}

template <class T>
std::vector<T> positiveDefinite(int n, unsigned seed) {
    std::vector<T> matrix = randomNumbers<T>(n * n, seed);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < i; ++j) {
            matrix[j * n + i] = matrix[i * n + j];
        }
        matrix[i * n + i] = T(n + 1);
    }
    return matrix;
}

struct Named {
    const char *name;
    std::vector<double> matrix;
};

std::vector<Named> collection(int n) {
    const auto make = [n](auto element) {
        std::vector<double> matrix(n * n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                matrix[i * n + j] = element(i, j);
            }
        }
        return matrix;
    };
    const std::vector<double> random = randomNumbers<double>(n * n, 7);
    const auto at = [&](int i, int j) { return random[i * n + j]; };
    std::vector<Named> all;
    all.push_back({"random", random});
    all.push_back({"diagonal", make([&](int i, int j) { return i == j ? 2.0 + i : 0.0; })});
    all.push_back({"upper triangular", make([&](int i, int j) { return i == j ? 3.0 : i < j ? at(i, j) : 0.0; })});
    all.push_back({"lower triangular", make([&](int i, int j) { return i == j ? 3.0 : i > j ? at(i, j) : 0.0; })});
    all.push_back({"permutation", make([&](int i, int j) { return j == (i + 1) % n ? 1.0 : 0.0; })});
    all.push_back({"graded", make([&](int i, int j) { return at(i, j) * std::pow(0.5, i + j) + (i == j) * 0.1; })});
    all.push_back({"large", make([&](int i, int j) { return at(i, j) * 1e15; })});
    all.push_back({"small", make([&](int i, int j) { return at(i, j) * 1e-2 + (i == j) * 0.05; })});
    if (n <= 4) {
        all.push_back({"Hilbert", make([&](int i, int j) { return 1.0 / (i + j + 1); })});
    }
    return all;
}

template <class T>
std::vector<T> as(const std::vector<double> &numbers) {
    return std::vector<T>(numbers.begin(), numbers.end());
}

/// The largest element of A * x - b against the terms that it is the sum of.
template <class T>
long double backwardError(const std::vector<T> &a, const T *x, const T *b, int n) {
    long double worst = 0;
    for (int i = 0; i < n; ++i) {
        long double sum = -static_cast<long double>(b[i]);
        long double scale = std::fabs(static_cast<long double>(b[i]));
        for (int j = 0; j < n; ++j) {
            const long double term = static_cast<long double>(a[i * n + j]) * x[j];
            sum += term;
            scale += std::fabs(term);
        }
        worst = std::max(worst, scale > 0 ? std::fabs(sum) / scale : 0);
    }
    return worst;
}

constexpr int testedOrders[] = {1, 2, 3, 4, 5, 6, 7, 8, 11, 16, 17, 24};

template <class T>
class Solvers : public testing::Test {
protected:
    Solvers() { setThreadCount(1); }
    static constexpr T epsilon = std::numeric_limits<T>::epsilon();
};
using Types = testing::Types<float, double>;
TYPED_TEST_SUITE(Solvers, Types);

// --- Accuracy ---

TYPED_TEST(Solvers, FactorsMultiplyToTheMatrix) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        for (const auto &[name, numbers] : collection(n)) {
            const std::vector<T> a = as<T>(numbers);
            std::vector<T> factors(n * n);
            std::vector<int> index(n);
            ASSERT_EQ(factorLU(a.data(), index.data(), factors.data(), n), lxpStatusOk) << name << " " << n;
            std::vector<int> sorted = index;
            std::sort(sorted.begin(), sorted.end());
            for (int k = 0; k < n; ++k) {
                ASSERT_EQ(sorted[k], k) << "no permutation";
            }
            for (int k = 0; k < n; ++k) {
                for (int j = 0; j < n; ++j) {
                    long double sum = 0;
                    long double scale = 0;
                    for (int i = 0; i <= std::min(k, j); ++i) {
                        const long double l = i == k ? 1 : factors[index[k] * n + i];
                        EXPECT_LE(std::fabs(l), 1.0L + this->epsilon) << name;
                        const long double term = l * factors[index[i] * n + j];
                        sum += term;
                        scale += std::fabs(term);
                    }
                    EXPECT_LE(std::fabs(sum - a[index[k] * n + j]), 2 * n * this->epsilon * scale) << name << " " << n;
                }
            }
        }
    }
}

TYPED_TEST(Solvers, SolutionsSolve) {
    using T = TypeParam;
    constexpr int count = 61; // every number of groups of lanes side by side, and a remainder
    // In lanes: four groups at once up to 64 elements, one up to 256.
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 16, 17, 40, 64, 65, 256, 257}) {
        const std::vector<T> b = randomNumbers<T>(n * count, 3);
        std::vector<T> x(n * count);
        std::vector<int> index(n);
        std::vector<T> factors(n * n);

        std::vector<T> a = randomNumbers<T>(n * n, 100 + n);
        for (int i = 0; i < n; ++i) {
            a[i * n + (n - 1 - i)] += 3;
        }
        ASSERT_EQ(factorLU(a.data(), index.data(), factors.data(), n), lxpStatusOk);
        ASSERT_EQ(solveLU(factors.data(), index.data(), b.data(), x.data(), n, count), lxpStatusOk);
        for (int k = 0; k < count; ++k) {
            EXPECT_LE(backwardError(a, &x[k * n], &b[k * n], n), 10 * n * this->epsilon) << n;
            std::vector<T> one(n);
            ASSERT_EQ(solveLU(factors.data(), index.data(), &b[k * n], one.data(), n), lxpStatusOk);
            EXPECT_EQ(std::memcmp(one.data(), &x[k * n], n * sizeof(T)), 0) << n << ": other bits alone";
        }

        a = positiveDefinite<T>(n, n);
        ASSERT_EQ(factorCholesky(a.data(), nullptr, factors.data(), n), lxpStatusOk);
        ASSERT_EQ(solveCholesky(factors.data(), b.data(), x.data(), n, count), lxpStatusOk);
        for (int k = 0; k < count; ++k) {
            EXPECT_LE(backwardError(a, &x[k * n], &b[k * n], n), 10 * n * this->epsilon) << n;
            std::vector<T> one(n);
            ASSERT_EQ(solveCholesky(factors.data(), &b[k * n], one.data(), n), lxpStatusOk);
            EXPECT_EQ(std::memcmp(one.data(), &x[k * n], n * sizeof(T)), 0) << n << ": other bits alone";
        }

        ASSERT_EQ(factorQR(a.data(), factors.data(), n, n), lxpStatusOk);
        ASSERT_EQ(solveQR(factors.data(), b.data(), x.data(), n, n), lxpStatusOk);
        EXPECT_LE(backwardError(a, x.data(), b.data(), n), 40 * n * this->epsilon) << n;

        ASSERT_EQ(invert(a.data(), nullptr, factors.data(), n), lxpStatusOk);
        for (int column = 0; column < n; column += 7) {
            std::vector<T> unit(n);
            unit[column] = 1;
            std::vector<T> inverse(n);
            for (int i = 0; i < n; ++i) {
                inverse[i] = factors[i * n + column];
            }
            EXPECT_LE(backwardError(a, inverse.data(), unit.data(), n), 10 * n * this->epsilon) << n;
        }
    }
}

TYPED_TEST(Solvers, TallSystemsAreSolvedInTheLeastSquaresSense) {
    using T = TypeParam;
    for (const auto &[height, width] : {std::pair{5, 3}, {6, 4}, {16, 8}, {40, 3}, {300, 5}}) {
        const std::vector<T> a = randomNumbers<T>(height * width, 5);
        const std::vector<T> b = randomNumbers<T>(height, 6);
        std::vector<T> factors(height * width);
        std::vector<T> x(width);
        ASSERT_EQ(factorQR(a.data(), factors.data(), width, height), lxpStatusOk);
        ASSERT_EQ(solveQR(factors.data(), b.data(), x.data(), width, height), lxpStatusOk);
        // The residual is orthogonal to the columns.
        for (int j = 0; j < width; ++j) {
            long double product = 0;
            for (int i = 0; i < height; ++i) {
                long double residual = -static_cast<long double>(b[i]);
                for (int k = 0; k < width; ++k) {
                    residual += static_cast<long double>(a[i * width + k]) * x[k];
                }
                product += residual * a[i * width + j];
            }
            EXPECT_LE(std::fabs(product), 20 * height * this->epsilon) << height << "x" << width;
        }
    }
}

// --- Both sides of each threshold ---

TYPED_TEST(Solvers, SingularityIsTestedToTheLastBit) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        const bool own = n >= 3 && n <= 6;
        const T bound = own ? 2 * std::numeric_limits<T>::min() : this->epsilon;
        // The smallest that passes and the largest that does not.
        const T good = own ? bound : std::nextafter(bound, T(1));
        const T bad = own ? std::nextafter(bound, T(0)) : bound;
        for (int k = 0; k < n; ++k) {
            std::vector<T> a = diagonal<T>(n);
            std::vector<T> dst(n * n);
            std::vector<int> index(n);
            for (const T sign : {T(1), T(-1)}) {
                a[k * n + k] = sign * good;
                EXPECT_EQ(factorLU(a.data(), index.data(), dst.data(), n), lxpStatusOk) << n << " " << k;
                EXPECT_EQ(invert(a.data(), nullptr, dst.data(), n), lxpStatusOk) << n << " " << k;
                a[k * n + k] = sign * bad;
                EXPECT_EQ(factorLU(a.data(), index.data(), dst.data(), n), lxpStatusSingularErr) << n << " " << k;
                const std::vector<T> before = dst;
                EXPECT_EQ(invert(a.data(), nullptr, dst.data(), n), lxpStatusSingularErr) << n << " " << k;
                EXPECT_EQ(dst, before);
            }
        }
    }
}

TYPED_TEST(Solvers, SmallPivotsPassInSmallOrdersOnly) {
    using T = TypeParam;
    const T pivot = sizeof(T) == sizeof(float) ? T(1e-10) : T(1e-20);
    for (const auto &[n, status] : {std::pair{3, lxpStatusOk}, {7, lxpStatusSingularErr}}) {
        std::vector<T> a = diagonal<T>(n);
        a.back() = pivot;
        std::vector<T> dst(n * n);
        std::vector<int> index(n);
        EXPECT_EQ(factorLU(a.data(), index.data(), dst.data(), n), status);
    }
}

TYPED_TEST(Solvers, PositivityIsTestedAgainstZero) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        for (int k = 0; k < n; ++k) {
            std::vector<T> a = diagonal<T>(n);
            std::vector<T> dst(n * n);
            for (const T bad : {T(0), -T(0), -std::numeric_limits<T>::min(), T(-1)}) {
                a[k * n + k] = bad;
                EXPECT_EQ(factorCholesky(a.data(), nullptr, dst.data(), n), lxpStatusNotPosDefErr);
            }
            for (const T good : {std::numeric_limits<T>::min(), std::numeric_limits<T>::quiet_NaN()}) {
                a[k * n + k] = good;
                EXPECT_EQ(factorCholesky(a.data(), nullptr, dst.data(), n), lxpStatusOk);
                EXPECT_EQ(std::isnan(dst[k * n + k]), std::isnan(good));
            }
        }
    }
}

TYPED_TEST(Solvers, ColumnsAreTooShortBelowTheBoundOnly) {
    using T = TypeParam;
    // So many equal squares add up to the bound without rounding.
    const int height = sizeof(T) == sizeof(float) ? 2 : 4;
    const T element = sizeof(T) == sizeof(float) ? T(0x1p-12) : T(0x1p-27);
    std::vector<T> a(height, element);
    std::vector<T> dst(height);
    EXPECT_EQ(factorQR(a.data(), dst.data(), 1, height), lxpStatusOk);
    a.back() = element * (1 - 4 * this->epsilon);
    EXPECT_EQ(factorQR(a.data(), dst.data(), 1, height), lxpStatusDivByZeroErr);
}

TEST(SolverCases, AColumnOfSmallScaleIsTooShort) {
    std::vector<float> a = randomNumbers<float>(9, 1);
    for (int i = 0; i < 3; ++i) {
        a[i * 3 + 1] *= 1e-4F;
    }
    std::vector<float> dst(9);
    EXPECT_EQ(factorQR(a.data(), dst.data(), 3, 3), lxpStatusDivByZeroErr);
}

// --- Failing objects in arrays ---

template <class T>
struct Family {
    const char *name;
    LxpStatus (*one)(const T *, int *, T *, int);
    LxpStatus (*many)(const T *, int *, T *, int, int);
    LxpStatus failure;
};

template <class T>
std::vector<Family<T>> families() {
    return {{"LU", factorLU, factorLU, lxpStatusSingularErr},
            {"Cholesky", factorCholesky, factorCholesky, lxpStatusNotPosDefErr},
            {"QR", factorQR, factorQR, lxpStatusDivByZeroErr},
            {"Invert", invert, invert, lxpStatusSingularErr}};
}

template <class T>
struct Objects {
    std::vector<T> a;
    std::vector<T> dst;
    std::vector<int> index;

    Objects(int n, int count) : dst(n * n * count, T(-77)), index(n * count, -77) {
        for (int k = 0; k < count; ++k) {
            const std::vector<T> matrix = positiveDefinite<T>(n, 50 + k);
            a.insert(a.end(), matrix.begin(), matrix.end());
        }
    }

    /// Column and row `at` of an object become zero.
    void spoil(int n, int object, int at) {
        for (int i = 0; i < n; ++i) {
            a[(object * n + i) * n + at] = 0;
            a[(object * n + at) * n + i] = 0;
        }
    }

    /// Objects from `first` on by single calls, up to the first one that fails.
    LxpStatus oneByOne(const Family<T> &family, int n, int first, int count) {
        LxpStatus status = lxpStatusOk;
        for (int k = first; k < first + count && status == lxpStatusOk; ++k) {
            status = family.one(&a[k * n * n], &index[k * n], &dst[k * n * n], n);
        }
        return status;
    }

    bool operator==(const Objects &other) const {
        return index == other.index && std::memcmp(dst.data(), other.dst.data(), dst.size() * sizeof(T)) == 0;
    }
};

TYPED_TEST(Solvers, ArraysStopWhereSinglesDoAndWriteWhatTheyWrite) {
    using T = TypeParam;
    constexpr int count = 29; // two groups of lanes at a time, one, and a remainder
    for (const Family<T> &family : families<T>()) {
        for (const int n : {2, 3, 4, 5, 6, 7, 16, 17}) {
            for (int object = 0; object < count; ++object) {
                for (const int column : {0, n / 2, n - 1}) {
                    if (family.failure == lxpStatusDivByZeroErr && column == n - 1) {
                        continue; // has no reflector
                    }
                    Objects<T> expected(n, count);
                    expected.spoil(n, object, column);
                    Objects<T> objects = expected;
                    EXPECT_EQ(expected.oneByOne(family, n, 0, count), family.failure) << family.name << " " << n;
                    EXPECT_EQ(family.many(objects.a.data(), objects.index.data(), objects.dst.data(), n, count),
                              family.failure);
                    EXPECT_EQ(objects, expected) << family.name << " " << n << ", object " << object;
                    EXPECT_EQ(std::count(objects.dst.begin() + (object + 1) * n * n, objects.dst.end(), T(-77)),
                              (count - object - 1) * n * n)
                        << "later objects were touched";
                }
            }
        }
    }
}

TYPED_TEST(Solvers, EachThreadStopsAtItsFirstFailure) {
    using T = TypeParam;
    constexpr int threads = 3;
    constexpr int n = 4;
    constexpr int count = 600; // parallel in all families
    constexpr int block = count / threads;
    for (const Family<T> &family : families<T>()) {
        for (const int object : {0, block - 1, block + 13, count - 1}) {
            Objects<T> expected(n, count);
            expected.spoil(n, object, 1);
            Objects<T> objects = expected;
            for (int thread = 0; thread < threads; ++thread) {
                expected.oneByOne(family, n, thread * block, block);
            }
            setThreadCount(threads);
            EXPECT_EQ(family.many(objects.a.data(), objects.index.data(), objects.dst.data(), n, count),
                      family.failure);
            EXPECT_EQ(threadCountQuestions(), 2);
            EXPECT_EQ(objects, expected) << family.name << ", object " << object;
        }
    }
}

// --- LU ---

TYPED_TEST(Solvers, OrderOneIsItsOwnFactor) {
    using T = TypeParam;
    const T a = -3;
    T dst = 0;
    int index = 5;
    EXPECT_EQ(factorLU(&a, &index, &dst, 1), lxpStatusOk);
    EXPECT_EQ(dst, a);
    EXPECT_EQ(index, 0);
}

TYPED_TEST(Solvers, OfEqualCandidatesTheFirstIsChosen) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        // Every column has candidates of one magnitude, the sign of the later ones reversed.
        std::vector<T> a(n * n);
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                a[i * n + j] = j == 0 ? (i % 2 == 0 ? T(1) : T(-1)) : i == j ? T(1) : T(0);
            }
        }
        std::vector<T> dst(n * n);
        std::vector<int> index(n);
        ASSERT_EQ(factorLU(a.data(), index.data(), dst.data(), n), lxpStatusOk);
        for (int k = 0; k < n; ++k) {
            EXPECT_EQ(index[k], k) << n;
        }
    }
}

TYPED_TEST(Solvers, TiesFollowTheExchangedOrder) {
    using T = TypeParam;
    // Row 3 goes up and row 0 to the place of row 3, so of the equal candidates of column 1 that of row 1 comes first,
    // then row 2, and row 0 last.
    const std::vector<T> a = {1, 2, 0, 3, /**/ 0, 2, 1, 0, /**/ 0, 2, 0, 1, /**/ 4, 0, 0, 0};
    std::vector<T> dst(16);
    std::vector<int> index(4);
    ASSERT_EQ(factorLU(a.data(), index.data(), dst.data(), 4), lxpStatusOk);
    EXPECT_EQ(index, (std::vector<int>{3, 1, 2, 0}));
}

// To the bit, but for the payloads of NaN.
template <class T>
bool isSame(T a, T b) {
    return (std::isnan(a) && std::isnan(b)) || std::memcmp(&a, &b, sizeof a) == 0;
}

TYPED_TEST(Solvers, ArraysChooseThePivotsOfSingles) {
    using T = TypeParam;
    constexpr int count = 61; // groups of lanes, and a remainder
    constexpr T nan = std::numeric_limits<T>::quiet_NaN();
    constexpr T infinity = std::numeric_limits<T>::infinity();
    std::mt19937 generator(7);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 16}) {
        // Few different magnitudes, so that candidates are equal more often than not; some objects with what is not
        // to be compared, on the diagonal and elsewhere.
        std::vector<T> a;
        std::vector<T> factors;
        std::vector<int> rows;
        for (int attempt = 0; attempt < 100 * count && static_cast<int>(a.size()) < count * n * n; ++attempt) {
            std::vector<T> object(n * n);
            for (T &element : object) {
                element = static_cast<T>(static_cast<int>(generator() % 7) - 3);
            }
            const unsigned kind = generator() % 4;
            if (kind < 2) {
                object[generator() % object.size()] = kind == 0 ? nan : -infinity;
            }
            std::vector<T> dst(n * n);
            std::vector<int> index(n);
            if (factorLU(object.data(), index.data(), dst.data(), n) == lxpStatusOk) {
                a.insert(a.end(), object.begin(), object.end());
                factors.insert(factors.end(), dst.begin(), dst.end());
                rows.insert(rows.end(), index.begin(), index.end());
            }
        }
        ASSERT_EQ(static_cast<int>(a.size()), count * n * n) << "too few that are not singular";
        std::vector<T> dst(a.size());
        std::vector<int> index(rows.size());
        ASSERT_EQ(factorLU(a.data(), index.data(), dst.data(), n, count), lxpStatusOk);
        EXPECT_EQ(index, rows) << n;
        for (std::size_t i = 0; i < dst.size(); ++i) {
            EXPECT_TRUE(isSame(dst[i], factors[i])) << n << " " << i;
        }
        std::vector<T> inverses(a.size());
        ASSERT_EQ(invert(a.data(), nullptr, inverses.data(), n, count), lxpStatusOk);
        for (int k = 0; k < count; ++k) {
            std::vector<T> inverse(n * n);
            ASSERT_EQ(invert(&a[k * n * n], nullptr, inverse.data(), n), lxpStatusOk);
            for (int i = 0; i < n * n; ++i) {
                EXPECT_TRUE(isSame(inverses[k * n * n + i], inverse[i])) << n << " " << k << " " << i;
            }
        }
    }
}

TEST(SolverCases, CountComesBeforeOrder) {
    const float a = 1;
    float dst = 7;
    int index = 7;
    EXPECT_EQ(factorLU(&a, &index, &dst, 0, 0), lxpStatusCountErr);
    EXPECT_EQ(factorCholesky(&a, nullptr, &dst, 0, 0), lxpStatusCountErr);
    EXPECT_EQ(dst, 7);
    EXPECT_EQ(index, 7);
}

TYPED_TEST(Solvers, AZeroOnTheDiagonalIsDividedBy) {
    using T = TypeParam;
    std::vector<T> factors = diagonal<T>(3);
    factors.back() = 0;
    const std::vector<int> index = {0, 1, 2};
    const std::vector<T> b = {1, 1, 1};
    std::vector<T> x(3);
    EXPECT_EQ(solveLU(factors.data(), index.data(), b.data(), x.data(), 3), lxpStatusOk);
    EXPECT_EQ(x[2], std::numeric_limits<T>::infinity());
}

// --- Cholesky ---

TYPED_TEST(Solvers, IdentityIsItsOwnFactor) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        const std::vector<T> a = diagonal<T>(n);
        std::vector<T> dst(n * n);
        ASSERT_EQ(factorCholesky(a.data(), nullptr, dst.data(), n), lxpStatusOk);
        for (int i = 0; i < n * n; ++i) {
            EXPECT_NEAR(dst[i], a[i], 1e-6); // an estimate in 32f
        }
    }
}

TYPED_TEST(Solvers, ReciprocalDiagonalsAreCloseToTheRounded) {
    using T = TypeParam;
    std::mt19937 generator(11);
    std::uniform_real_distribution<T> distribution(T(0.01), T(1000));
    for (int trial = 0; trial < 2000; ++trial) {
        const T a = distribution(generator);
        T dst = 0;
        ASSERT_EQ(factorCholesky(&a, nullptr, &dst, 1), lxpStatusOk);
        const long double exact = 1 / std::sqrt(static_cast<long double>(a));
        EXPECT_LE(std::fabs(dst - exact), 4 * this->epsilon * exact);
    }
}

TYPED_TEST(Solvers, ElementPointersAboveTheDiagonalAreNotFollowed) {
    using T = TypeParam;
    for (const int n : {2, 3, 4, 5, 6, 8, 17}) {
        for (const int count : {1, 9}) {
            Objects<T> objects(n, count);
            std::vector<const T *> from(n * n);
            std::vector<T *> to(n * n);
            std::vector<const T *> factors(n * n);
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j <= i; ++j) {
                    from[i * n + j] = &objects.a[i * n + j];
                    to[i * n + j] = &objects.dst[i * n + j];
                    factors[i * n + j] = &objects.dst[i * n + j];
                }
            }
            const int step = n * n * size<T>;
            EXPECT_EQ(
                LXPM_BY_POINTERS_OF_TYPE(lxpmCholeskyDecomp_ma, from.data(), 0, step, to.data(), 0, step, n, count),
                lxpStatusOk);
            Objects<T> expected(n, count);
            expected.oneByOne({"", factorCholesky, factorCholesky, lxpStatusOk}, n, 0, count);
            EXPECT_EQ(objects, expected) << n;
            std::copy_n(Objects<T>(n, count).dst.begin(), n * n, objects.dst.begin());
            EXPECT_EQ(LXPM_BY_POINTERS_OF_TYPE(lxpmCholeskyDecomp_m, from.data(), 0, to.data(), 0, n), lxpStatusOk);
            EXPECT_EQ(objects, expected) << n;

            const std::vector<T> b = randomNumbers<T>(n * count, 1);
            std::vector<T> x(n * count);
            std::vector<const T *> right(n);
            std::vector<T *> left(n);
            for (int i = 0; i < n; ++i) {
                right[i] = &b[i];
                left[i] = &x[i];
            }
            EXPECT_EQ(LXPM_BY_POINTERS_OF_TYPE(lxpmCholeskyBackSubst_mava, factors.data(), 0, step, right.data(), 0,
                                               n * size<T>, left.data(), 0, n * size<T>, n, count),
                      lxpStatusOk);
            for (int k = 0; k < count; ++k) {
                std::vector<T> one(n);
                solveCholesky(&objects.dst[k * n * n], &b[k * n], one.data(), n);
                EXPECT_EQ(std::memcmp(one.data(), &x[k * n], n * sizeof(T)), 0) << n;
            }
            const std::vector<T> solved = std::exchange(x, std::vector<T>(n * count));
            std::transform(x.begin(), x.begin() + n, left.begin(), [](T &element) { return &element; });
            EXPECT_EQ(LXPM_BY_POINTERS_OF_TYPE(lxpmCholeskyBackSubst_mv, factors.data(), 0, right.data(), 0,
                                               left.data(), 0, n),
                      lxpStatusOk);
            EXPECT_EQ(std::memcmp(x.data(), solved.data(), n * sizeof(T)), 0) << n;
        }
    }
}

// --- Exceptions ---

// What a kernel computes beside what is asked for must not show: nothing here that is needed is invalid or inexact.
TYPED_TEST(Solvers, NothingIsRaisedByWhatIsNotNeeded) {
    using T = TypeParam;
    const T tiny = sizeof(T) == sizeof(float) ? T(0x1p-84) : T(0x1p-600);
    for (const int n : {3, 4, 5, 6, 7, 8}) {
        for (const int count : {1, 9, 17}) {
            std::vector<T> large;  // an infinite pivot above a row that has to be reduced
            std::vector<T> graded; // multipliers whose products underflow
            for (int k = 0; k < count; ++k) {
                std::vector<T> a = diagonal<T>(n);
                std::vector<T> b = a;
                a[0] = std::numeric_limits<T>::infinity();
                a[n] = 1;
                for (int i = 1; i < n; ++i) {
                    b[i * n + i - 1] = tiny;
                }
                large.insert(large.end(), a.begin(), a.end());
                graded.insert(graded.end(), b.begin(), b.end());
            }
            std::vector<T> dst(n * n * count);
            std::vector<int> index(n * count);
            for (const std::vector<T> *matrices : {&large, &graded}) {
                const T *src = matrices->data();
                EXPECT_EQ(flagsRaisedBy([&] { factorLU(src, index.data(), dst.data(), n); }), 0U) << n;
                EXPECT_EQ(flagsRaisedBy([&] { factorLU(src, index.data(), dst.data(), n, count); }), 0U) << n;
                if (n > 4 || matrices == &large) { // smaller ones are expanded, with such products
                    EXPECT_EQ(flagsRaisedBy([&] { determinant(*matrices, n); }), 0U) << n;
                }
            }
            EXPECT_EQ(flagsRaisedBy([&] { invert(large.data(), nullptr, dst.data(), n); }), 0U) << n;
            EXPECT_EQ(flagsRaisedBy([&] { invert(large.data(), nullptr, dst.data(), n, count); }), 0U) << n;
        }
    }
}

// --- QR ---

TYPED_TEST(Solvers, OneElementNeverFails) {
    using T = TypeParam;
    const T a = 0;
    T dst = 7;
    EXPECT_EQ(factorQR(&a, &dst, 1, 1), lxpStatusOk);
    EXPECT_EQ(dst, 0);
    const T b = 1;
    T x = 0;
    EXPECT_EQ(solveQR(&dst, &b, &x, 1, 1), lxpStatusOk);
    EXPECT_EQ(x, std::numeric_limits<T>::infinity());
}

TEST(SolverCases, WideMatricesAreRefusedAfterEverythingElse) {
    const std::vector<float> a(12, 1.0F);
    std::vector<float> dst(12, 7.0F);
    float buffer[4];
    EXPECT_EQ(lxpmQRDecomp_m_32f(a.data(), 16, 4, buffer, dst.data(), 16, 4, 4, 3), lxpStatusSizeMatchErr);
    EXPECT_EQ(lxpmQRDecomp_m_32f(a.data(), 16, 2, buffer, dst.data(), 16, 4, 4, 3), lxpStatusStrideErr);
    EXPECT_EQ(lxpmQRDecomp_m_32f(a.data(), 16, 4, nullptr, dst.data(), 16, 4, 4, 3), lxpStatusNullPtrErr);
    EXPECT_EQ(dst, std::vector<float>(12, 7.0F));
}

TYPED_TEST(Solvers, ThreadsShareOneBuffer) {
    using T = TypeParam;
    constexpr int height = 300; // more than fits beside the call
    constexpr int width = 2;
    constexpr int count = 60;
    const std::vector<T> a = randomNumbers<T>(height * width * count, 1);
    const std::vector<T> b = randomNumbers<T>(height * count, 2);
    std::vector<T> factors(a.size());
    const int row = width * size<T>;
    std::vector<T> buffer(height + 1, T(-77));
    setThreadCount(3);
    ASSERT_EQ(LXPM_OF_TYPE(lxpmQRDecomp_ma, a.data(), height * row, row, size<T>, buffer.data(), factors.data(),
                           height * row, row, size<T>, width, height, count),
              lxpStatusOk);
    std::vector<T> x(width * count);
    setThreadCount(3);
    ASSERT_EQ(LXPM_OF_TYPE(lxpmQRBackSubst_mava, factors.data(), height * row, row, size<T>, buffer.data(), b.data(),
                           height * size<T>, size<T>, x.data(), row, size<T>, width, height, count),
              lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 2);
    EXPECT_EQ(buffer[height], T(-77));
    for (int k = 0; k < count; ++k) {
        std::vector<T> one(height * width);
        std::vector<T> solution(width);
        factorQR(&a[k * height * width], one.data(), width, height);
        solveQR(one.data(), &b[k * height], solution.data(), width, height);
        EXPECT_EQ(std::memcmp(solution.data(), &x[k * width], row), 0);
    }
}

// --- Det and Invert ---

TYPED_TEST(Solvers, DeterminantsOfPermutationsAreTheirSigns) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        std::vector<int> rows(n);
        std::iota(rows.begin(), rows.end(), 0);
        std::mt19937 generator(n);
        for (int trial = 0; trial < 20; ++trial) {
            std::vector<T> a(n * n);
            int inversions = 0;
            for (int i = 0; i < n; ++i) {
                a[i * n + rows[i]] = 1;
                for (int j = 0; j < i; ++j) {
                    inversions += rows[j] > rows[i];
                }
            }
            EXPECT_EQ(determinant(a, n), inversions % 2 == 0 ? 1 : -1) << n;
            std::shuffle(rows.begin(), rows.end(), generator);
        }
    }
}

TYPED_TEST(Solvers, DeterminantsOfSingularMatricesAreZero) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        std::vector<T> a = diagonal<T>(n, 2);
        a[(n / 2) * n + n / 2] = 0;
        EXPECT_EQ(determinant(a, n), 0) << n;
        std::vector<T> array;
        for (int k = 0; k < 9; ++k) {
            const std::vector<T> object = k == 5 ? a : diagonal<T>(n);
            array.insert(array.end(), object.begin(), object.end());
        }
        std::vector<T> results(9, T(-1));
        const int row = n * size<T>;
        EXPECT_EQ(LXPM_OF_TYPE(lxpmDet_ma, array.data(), n * row, row, size<T>, n, results.data(), 9), lxpStatusOk);
        for (int k = 0; k < 9; ++k) {
            EXPECT_EQ(results[k], k == 5 ? 0 : 1) << n;
        }
    }
}

TYPED_TEST(Solvers, DeterminantsOfSmallPivotsAreNotLost) {
    using T = TypeParam;
    // Far below the bound at which a decomposition gives up.
    const T small = sizeof(T) == sizeof(float) ? T(0x1p-30) : T(0x1p-60);
    for (const int n : testedOrders) {
        std::vector<T> a = diagonal<T>(n);
        a[0] = small;
        EXPECT_EQ(determinant(a, n), small) << n;
    }
}

TYPED_TEST(Solvers, InversesAreSolutionsForTheIdentity) {
    using T = TypeParam;
    for (const int n : testedOrders) {
        const std::vector<T> a = randomNumbers<T>(n * n, 9 + n);
        std::vector<T> factors(n * n);
        std::vector<int> index(n);
        ASSERT_EQ(factorLU(a.data(), index.data(), factors.data(), n), lxpStatusOk);
        const std::vector<T> identity = diagonal<T>(n);
        std::vector<T> columns(n * n);
        ASSERT_EQ(solveLU(factors.data(), index.data(), identity.data(), columns.data(), n, n), lxpStatusOk);
        std::vector<T> inverse = a;
        ASSERT_EQ(invert(inverse.data(), nullptr, inverse.data(), n), lxpStatusOk); // in place
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) {
                EXPECT_EQ(inverse[i * n + j], columns[j * n + i]) << n;
            }
        }
    }
}

TEST(SolverCases, TheInverseOfTheIdentityIsTheIdentity) {
    for (const int n : {1, 3, 8, 20}) {
        const std::vector<double> a = diagonal<double>(n);
        std::vector<double> dst(n * n);
        EXPECT_EQ(invert(a.data(), nullptr, dst.data(), n), lxpStatusOk);
        EXPECT_EQ(dst, a);
    }
}

} // namespace

} // namespace lxpm::test
