// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What the header promises of the eigen functions at the edges: closed forms, tests of singularity, failing objects.

#include "eigen/calls.h"
#include "support/thread_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <limits>
#include <vector>

namespace lxpm::test {

namespace {

template <class T>
constexpr T nan = std::numeric_limits<T>::quiet_NaN();

constexpr int untouched = 77;

template <class T>
class SymmetricEdges : public testing::Test {};
template <class T>
class GeneralEdges : public testing::Test {};
using ElementTypes = testing::Types<float, double>;
TYPED_TEST_SUITE(SymmetricEdges, ElementTypes);
TYPED_TEST_SUITE(GeneralEdges, ElementTypes);

/// Values of one matrix whose elements are given row by row.
template <class T>
std::vector<T> valuesOf(const std::vector<T> &matrix, int order, LxpStatus expected = lxpStatusOk) {
    std::vector<T> buffer(order * order);
    std::vector<T> values(order, untouched);
    EXPECT_EQ(callSymmetric(matrix.data(), buffer.data(), values.data(), order), expected);
    return values;
}

// --- Symmetric ---

TYPED_TEST(SymmetricEdges, OfOrderOneIsTheElementItself) {
    using T = TypeParam;
    EXPECT_EQ(valuesOf<T>({0}, 1), std::vector<T>({0}));
    EXPECT_EQ(valuesOf<T>({-5}, 1), std::vector<T>({-5}));
}

TYPED_TEST(SymmetricEdges, OfOrderOneWithVectorsTestsTheProduct) {
    using T = TypeParam;
    for (const T value : {T(0), std::numeric_limits<T>::epsilon(), T(-2)}) {
        T buffer;
        T values = untouched;
        T vectors = untouched;
        EXPECT_EQ(callSymmetric(&value, &buffer, &vectors, &values, 1),
                  value == -2 ? lxpStatusOk : lxpStatusSingularErr);
        EXPECT_EQ(values, value);
        EXPECT_EQ(vectors, 1);
    }
}

TYPED_TEST(SymmetricEdges, OfOrderTwoIsNotSorted) {
    using T = TypeParam;
    EXPECT_EQ(valuesOf<T>({-3, 0, 0, -1}, 2), std::vector<T>({-3, -1}));
    EXPECT_EQ(valuesOf<T>({1, 0, 0, 3}, 2), std::vector<T>({3, 1}));
    EXPECT_EQ(valuesOf<T>({0, 1, 1, 0}, 2), std::vector<T>({1, -1}));
    EXPECT_EQ(valuesOf<T>({-5, 0, 0, 2}, 2), std::vector<T>({-5, 2}));
}

TYPED_TEST(SymmetricEdges, OfOrderTwoThatIsSingularWritesNothing) {
    using T = TypeParam;
    const T eps = std::numeric_limits<T>::epsilon();
    const std::vector<T> nothing(2, untouched);
    EXPECT_EQ(valuesOf<T>({1, 1, 1, 1}, 2, lxpStatusSingularErr), nothing);
    EXPECT_EQ(valuesOf<T>({1, 0, 0, eps}, 2, lxpStatusSingularErr), nothing);
    EXPECT_EQ(valuesOf<T>({1, 0, 0, -eps}, 2, lxpStatusSingularErr), nothing);
    EXPECT_EQ(valuesOf<T>({1, 0, 0, 2 * eps}, 2), std::vector<T>({1, 2 * eps}));
}

TYPED_TEST(SymmetricEdges, ElementsBelowTheDiagonalAreNotUsed) {
    using T = TypeParam;
    const T x = nan<T>;
    EXPECT_EQ(valuesOf<T>({0, 1, x, 0}, 2), std::vector<T>({1, -1}));
    EXPECT_EQ(valuesOf<T>({1, 0, 0, x, 3, 0, x, x, 2}, 3), std::vector<T>({3, 2, 1}));
}

TYPED_TEST(SymmetricEdges, OfADiagonalAreItsElementsExactly) {
    using T = TypeParam;
    EXPECT_EQ(valuesOf<T>({1, 0, 0, 0, 3, 0, 0, 0, 2}, 3), std::vector<T>({3, 2, 1}));
    EXPECT_EQ(valuesOf<T>({-1, 0, 0, 0, 0, 3, 0, 0, 0, 0, 2, 0, 0, 0, 0, -4}, 4), std::vector<T>({3, 2, -1, -4}));
}

TYPED_TEST(SymmetricEdges, ASingularMatrixLeavesItsValuesUnsorted) {
    using T = TypeParam;
    const std::vector<T> matrix = {1, 0, 0, 0, 0, 0, 0, 0, 2};
    EXPECT_EQ(valuesOf<T>(matrix, 3, lxpStatusSingularErr), std::vector<T>({1, 0, 2}));
    const std::vector<T> descending = {2, 0, 0, 0, 0, 0, 0, 0, 1};
    EXPECT_EQ(valuesOf<T>(descending, 3, lxpStatusSingularErr), std::vector<T>({2, 0, 1}));
}

TYPED_TEST(SymmetricEdges, ASingularMatrixWithVectorsIsSorted) {
    using T = TypeParam;
    const std::vector<T> matrix = {1, 0, 0, 0, 0, 0, 0, 0, 2};
    std::array<T, 9> buffer;
    std::array<T, 9> vectors;
    std::array<T, 3> values;
    EXPECT_EQ(callSymmetric(matrix.data(), buffer.data(), vectors.data(), values.data(), 3), lxpStatusSingularErr);
    EXPECT_EQ(values, (std::array<T, 3>{2, 1, 0}));
    EXPECT_EQ(vectors, (std::array<T, 9>{0, 1, 0, 0, 0, 1, 1, 0, 0}));
}

TYPED_TEST(SymmetricEdges, AMatrixOfSmallScaleIsCalledSingular) {
    using T = TypeParam;
    const T small = std::numeric_limits<T>::epsilon() * 4;
    valuesOf<T>({small, 0, 0, 0, small, 0, 0, 0, small}, 3, lxpStatusSingularErr);
}

TYPED_TEST(SymmetricEdges, NanDoesNotConverge) {
    using T = TypeParam;
    const T x = nan<T>;
    for (int order : {3, 4, 6, 9, 17, 70}) {
        std::vector<T> matrix(order * order, T(1));
        matrix[order - 1] = x;
        std::vector<T> buffer(order * order);
        std::vector<T> vectors(order * order);
        std::vector<T> values(order);
        EXPECT_EQ(callSymmetric(matrix.data(), buffer.data(), values.data(), order), lxpStatusConvergeErr);
        EXPECT_EQ(callSymmetric(matrix.data(), buffer.data(), vectors.data(), values.data(), order),
                  lxpStatusConvergeErr);
    }
}

// Arrays whose objects go in four groups of lanes at a time, in two and in one, and in groups that begin among those of
// the last one.
constexpr int arrayCounts[] = {13, 19, 37, 45, 61};

// One object of an array fails, at every place of a group of lanes and behind the last group; all others are what they
// are by themselves.
template <class T>
void failSymmetricAtEveryPlace(int count, bool wantsVectors, const std::vector<T> &failing, int order,
                               LxpStatus expected) {
    const int area = order * order;
    std::vector<T> matrices(count * area);
    for (std::size_t i = 0; i < matrices.size(); ++i) {
        const bool isDiagonal = i % area % (order + 1) == 0;
        matrices[i] = T(0.25) * T((i * 37) % 29) + T(isDiagonal ? 20 : 1);
    }
    setThreadCount(1);
    std::vector<T> buffer(area);
    for (int place = 0; place < count; ++place) {
        std::vector<T> source = matrices;
        std::copy(failing.begin(), failing.end(), source.begin() + place * area);
        std::vector<T> values(count * order, untouched);
        std::vector<T> vectors(count * area, untouched);
        std::vector<T> values1 = values;
        std::vector<T> vectors1 = vectors;
        if (wantsVectors) {
            EXPECT_EQ(callSymmetric(source.data(), buffer.data(), vectors.data(), values.data(), order, count),
                      expected);
        } else {
            EXPECT_EQ(callSymmetric(source.data(), buffer.data(), values.data(), order, count), expected);
        }
        for (int object = 0; object < count; ++object) {
            const T *one = source.data() + object * area;
            T *to = values1.data() + object * order;
            const LxpStatus status = wantsVectors
                                         ? callSymmetric(one, buffer.data(), vectors1.data() + object * area, to, order)
                                         : callSymmetric(one, buffer.data(), to, order);
            EXPECT_EQ(status, object == place ? expected : lxpStatusOk);
        }
        if (expected == lxpStatusConvergeErr) { // what these hold is unspecified
            std::fill_n(values.begin() + place * order, order, T(0));
            std::fill_n(values1.begin() + place * order, order, T(0));
            std::fill_n(vectors.begin() + place * area, area, T(0));
            std::fill_n(vectors1.begin() + place * area, area, T(0));
        }
        EXPECT_EQ(values, values1) << "failing at " << place;
        EXPECT_EQ(vectors, vectors1) << "failing at " << place;
    }
}

TYPED_TEST(SymmetricEdges, AFailingObjectDoesNotDisturbTheOthers) {
    using T = TypeParam;
    const T x = nan<T>;
    for (const int count : arrayCounts) {
        failSymmetricAtEveryPlace<T>(count, false, {1, 1, 1, 1}, 2, lxpStatusSingularErr);
        for (const bool wantsVectors : {false, true}) {
            failSymmetricAtEveryPlace<T>(count, wantsVectors, {1, 0, 0, 0, 0, 0, 0, 0, 2}, 3, lxpStatusSingularErr);
            failSymmetricAtEveryPlace<T>(count, wantsVectors, {1, x, 1, x, 1, 1, 1, 1, 1}, 3, lxpStatusConvergeErr);
            failSymmetricAtEveryPlace<T>(count, wantsVectors, std::vector<T>(49, x), 7, lxpStatusConvergeErr);
        }
    }
}

TYPED_TEST(SymmetricEdges, TheFirstFailureOfAnArrayIsReturned) {
    using T = TypeParam;
    const T x = nan<T>;
    const std::vector<T> diverges = {1, x, 1, x, 1, 1, 1, 1, 1};
    setThreadCount(1);
    for (const bool singularFirst : {false, true}) {
        constexpr int count = 37;
        const int early = 6;
        const int late = 34; // in another group
        std::vector<T> source(count * 9);
        for (int object = 0; object < count; ++object) {
            for (int i = 0; i < 3; ++i) {
                source[object * 9 + 4 * i] = 2;
            }
        }
        std::copy(diverges.begin(), diverges.end(), source.begin() + 9 * (singularFirst ? late : early));
        source[9 * (singularFirst ? early : late)] = 0;
        std::vector<T> buffer(9);
        std::vector<T> values(count * 3);
        EXPECT_EQ(callSymmetric(source.data(), buffer.data(), values.data(), 3, count),
                  singularFirst ? lxpStatusSingularErr : lxpStatusConvergeErr);
    }
}

// --- General ---

TEST(EigenBufferSize, IsThatOfTheDocumentedPartition) {
    int size = 0;
    EXPECT_EQ(lxpmEigenValuesGetBufSize_32f(3, &size), lxpStatusOk);
    EXPECT_EQ(size, 96);
    EXPECT_EQ(lxpmEigenValuesGetBufSize_64f(3, &size), lxpStatusOk);
    EXPECT_EQ(size, 192);
    EXPECT_EQ(lxpmEigenValuesVectorsGetBufSize_32f(3, &size), lxpStatusOk);
    EXPECT_EQ(size, 168);
    EXPECT_EQ(lxpmEigenValuesVectorsGetBufSize_64f(3, &size), lxpStatusOk);
    EXPECT_EQ(size, 336);
}

TEST(EigenBufferSize, ChecksThePointerFirst) {
    using Function = LxpStatus (*)(int, int *);
    for (const Function function : {lxpmEigenValuesGetBufSize_32f, lxpmEigenValuesGetBufSize_64f,
                                    lxpmEigenValuesVectorsGetBufSize_32f, lxpmEigenValuesVectorsGetBufSize_64f}) {
        int size = untouched;
        EXPECT_EQ(function(0, nullptr), lxpStatusNullPtrErr);
        EXPECT_EQ(function(3, nullptr), lxpStatusNullPtrErr);
        for (const int order : {0, -1, INT_MIN}) {
            EXPECT_EQ(function(order, &size), lxpStatusSizeErr);
        }
        EXPECT_EQ(size, untouched);
    }
}

TEST(EigenBufferSize, IsAProductOf32Bits) {
    int size = 0;
    EXPECT_EQ(lxpmEigenValuesGetBufSize_32f(30000, &size), lxpStatusOk);
    EXPECT_EQ(static_cast<unsigned>(size), 30000u * 30005u * 4u);
    EXPECT_EQ(lxpmEigenValuesVectorsGetBufSize_64f(INT_MAX, &size), lxpStatusOk);
    EXPECT_EQ(static_cast<unsigned>(size), 0x7fffffffu * (3u * 0x7fffffffu + 5u) * 8u);
}

TYPED_TEST(GeneralEdges, ARotationHasAnImaginaryPair) {
    using T = TypeParam;
    const GeneralResult<T> result = callGeneral<T>({0, -1, 1, 0}, 2);
    EXPECT_EQ(result.re, std::vector<T>({0, 0}));
    EXPECT_EQ(result.im, std::vector<T>({1, -1}));
}

TYPED_TEST(GeneralEdges, ATriangularMatrixHasItsDiagonal) {
    using T = TypeParam;
    for (int order = 1; order <= 20; ++order) {
        std::vector<T> matrix(order * order);
        std::vector<T> diagonal(order);
        for (int i = 0; i < order; ++i) {
            for (int j = i; j < order; ++j) {
                matrix[i * order + j] = T(1 + (i * 7 + j * 3) % 5);
            }
            diagonal[i] = matrix[i * order + i];
        }
        const GeneralResult<T> result = callGeneral(matrix, order);
        EXPECT_EQ(result.re, diagonal);
        EXPECT_EQ(result.im, std::vector<T>(order));
    }
}

TYPED_TEST(GeneralEdges, CyclicPermutationsNeedExceptionalShifts) {
    using T = TypeParam;
    for (int order = 3; order <= 24; ++order) {
        std::vector<T> matrix(order * order);
        for (int i = 0; i < order; ++i) {
            matrix[((i + 1) % order) * order + i] = 1;
        }
        const GeneralResult<T> result = callGeneral(matrix, order);
        for (int i = 0; i < order; ++i) {
            EXPECT_NEAR(std::hypot(result.re[i], result.im[i]), 1, 100 * std::numeric_limits<T>::epsilon());
        }
    }
}

TYPED_TEST(GeneralEdges, PowersOfTwoScaleTheValuesExactly) {
    using T = TypeParam;
    const std::vector<T> matrix = {1, 2, -3, 4, 5, -1, T(0.5), 3, 2, 7, 1, 1, -2, T(0.25), 6, 1};
    const GeneralResult<T> expected = callGeneral(matrix, 4);
    for (const int power : {-100, -60, 60, 100, sizeof(T) == 4 ? 120 : 1000}) {
        std::vector<T> scaled = matrix;
        for (T &element : scaled) {
            element = std::ldexp(element, power);
        }
        GeneralResult<T> result = callGeneral(scaled, 4);
        for (int i = 0; i < 4; ++i) {
            EXPECT_NEAR(std::ldexp(result.re[i], -power), expected.re[i], 50 * std::numeric_limits<T>::epsilon());
            EXPECT_NEAR(std::ldexp(result.im[i], -power), expected.im[i], 50 * std::numeric_limits<T>::epsilon());
        }
    }
}

TYPED_TEST(GeneralEdges, AnExhaustedBudgetLeavesWhatWasFound) {
    using T = TypeParam;
    // The last eigenvalue stands by itself; the block in front of it never converges.
    for (const int order : {4, 6, 12, 20}) {
        std::vector<T> matrix(order * order);
        for (int i = 0; i < order; ++i) {
            matrix[i * order + i] = T(i + 1);
            if (i > 0 && i + 1 < order) {
                matrix[i * order + i - 1] = nan<T>;
            }
        }
        std::vector<T> re(order, untouched);
        std::vector<T> im(order, untouched);
        std::vector<T> buffer(order * (order + 5));
        EXPECT_EQ(callGeneralValues(matrix.data(), re.data(), im.data(), order, 1, buffer.data()),
                  lxpStatusConvergeErr);
        EXPECT_EQ(re[0], untouched);
        EXPECT_EQ(im[0], untouched);
    }
}

// One object fails, at every place; all others are what they are by themselves.
template <class T>
void failGeneralAtEveryPlace(int count, int order) {
    const int area = order * order;
    std::vector<T> buffer(order * (order + 5));
    for (int place = 0; place < count; ++place) {
        std::vector<T> source(count * area);
        for (std::size_t i = 0; i < source.size(); ++i) {
            source[i] = T(0.25) * T((i * 37) % 29) - T(3);
        }
        std::fill_n(source.begin() + place * area, area, nan<T>);
        std::vector<T> re(count * order, untouched);
        std::vector<T> im = re;
        std::vector<T> re1 = re;
        std::vector<T> im1 = re;
        EXPECT_EQ(callGeneralValues(source.data(), re.data(), im.data(), order, count, buffer.data()),
                  lxpStatusConvergeErr);
        for (int object = 0; object < count; ++object) {
            EXPECT_EQ(callGeneralValues(source.data() + object * area, re1.data() + object * order,
                                        im1.data() + object * order, order, 1, buffer.data()),
                      object == place ? lxpStatusConvergeErr : lxpStatusOk);
        }
        EXPECT_EQ(re, re1);
        EXPECT_EQ(im, im1);
        EXPECT_EQ(re[place * order], untouched);

        // With vectors, the others are what they are where none fails.
        std::vector<T> sound = source;
        std::copy_n(source.begin() + (place + 1) % count * area, area, sound.begin() + place * area);
        GeneralResult<T> expected = callGeneral(sound, order, count);
        GeneralResult<T> result = callGeneral(source, order, count, lxpStatusConvergeErr);
        for (GeneralResult<T> *each : {&expected, &result}) {
            for (std::vector<T> *values : {&each->re, &each->im}) {
                std::fill_n(values->begin() + place * order, order, T(0));
            }
            for (std::vector<T> *vectors : {&each->right, &each->left}) {
                std::fill_n(vectors->begin() + place * area, area, T(0));
            }
        }
        EXPECT_EQ(result.re, expected.re);
        EXPECT_EQ(result.im, expected.im);
        EXPECT_EQ(result.right, expected.right);
        EXPECT_EQ(result.left, expected.left);
    }
}

TYPED_TEST(GeneralEdges, AFailingObjectDoesNotDisturbTheOthers) {
    using T = TypeParam;
    setThreadCount(1);
    for (const int count : arrayCounts) {
        for (const int order : {3, 5, 8}) {
            failGeneralAtEveryPlace<T>(count, order);
        }
    }
}

// Whichever groups of lanes an object goes in, and with whom.
TYPED_TEST(GeneralEdges, ArraysHaveTheBitsOfSingleMatrices) {
    using T = TypeParam;
    setThreadCount(1);
    for (const int count : arrayCounts) {
        for (int order = 1; order <= 17; ++order) {
            const int area = order * order;
            std::vector<T> source(count * area);
            for (std::size_t i = 0; i < source.size(); ++i) {
                source[i] = T(0.125) * T((i * i * 37 + 11 * i) % 101) - T(6);
            }
            const GeneralResult<T> all = callGeneral(source, order, count);
            for (int object = 0; object < count; ++object) {
                const auto part = [object](const std::vector<T> &of, int size) {
                    return std::vector<T>(of.begin() + object * size, of.begin() + (object + 1) * size);
                };
                const GeneralResult<T> one = callGeneral(part(source, area), order);
                EXPECT_EQ(part(all.re, order), one.re);
                EXPECT_EQ(part(all.im, order), one.im);
                EXPECT_EQ(part(all.right, area), one.right);
                EXPECT_EQ(part(all.left, area), one.left);
            }
        }
    }
}

} // namespace

} // namespace lxpm::test
