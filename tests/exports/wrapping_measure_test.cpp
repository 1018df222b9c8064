// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The measure is a signed 32-bit number: a call whose product passes 2^31 counts as a small one and stays serial. All
// objects lie one element apart, so that a thousand million elements fit into little memory; they all have one value,
// so that the order in which they are written does not show.

#include "support/thread_count.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace lxpm::test {

namespace {

template <class T>
std::vector<T *> pointersToEach(std::vector<T> &elements, int count) {
    std::vector<T *> pointers;
    for (int object = 0; object < count; ++object) {
        pointers.push_back(elements.data() + object);
    }
    return pointers;
}

template <class T>
void expectAll(const std::vector<T> &elements, T value) {
    EXPECT_EQ(std::count(elements.begin(), elements.end(), value), static_cast<std::ptrdiff_t>(elements.size()));
}

class WrappingMeasure : public testing::Test {
protected:
    WrappingMeasure() { setThreadCount(2); }
    ~WrappingMeasure() override { EXPECT_EQ(threadCountQuestions(), 0) << "the call was taken for a large one"; }
};

// 3 * 26756 * 26755 = 2^31 + 86692
constexpr int length = 26755;
constexpr int count = 26756;

TEST_F(WrappingMeasure, OfVectorsStaysSerial) {
    const std::vector<float> src1(length + count - 1, 1.0f);
    const std::vector<float> src2(length + count - 1, 2.0f);
    std::vector<float> dst(length + count - 1);
    EXPECT_EQ(lxpmAdd_vava_32f(src1.data(), 4, 4, src2.data(), 4, 4, dst.data(), 4, 4, length, count), lxpStatusOk);
    expectAll(dst, 3.0f);
}

TEST_F(WrappingMeasure, OfObjectPointersStaysSerial) {
    std::vector<double> src1(length + count - 1, 5.0);
    std::vector<double> src2(length + count - 1, 3.0);
    std::vector<double> dst(length + count - 1);
    EXPECT_EQ(lxpmSub_mama_64f_L(pointersToEach(src1, count).data(), 0, 8 * length, 8,
                                 pointersToEach(src2, count).data(), 0, 8 * length, 8,
                                 pointersToEach(dst, count).data(), 0, 8 * length, 8, length, 1, count),
              lxpStatusOk);
    expectAll(dst, 2.0);
}

TEST_F(WrappingMeasure, OfOneSingleMatrixStaysSerial) {
    // 32768 * 65537 = 2^31 + 32768
    constexpr int width = 32768;
    constexpr int matrices = 32768;
    const std::vector<float> src1(width + matrices - 1, 1.0f);
    const std::vector<float> src2(width, 2.0f);
    std::vector<float> dst(width + matrices - 1);
    EXPECT_EQ(lxpmAdd_mam_32f(src1.data(), 4, 4 * width, 4, src2.data(), 4 * width, 4, dst.data(), 4, 4 * width, 4,
                              width, 1, matrices),
              lxpStatusOk);
    expectAll(dst, 3.0f);
}

} // namespace

} // namespace lxpm::test
