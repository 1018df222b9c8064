// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Cases of the reductions and of Transpose that have a name of their own.

#include "support/cache_size.h"
#include "support/thread_count.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <numeric>
#include <vector>

namespace lxpm::test {

namespace {

TEST(Reductions, EmptyVectorsAndShortStridesAreRefused) {
    const double a[] = {1, 2};
    double dst = 5;
    EXPECT_EQ(lxpmDotProduct_vv_64f(a, 8, a, 8, &dst, 0), lxpStatusSizeErr);
    EXPECT_EQ(lxpmDotProduct_vv_64f(a, 4, a, 8, &dst, 2), lxpStatusStrideErr);
    EXPECT_EQ(dst, 5);
}

TEST(Reductions, OneVectorWithAnArrayIsCrossedAfterAllStridesAreGood) {
    const float a[] = {1, 2, 3};
    float dst[3] = {};
    EXPECT_EQ(lxpmCrossProduct_vav_32f(a, 12, 4, a, 4, dst, 12, 4, 0), lxpStatusCountErr);
    EXPECT_EQ(lxpmCrossProduct_vav_32f(a, 12, 4, a, 2, dst, 12, 4, 0), lxpStatusStrideErr);
    EXPECT_EQ(lxpmCrossProduct_vva_32f(a, 4, a, 12, 2, dst, 12, 4, 0), lxpStatusCountErr);
}

TEST(Reductions, AThousandCrossProductsAreSerial) {
    constexpr int count = 1001;
    const std::vector<float> a(3 * count, 2.0f);
    std::vector<float> dst(3 * count, 1.0f);
    setThreadCount(2);
    EXPECT_EQ(lxpmCrossProduct_vava_32f(a.data(), 12, 4, a.data(), 12, 4, dst.data(), 12, 4, count - 1), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 0);
    setThreadCount(2);
    EXPECT_EQ(lxpmCrossProduct_vava_32f(a.data(), 12, 4, a.data(), 12, 4, dst.data(), 12, 4, count), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 2);
    EXPECT_EQ(dst, std::vector<float>(3 * count, 0.0f));
}

TEST(Reductions, NormOfThreeAndFourIsFive) {
    const float a[] = {3, 4};
    float dst = 0;
    EXPECT_EQ(lxpmL2Norm_v_32f(a, 4, &dst, 2), lxpStatusOk);
    EXPECT_EQ(dst, 5);
}

TEST(Reductions, NormsDoNotScale) {
    const float large[] = {2e19f, 1};
    const float small[] = {1e-30f, 1e-30f};
    float dst = 0;
    EXPECT_EQ(lxpmL2Norm_v_32f(large, 4, &dst, 2), lxpStatusOk);
    EXPECT_EQ(dst, std::numeric_limits<float>::infinity());
    EXPECT_EQ(lxpmL2Norm_v_32f(small, 4, &dst, 2), lxpStatusOk);
    EXPECT_EQ(dst, 0);
}

TEST(Reductions, FrobeniusNormOfOneElementIsItsMagnitude) {
    const float a = -3;
    float dst = 0;
    EXPECT_EQ(lxpmFrobNorm_m_32f(&a, 4, 4, 1, 1, &dst), lxpStatusOk);
    EXPECT_EQ(dst, 3);
}

TEST(Reductions, TraceOfNothingIsRefused) {
    const float a = 1;
    float dst = 5;
    EXPECT_EQ(lxpmTrace_m_32f(&a, 4, 4, 0, &dst), lxpStatusSizeErr);
    EXPECT_EQ(dst, 5);
}

TEST(Reductions, SumsOfNegativeZerosAreZero) {
    for (const int length : {1, 3, 15, 16, 40}) {
        const std::vector<double> negative(length, -0.0);
        const std::vector<double> ones(length, 1.0);
        double dst = -1;
        EXPECT_EQ(lxpmDotProduct_vv_64f(negative.data(), 8, ones.data(), 8, &dst, length), lxpStatusOk);
        EXPECT_EQ(dst, 0);
        EXPECT_FALSE(std::signbit(dst)) << length;
    }
    const float zeros[4] = {-0.0f, -0.0f, -0.0f, -0.0f};
    float dst = -1;
    EXPECT_EQ(lxpmTrace_m_32f(zeros, 8, 4, 2, &dst), lxpStatusOk);
    EXPECT_FALSE(std::signbit(dst));
}

TEST(Reductions, LongSumsOfFloatsStayFloats) {
    // 2^24 swallows every single 1 that is added to it; a sum in double would not.
    const float a[] = {16777216, 1, 1, 1};
    const float ones[] = {1, 1, 1, 1};
    float dst = 0;
    EXPECT_EQ(lxpmDotProduct_vv_32f(a, 4, ones, 4, &dst, 4), lxpStatusOk);
    EXPECT_EQ(dst, 16777216);
}

TEST(Reductions, ASumIsSplitFromSixteenTermsOn) {
    // Ascending, each 1 is swallowed; the partial sums of the others survive.
    std::vector<float> a(16, 1.0f);
    a[0] = 16777216;
    const std::vector<float> ones(16, 1.0f);
    float dst = 0;
    EXPECT_EQ(lxpmDotProduct_vv_32f(a.data(), 4, ones.data(), 4, &dst, 15), lxpStatusOk);
    EXPECT_EQ(dst, 16777216);
    EXPECT_EQ(lxpmDotProduct_vv_32f(a.data(), 4, ones.data(), 4, &dst, 16), lxpStatusOk);
    EXPECT_GT(dst, 16777216);
}

TEST(Transposition, OfAnArrayNeedsObjects) {
    const float src[6] = {};
    float dst[6] = {};
    EXPECT_EQ(lxpmTranspose_ma_32f(src, 24, 12, 4, 3, 2, dst, 24, 8, 4, 0), lxpStatusCountErr);
}

TEST(Transposition, OfTwoRowsWritesTwoColumns) {
    const float src[] = {1, 2, 3, 4, 5, 6};
    float dst[6] = {};
    EXPECT_EQ(lxpmTranspose_ma_32f(src, 24, 12, 4, 3, 2, dst, 24, 8, 4, 1), lxpStatusOk);
    EXPECT_EQ(std::vector<float>(dst, dst + 6), (std::vector<float>{1, 4, 2, 5, 3, 6}));
}

TEST(Transposition, IsNeverParallel) {
    const std::vector<double> src(90'000);
    std::vector<double> dst(90'000, 1.0);
    setThreadCount(2);
    EXPECT_EQ(lxpmTranspose_ma_64f(src.data(), 72, 24, 8, 3, 3, dst.data(), 72, 24, 8, 10'000), lxpStatusOk);
    EXPECT_EQ(threadCountQuestions(), 0);
    EXPECT_EQ(dst, src);
}

template <class T, class Function>
void expectLargeTransposed(int height, int width, int padding, Function transpose) {
    const int size = sizeof(T);
    std::vector<T> src(static_cast<std::size_t>(height) * (width + padding));
    std::iota(src.begin(), src.end(), T(1));
    std::vector<T> dst(static_cast<std::size_t>(width) * (height + padding), T(-1));
    ASSERT_EQ(transpose(src.data(), (width + padding) * size, size, width, height, dst.data(),
                        (height + padding) * size, size),
              lxpStatusOk);
    for (int row = 0; row < width; ++row) {
        for (int column = 0; column < height + padding; ++column) {
            const T expected =
                column < height ? src[static_cast<std::size_t>(column) * (width + padding) + row] : T(-1);
            ASSERT_EQ(dst[static_cast<std::size_t>(row) * (height + padding) + column], expected)
                << "row " << row << ", column " << column << " of " << width << " by " << height;
        }
    }
}

// In tiles where the caches are unknown, past small ones, and at once where they are large.
TEST(Transposition, OfLargeMatrices) {
    for (const int cacheSize : {0, 1 << 20, 16 << 20, std::numeric_limits<int>::max()}) {
        const CacheSize machine(cacheSize);
        for (const auto &[height, width] : {std::pair{1024, 256},
                                            {1025, 256},
                                            {1024, 257},
                                            {2061, 259},
                                            {1000, 333},
                                            {70, 900},
                                            {517, 1030},
                                            {8, 600},
                                            {1600, 4}}) {
            for (const int padding : {0, 1, 24}) {
                expectLargeTransposed<float>(height, width, padding, lxpmTranspose_m_32f);
                expectLargeTransposed<double>(height, width, padding, lxpmTranspose_m_64f);
            }
        }
        EXPECT_GT(machine.questions(), 0);
    }
}

TEST(Transposition, OfSmallMatricesDoesNotAskForTheCaches) {
    const CacheSize machine(0);
    for (const int order : {1, 3, 4, 8}) {
        expectLargeTransposed<float>(order, order, 0, lxpmTranspose_m_32f);
        expectLargeTransposed<double>(order, order, 0, lxpmTranspose_m_64f);
    }
    EXPECT_EQ(machine.questions(), 0);
}

} // namespace

} // namespace lxpm::test
