// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What the product families promise by name.

#include "support/thread_count.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <sys/mman.h>
#include <vector>

namespace lxpm::test {

namespace {

std::vector<float> ascending(std::size_t size) {
    std::vector<float> values(size);
    std::iota(values.begin(), values.end(), 1.0f);
    return values;
}

TEST(Products, NullPointerIsReportedBeforeCount) {
    const std::vector<float> src(9);
    EXPECT_EQ(lxpmMul_mam_32f(src.data(), 36, 12, 4, 3, 3, src.data(), 12, 4, 3, 3, nullptr, 36, 12, 4, 0),
              lxpStatusNullPtrErr);
}

TEST(Products, InnerDimensionsMustAgree) {
    const std::vector<float> src(16);
    std::vector<float> dst(16, 7.0f);
    EXPECT_EQ(lxpmMul_mm_32f(src.data(), 12, 4, 3, 3, src.data(), 12, 4, 3, 4, dst.data(), 12, 4),
              lxpStatusSizeMatchErr);
    EXPECT_EQ(dst, std::vector<float>(16, 7.0f));
}

TEST(Products, OfTransposedMatricesAgreeInTheirWidths) {
    const std::vector<float> src1 = {1, 2, 3, 4, 5, 6};                   // 2 rows of 3
    const std::vector<float> src2 = {1, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1}; // 4 rows of 3
    const std::vector<float> expected = {1, 2, 3, 6, 4, 5, 6, 15};        // 2 rows of 4
    std::vector<float> dst(8);
    EXPECT_EQ(lxpmMul_mt_32f(src1.data(), 12, 4, 3, 2, src2.data(), 12, 4, 3, 4, dst.data(), 16, 4), lxpStatusOk);
    EXPECT_EQ(dst, expected);
}

TEST(Products, StrideIsReportedBeforeOffset) {
    const std::vector<float> src(16);
    std::vector<float> dst(16);
    const float *srcPtrs[] = {src.data()};
    float *dstPtrs[] = {dst.data()};
    const auto call = [&](int elemStride, int offset) {
        return lxpmMul_mam_32f_L(srcPtrs, offset, 8, elemStride, 2, 2, src.data(), 8, 4, 2, 2, dstPtrs, 0, 8, 4, 1);
    };
    EXPECT_EQ(call(6, 0), lxpStatusStrideErr);
    EXPECT_EQ(call(4, 2), lxpStatusRoiShiftErr);
    EXPECT_EQ(call(6, 2), lxpStatusStrideErr);
}

TEST(Products, OfAHundredMatricesOfOrder4AreParallel) {
    const std::vector<float> src1 = ascending(1600);
    const std::vector<float> src2 = ascending(16);
    std::vector<float> dst(1600);
    const auto call = [&](int count) {
        return lxpmMul_mam_32f(src1.data(), 64, 16, 4, 4, 4, src2.data(), 16, 4, 4, 4, dst.data(), 64, 16, 4, count);
    };
    setThreadCount(2);
    EXPECT_EQ(call(100), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 2);
    setThreadCount(2);
    EXPECT_EQ(call(10), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 0);
}

TEST(Products, OfNegativeZerosArePositiveZero) {
    for (int order = 1; order <= 9; ++order) {
        const std::vector<float> negative(81, -0.0f);
        const std::vector<float> ones(81, 1.0f);
        std::vector<float> dst(81, 7.0f);
        ASSERT_EQ(lxpmMul_mm_32f(negative.data(), 4 * order, 4, order, order, ones.data(), 4 * order, 4, order, order,
                                 dst.data(), 4 * order, 4),
                  lxpStatusOk);
        for (int i = 0; i < order * order; ++i) {
            EXPECT_EQ(dst[i], 0.0f);
            EXPECT_FALSE(std::signbit(dst[i])) << "order " << order << ", element " << i;
        }
    }
}

TEST(Products, OfPaddedRowsKeepTheFourthElement) {
    // Rows of three at 16 bytes, addresses at multiples of 16: the layout in which a whole register is tempting.
    constexpr int count = 5;
    alignas(16) float src1[12 * count];
    alignas(16) float src2[12 * count];
    alignas(16) float dst[12 * count];
    for (int i = 0; i < 12 * count; ++i) {
        src1[i] = src2[i] = static_cast<float>(i % 7 - 3);
        dst[i] = 99.0f;
    }
    ASSERT_EQ(lxpmMul_mama_32f(src1, 48, 16, 4, 3, 3, src2, 48, 16, 4, 3, 3, dst, 48, 16, 4, count), lxpStatusOk);
    for (int object = 0; object < count; ++object) {
        for (int row = 0; row < 3; ++row) {
            EXPECT_EQ(dst[12 * object + 4 * row + 3], 99.0f) << "object " << object << ", row " << row;
        }
    }
}

TEST(Products, WithConstantReadTransposed) {
    const std::vector<float> src = {1, 2, 3, 4, 5, 6}; // 2 rows of 3
    std::vector<float> dst(6);
    EXPECT_EQ(lxpmMul_tac_32f(src.data(), 24, 12, 4, 2.0f, dst.data(), 24, 8, 4, 2, 3, 1), lxpStatusOk);
    EXPECT_EQ(dst, (std::vector<float>{2, 8, 4, 10, 6, 12}));
}

TEST(Products, WrappingMeasureStaysSerial) {
    // 2 * 32769 * 32768 = 2^31 + 65536; all objects lie one element apart.
    constexpr int length = 32769;
    constexpr int count = 32768;
    const std::vector<float> src(length + count - 1, 3.0f);
    std::vector<float> dst(length + count - 1);
    setThreadCount(2);
    EXPECT_EQ(lxpmMul_vac_32f(src.data(), 4, 4, 2.0f, dst.data(), 4, 4, length, count), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 0);
    EXPECT_EQ(dst, std::vector<float>(length + count - 1, 6.0f));
}

TEST(Products, GaxpySizesMustAgree) {
    const std::vector<float> src(9);
    std::vector<float> dst(9);
    EXPECT_EQ(lxpmGaxpy_mv_32f(src.data(), 12, 4, 3, 2, src.data(), 4, 3, src.data(), 4, 3, dst.data(), 4),
              lxpStatusSizeMatchErr);
}

TEST(Products, GaxpyOfAZeroMatrixIsTheAddend) {
    const std::vector<float> zero(81);
    const std::vector<float> vector = ascending(9);
    for (int order = 1; order <= 9; ++order) {
        std::vector<float> addend = ascending(9);
        addend[0] = std::numeric_limits<float>::denorm_min();
        addend.resize(order);
        std::vector<float> dst(order);
        ASSERT_EQ(lxpmGaxpy_mv_32f(zero.data(), 4 * order, 4, order, order, vector.data(), 4, order, addend.data(), 4,
                                   order, dst.data(), 4),
                  lxpStatusOk);
        EXPECT_EQ(dst, addend);
    }
}

TEST(Products, GaxpyWithObjectPointersIsParallelEarlier) {
    // (4 + 2 * 4) * 50 = 600 elements with gaps between them.
    constexpr int count = 50;
    const std::vector<float> matrix = ascending(16);
    const std::vector<float> src = ascending(8 * count);
    std::vector<float> dst(8 * count);
    std::vector<const float *> srcPtrs;
    std::vector<float *> dstPtrs;
    for (int object = 0; object < count; ++object) {
        srcPtrs.push_back(src.data() + 8 * object);
        dstPtrs.push_back(dst.data() + 8 * object);
    }
    setThreadCount(2);
    EXPECT_EQ(lxpmGaxpy_mva_32f_L(matrix.data(), 16, 4, 4, 4, srcPtrs.data(), 0, 8, 4, srcPtrs.data(), 0, 8, 4,
                                  dstPtrs.data(), 0, 8, count),
              lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 2);
    setThreadCount(2);
    EXPECT_EQ(lxpmGaxpy_mva_32f(matrix.data(), 16, 4, 4, 4, src.data(), 32, 8, 4, src.data(), 32, 8, 4, dst.data(), 32,
                                8, count),
              lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 0);
}

TEST(Products, OfTheLeastSizesAreErrors) {
    constexpr int least = std::numeric_limits<int>::min();
    float matrix[16] = {};
    EXPECT_EQ(lxpmMul_mm_32f(matrix, 16, 4, least, least, matrix, 16, 4, least, least, matrix, 16, 4),
              lxpStatusSizeErr);
    EXPECT_EQ(lxpmMul_mv_32f(matrix, 16, 4, least, least, matrix, 4, least, matrix, 4), lxpStatusSizeErr);
    EXPECT_EQ(lxpmAdd_mm_32f(matrix, 16, 4, matrix, 16, 4, matrix, 16, 4, least, least), lxpStatusSizeErr);
}

/// Objects far apart, each at the end of a page behind which there is nothing.
template <class T = float>
class FarApart {
public:
    static constexpr int count = 9; // a register of lanes, and one that follows
    static constexpr int stride = 3 * 4096;

    explicit FarApart(int elements) : offset_(page - elements * static_cast<int>(sizeof(T))) {
        EXPECT_NE(memory_, MAP_FAILED);
        for (int object = 0; object < count; ++object) {
            char *const start = memory_ + object * stride;
            EXPECT_EQ(mprotect(start, page, PROT_READ | PROT_WRITE), 0);
            for (int i = 0; i < elements; ++i) {
                reinterpret_cast<T *>(start + offset_)[i] = T(object + i + 1);
            }
        }
    }
    ~FarApart() { munmap(memory_, count * stride); }
    FarApart(const FarApart &) = delete;
    FarApart &operator=(const FarApart &) = delete;

    T *first() const { return reinterpret_cast<T *>(memory_ + offset_); }

private:
    static constexpr int page = 4096;

    char *memory_ = static_cast<char *>(
        mmap(nullptr, count *stride, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    int offset_;
};

// Square matrices, each times a vector of its own.
template <class T>
struct OwnMatrices;
template <>
struct OwnMatrices<float> {
    static constexpr auto asTheyStand = lxpmMul_mava_32f;
    static constexpr auto transposed = lxpmMul_tava_32f;
};
template <>
struct OwnMatrices<double> {
    static constexpr auto asTheyStand = lxpmMul_mava_64f;
    static constexpr auto transposed = lxpmMul_tava_64f;
};

// Matrices whose rows stand a distance apart, each matrix a row behind the one before. Element j of row i is i + j + 1.
// The matrices are symmetric, so that their transposes have the same products.
template <class T>
void expectProductsOfRowsApart(const T *first, int rowStride, int rows, int order) {
    SCOPED_TRACE(testing::Message() << order << "x" << order << ", rows " << rowStride << " bytes apart");
    constexpr int size = sizeof(T);
    const int vectorSize = size * order;
    const int count = rows - order + 1;
    std::vector<T> vectors(order * count);
    std::iota(vectors.begin(), vectors.end(), T(1));
    std::vector<T> expected(vectors.size());
    for (int object = 0; object < count; ++object) {
        for (int i = 0; i < order; ++i) {
            for (int k = 0; k < order; ++k) {
                expected[order * object + i] += T(object + i + k + 1) * vectors[order * object + k];
            }
        }
    }
    for (const auto multiply : {OwnMatrices<T>::asTheyStand, OwnMatrices<T>::transposed}) {
        std::vector<T> dst(expected.size());
        EXPECT_EQ(multiply(first, rowStride, rowStride, size, order, order, vectors.data(), vectorSize, size, order,
                           dst.data(), vectorSize, size, count),
                  lxpStatusOk);
        EXPECT_EQ(dst, expected);
    }
}

template <class T>
void expectNothingIsReadBetweenRows() {
    for (int order = 2; order <= 8; ++order) {
        const FarApart<T> far(order);
        expectProductsOfRowsApart(far.first(), FarApart<T>::stride, FarApart<T>::count, order);
        // Rows that overlap, the last one at the end of a page.
        const int rows = order + 3;
        const FarApart<T> overlapping(rows + order - 1);
        expectProductsOfRowsApart(overlapping.first(), sizeof(T), rows, order);
    }
}

TEST(Products, NothingIsReadBetweenRowsThatStandFarApartNorBehindRowsThatOverlap) {
    expectNothingIsReadBetweenRows<float>();
    expectNothingIsReadBetweenRows<double>();
}

TEST(Products, NothingIsReadBetweenVectorsThatStandFarApart) {
    constexpr int count = FarApart<>::count;
    const std::vector<float> matrices(9 * count, 1.0f);
    const FarApart<> vectors(3);
    std::vector<float> expected;
    for (int object = 0; object < count; ++object) {
        expected.insert(expected.end(), 3, 3.0f * object + 6);
    }
    std::vector<float> dst(expected.size());
    EXPECT_EQ(lxpmMul_mva_32f(matrices.data(), 12, 4, 3, 3, vectors.first(), FarApart<>::stride, 4, 3, dst.data(), 12,
                              4, count),
              lxpStatusOk);
    EXPECT_EQ(dst, expected);
    dst.assign(expected.size(), 0.0f);
    EXPECT_EQ(lxpmMul_mava_32f(matrices.data(), 36, 12, 4, 3, 3, vectors.first(), FarApart<>::stride, 4, 3, dst.data(),
                               12, 4, count),
              lxpStatusOk);
    EXPECT_EQ(dst, expected);
}

TEST(Reductions, NothingIsReadBetweenVectorsThatStandFarApart) {
    constexpr int count = FarApart<>::count;
    constexpr int stride = FarApart<>::stride;
    const FarApart<> vectors(3);
    const FarApart<> others(3);
    std::vector<float> dst(3 * count);
    EXPECT_EQ(lxpmDotProduct_vava_32f(vectors.first(), stride, 4, others.first(), stride, 4, dst.data(), 3, count),
              lxpStatusOk);
    EXPECT_EQ(dst[1], 4 + 9 + 16);
    EXPECT_EQ(lxpmL2Norm_va_32f(vectors.first(), stride, 4, dst.data(), 3, count), lxpStatusOk);
    EXPECT_EQ(dst[1], std::sqrt(29.0f));
    EXPECT_EQ(
        lxpmCrossProduct_vava_32f(vectors.first(), stride, 4, others.first(), stride, 4, dst.data(), 12, 4, count),
        lxpStatusOk);
    EXPECT_EQ(dst, std::vector<float>(3 * count));
}

TEST(Reductions, NothingIsReadBetweenMatricesThatStandFarApart) {
    const FarApart<> matrices(7); // two rows of three, an element apart
    std::vector<float> dst(FarApart<>::count);
    EXPECT_EQ(lxpmFrobNorm_ma_32f(matrices.first(), FarApart<>::stride, 16, 4, 3, 2, dst.data(), FarApart<>::count),
              lxpStatusOk);
    EXPECT_EQ(dst[0], std::sqrt(124.0f));
}

// Calls on dense square matrices of both types. `ones` stand in for a second source.
struct Transposes {
    static LxpStatus run(const float *src, const float *, int order, float *dst, int dstStride, int count) {
        const int row = order * 4;
        return lxpmTranspose_ma_32f(src, order * row, row, 4, order, order, dst, dstStride, row, 4, count);
    }
    static LxpStatus run(const double *src, const double *, int order, double *dst, int dstStride, int count) {
        const int row = order * 8;
        return lxpmTranspose_ma_64f(src, order * row, row, 8, order, order, dst, dstStride, row, 8, count);
    }
    static LxpStatus run(const float *const *src, const float *const *, int order, float *const *dst, int count) {
        return lxpmTranspose_ma_32f_L(src, 0, order * 4, 4, order, order, dst, 0, order * 4, 4, count);
    }
    static LxpStatus run(const double *const *src, const double *const *, int order, double *const *dst, int count) {
        return lxpmTranspose_ma_64f_L(src, 0, order * 8, 8, order, order, dst, 0, order * 8, 8, count);
    }
    static constexpr int added = 0;
};

struct TransposesPlusOnes {
    static LxpStatus run(const float *src, const float *ones, int order, float *dst, int dstStride, int count) {
        const int row = order * 4;
        return lxpmAdd_tama_32f(src, order * row, row, 4, ones, order * row, row, 4, dst, dstStride, row, 4, order,
                                order, count);
    }
    static LxpStatus run(const double *src, const double *ones, int order, double *dst, int dstStride, int count) {
        const int row = order * 8;
        return lxpmAdd_tama_64f(src, order * row, row, 8, ones, order * row, row, 8, dst, dstStride, row, 8, order,
                                order, count);
    }
    static LxpStatus run(const float *const *src, const float *const *ones, int order, float *const *dst, int count) {
        const int row = order * 4;
        return lxpmAdd_tama_32f_L(src, 0, row, 4, ones, 0, row, 4, dst, 0, row, 4, order, order, count);
    }
    static LxpStatus run(const double *const *src, const double *const *ones, int order, double *const *dst,
                         int count) {
        const int row = order * 8;
        return lxpmAdd_tama_64f_L(src, 0, row, 8, ones, 0, row, 8, dst, 0, row, 8, order, order, count);
    }
    static constexpr int added = 1;
};

// Some matrices whose results stand at multiples of a distance that is shorter than a matrix.
template <class Call, class T>
void expectLaterResultsOnTop(int order, int elementsApart, const std::vector<int> &places) {
    SCOPED_TRACE(testing::Message() << order << "x" << order << ", " << elementsApart << " elements apart");
    const int count = static_cast<int>(places.size());
    const int matrix = order * order;
    std::vector<T> src(count * matrix);
    std::iota(src.begin(), src.end(), T(1));
    const std::vector<T> ones(src.size(), T(1));
    std::vector<T> expected(matrix + elementsApart * (count - 1));
    std::vector<T> dst(expected.size());
    std::vector<const T *> from;
    std::vector<const T *> fromOnes;
    std::vector<T *> to;
    for (int object = 0; object < count; ++object) {
        const int place = elementsApart * places[object];
        from.push_back(src.data() + object * matrix);
        fromOnes.push_back(ones.data() + object * matrix);
        to.push_back(dst.data() + place);
        for (int i = 0; i < matrix; ++i) {
            expected[place + i] = from.back()[i % order * order + i / order] + Call::added;
        }
    }
    EXPECT_EQ(Call::run(from.data(), fromOnes.data(), order, to.data(), count), lxpStatusOk);
    EXPECT_EQ(dst, expected);
    std::vector<int> byStrides(count);
    std::iota(byStrides.begin(), byStrides.end(), 0);
    if (places == byStrides) {
        std::fill(dst.begin(), dst.end(), T(0));
        EXPECT_EQ(Call::run(src.data(), ones.data(), order, dst.data(), elementsApart * int(sizeof(T)), count),
                  lxpStatusOk);
        EXPECT_EQ(dst, expected);
    }
}

template <class Call>
void expectLaterResultsOnTop() {
    const std::vector<std::vector<int>> placesOfObjects = {
        {0, 1, 2, 3, 4}, {4, 3, 2, 1, 0}, {2, 0, 3, 1, 4}, {0, 0, 0, 0, 0}};
    for (int order = 2; order <= 17; ++order) {
        for (const int elementsApart : {1, order, order * order - 1}) {
            for (const std::vector<int> &places : placesOfObjects) {
                expectLaterResultsOnTop<Call, float>(order, elementsApart, places);
                expectLaterResultsOnTop<Call, double>(order, elementsApart, places);
            }
        }
    }
}

TEST(TransposedResults, ThatOverlapLieOnTopOfEarlierOnes) {
    setThreadCount(1); // several write in any order
    expectLaterResultsOnTop<Transposes>();
    expectLaterResultsOnTop<TransposesPlusOnes>();
}

TEST(TransposedResults, OfObjectsInterleavedByElementsLieOnTopOfEarlierOnes) {
    constexpr int count = 3; // matrices of two rows, one element apart: element (0, 1) of one is (0, 0) of the next
    const auto src = ascending(count + 3);
    std::vector<float> dst(count + 3);
    EXPECT_EQ(lxpmTranspose_ma_32f(src.data(), 4, 8, 4, 2, 2, dst.data(), 4, 8, 4, count), lxpStatusOk);
    EXPECT_EQ(dst, (std::vector<float>{1, 2, 3, 5, 4, 6}));
}

} // namespace

} // namespace lxpm::test
