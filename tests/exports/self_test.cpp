// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The checks themselves: they accept a right function and report each of the wrong ones. The functions stand in for
// lxpmAdd_mam_32f, whose contract has all the parts: an array and a single operand, an order of checks of its own, two
// thresholds.

#include "checks/checks.h"

#include <lxpcore.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#include <xmmintrin.h>

namespace lxpm::test {

namespace {

enum class Defect {
    None,
    WrongLastElement,
    WrongLastRowOfLargeOrders,
    WrongObjectAfterLanes,
    IgnoresObjectStride,
    WritesPadding,
    WritesSource,
    ReadsBehindTheEnd,
    ReadsInFrontOfTheStart,
    WritesBehindTheEnd,
    FlushesNegativeZero,
    LosesPayload,
    AddsTheNegative,
    ReadsAfterWriting,
    SwapsChecks,
    AcceptsOddStride,
    ReturnsOtherStatus,
    WritesBeforeChecks,
    ReadsBeforeChecks,
    AsksWhenSerial,
    AsksOnlyOnce,
    IsParallelTooEarly,
    IsParallelTooLate,
    IgnoresGapsInDestination,
    LosesRemainderOfBlocks,
    RaisesFlag,
    ChangesRounding,
    ComputesWithPadding,
};

Defect defect = Defect::None;

bool has(Defect candidate) {
    return defect == candidate;
}

float *at(const float *base, std::ptrdiff_t offset) {
    return reinterpret_cast<float *>(reinterpret_cast<std::uintptr_t>(base) + offset);
}

bool isBadStride(int stride) {
    return stride < 1 || stride % 4 != 0;
}

float sum(float a, float b) {
    if (has(Defect::AddsTheNegative)) {
        return 0 - (-a - b);
    }
    float result = a + b;
    if (has(Defect::FlushesNegativeZero) && result == 0) {
        result = 0;
    }
    if (has(Defect::LosesPayload) && result != result) {
        result = __builtin_nanf("");
    }
    return result;
}

LxpStatus add(const float *src1, int src1ObjStride, int src1RowStride, int src1ElemStride, const float *src2,
              int src2RowStride, int src2ElemStride, float *dst, int dstObjStride, int dstRowStride, int dstElemStride,
              int width, int height, int count) {
    if (has(Defect::ReadsBeforeChecks) && src1 != nullptr && *static_cast<const volatile float *>(src1) == 0) {
        return lxpStatusOk;
    }
    if (has(Defect::WritesBeforeChecks) && dst != nullptr) {
        *dst = 0;
    }

    if (src1 == nullptr || src2 == nullptr || dst == nullptr) {
        return lxpStatusNullPtrErr;
    }
    if (count < 1) {
        return has(Defect::ReturnsOtherStatus) ? lxpStatusSizeErr : lxpStatusCountErr;
    }
    const bool isBadSize = width < 1 || height < 1;
    if (has(Defect::SwapsChecks) && isBadSize) {
        return lxpStatusSizeErr;
    }
    for (const int stride : {src1ObjStride, src1RowStride, src1ElemStride, src2RowStride, src2ElemStride, dstObjStride,
                             dstRowStride, dstElemStride}) {
        if (isBadStride(stride)) {
            return has(Defect::AcceptsOddStride) && stride > 1 ? lxpStatusOk : lxpStatusStrideErr;
        }
    }
    if (isBadSize) {
        return lxpStatusSizeErr;
    }

    const int measure = width * height * (2 * count + 1);
    const bool isContiguous =
        src1ElemStride == 4 && src2ElemStride == 4 && (dstElemStride == 4 || has(Defect::IgnoresGapsInDestination));
    const int limit = (isContiguous ? 3000 : 2000) - has(Defect::IsParallelTooEarly) + has(Defect::IsParallelTooLate);
    int objects = count;
    if (measure >= limit) {
        const int threads = ownGetNumThreads();
        if (threads > 1 && count >= threads && !has(Defect::AsksOnlyOnce)) {
            ownGetNumThreads();
        }
        if (has(Defect::LosesRemainderOfBlocks) && count >= threads) {
            objects = count / threads * threads;
        }
    } else if (has(Defect::AsksWhenSerial)) {
        ownGetNumThreads();
    }

    if (has(Defect::RaisesFlag)) {
        _mm_setcsr(_mm_getcsr() | 0x01);
    }
    if (has(Defect::ChangesRounding)) {
        _mm_setcsr(_mm_getcsr() & ~0x6000u);
    }
    for (int object = 0; object < objects; ++object) {
        const std::ptrdiff_t step = has(Defect::IgnoresObjectStride) ? width * height * 4 : dstObjStride;
        for (int row = 0; row < height; ++row) {
            for (int column = 0; column < width; ++column) {
                const float *a = at(src1, std::ptrdiff_t{src1ObjStride} * object + std::ptrdiff_t{src1RowStride} * row +
                                              std::ptrdiff_t{src1ElemStride} * column);
                const float *b =
                    at(src2, std::ptrdiff_t{src2RowStride} * row + std::ptrdiff_t{src2ElemStride} * column);
                float *to = at(dst, step * object + std::ptrdiff_t{dstRowStride} * row +
                                        std::ptrdiff_t{dstElemStride} * column);
                const bool isLast = object == count - 1 && row == height - 1 && column == width - 1;
                if (has(Defect::ReadsAfterWriting)) {
                    *to = *b;
                }
                float result = sum(*a, *b);
                if ((has(Defect::WrongLastElement) && isLast) ||
                    (has(Defect::WrongLastRowOfLargeOrders) && height > 16 && row == height - 1) ||
                    (has(Defect::WrongObjectAfterLanes) && object == 8 && count > 8)) {
                    result = *a;
                }
                *to = result;
                if (has(Defect::WritesPadding) && dstElemStride == 4 && column == width - 1 && !isLast &&
                    dstRowStride > 4 * width) {
                    to[1] = 0;
                }
                if (has(Defect::ComputesWithPadding) && src1RowStride > 4 * width && !isLast && src1ElemStride == 4) {
                    [[maybe_unused]] volatile float unused = a[1] + 1;
                }
                if (isLast && has(Defect::ReadsBehindTheEnd)) {
                    [[maybe_unused]] const float unused = *static_cast<const volatile float *>(b + 1);
                }
                if (isLast && has(Defect::WritesBehindTheEnd)) {
                    to[1] = 0;
                }
                if (isLast && has(Defect::WritesSource)) {
                    *const_cast<float *>(b) = 0;
                }
            }
        }
    }
    if (has(Defect::ReadsInFrontOfTheStart)) {
        [[maybe_unused]] const float unused = *static_cast<const volatile float *>(src2 - 1);
    }
    return lxpStatusOk;
}

using CheckFunction = Report (*)(const Export &);

Export standIn() {
    return {findExport("lxpmAdd_mam_32f").model, Callable(&add)};
}

class RightFunction : public testing::TestWithParam<CheckFunction> {};

TEST_P(RightFunction, IsAccepted) {
    defect = Defect::None;
    const Report report = GetParam()(standIn());
    EXPECT_GT(report.cases(), 0);
    EXPECT_EQ(report.complaints(), std::vector<std::string>());
}

INSTANTIATE_TEST_SUITE_P(SelfTest, RightFunction,
                         testing::Values(checkParameterTypes, checkValues, checkGuards, checkSpecialValues, checkStatus,
                                         checkInPlace, checkThresholds, checkThreads, checkFloatingPointEnvironment));

struct Case {
    const char *name;
    Defect defect;
    CheckFunction check;
};

void PrintTo(const Case &item, std::ostream *stream) {
    *stream << item.name;
}

std::string nameOf(const testing::TestParamInfo<Case> &info) {
    return info.param.name;
}

class WrongFunction : public testing::TestWithParam<Case> {};

TEST_P(WrongFunction, IsReported) {
    defect = GetParam().defect;
    const Report report = GetParam().check(standIn());
    ASSERT_FALSE(report.complaints().empty());
    EXPECT_NE(report.complaints().front().find("in lxpmAdd_mam_32f(src1 = "), std::string::npos)
        << report.complaints().front();
}

INSTANTIATE_TEST_SUITE_P(
    SelfTest, WrongFunction,
    testing::Values(Case{"WrongLastElement", Defect::WrongLastElement, checkValues},
                    Case{"WrongLastRowOfLargeOrders", Defect::WrongLastRowOfLargeOrders, checkValues},
                    Case{"WrongObjectAfterLanes", Defect::WrongObjectAfterLanes, checkValues},
                    Case{"IgnoresObjectStride", Defect::IgnoresObjectStride, checkValues},
                    Case{"WritesPadding", Defect::WritesPadding, checkValues},
                    Case{"WritesSource", Defect::WritesSource, checkValues},
                    Case{"FlushesNegativeZero", Defect::FlushesNegativeZero, checkSpecialValues},
                    Case{"LosesPayload", Defect::LosesPayload, checkSpecialValues},
                    Case{"AddsTheNegative", Defect::AddsTheNegative, checkSpecialValues},
                    Case{"ReadsAfterWriting", Defect::ReadsAfterWriting, checkInPlace},
                    Case{"SwapsChecks", Defect::SwapsChecks, checkStatus},
                    Case{"AcceptsOddStride", Defect::AcceptsOddStride, checkStatus},
                    Case{"ReturnsOtherStatus", Defect::ReturnsOtherStatus, checkStatus},
                    Case{"WritesBeforeChecks", Defect::WritesBeforeChecks, checkStatus},
                    Case{"AsksWhenSerial", Defect::AsksWhenSerial, checkThresholds},
                    Case{"AsksOnlyOnce", Defect::AsksOnlyOnce, checkThresholds},
                    Case{"IsParallelTooEarly", Defect::IsParallelTooEarly, checkThresholds},
                    Case{"IsParallelTooLate", Defect::IsParallelTooLate, checkThresholds},
                    Case{"IgnoresGapsInDestination", Defect::IgnoresGapsInDestination, checkThresholds},
                    Case{"LosesRemainderOfBlocks", Defect::LosesRemainderOfBlocks, checkThreads},
                    Case{"RaisesFlag", Defect::RaisesFlag, checkFloatingPointEnvironment},
                    Case{"ChangesRounding", Defect::ChangesRounding, checkFloatingPointEnvironment},
                    Case{"ComputesWithPadding", Defect::ComputesWithPadding, checkFloatingPointEnvironment}),
    nameOf);

class CrashingFunction : public testing::TestWithParam<Case> {};

TEST_P(CrashingFunction, DiesAndNamesTheCall) {
    defect = GetParam().defect;
    EXPECT_DEATH(GetParam().check(standIn()), "Signal [0-9]+ in lxpmAdd_mam_32f\\(src1 = ");
}

INSTANTIATE_TEST_SUITE_P(SelfTest, CrashingFunction,
                         testing::Values(Case{"ReadsBehindTheEnd", Defect::ReadsBehindTheEnd, checkGuards},
                                         Case{"ReadsInFrontOfTheStart", Defect::ReadsInFrontOfTheStart, checkGuards},
                                         Case{"WritesBehindTheEnd", Defect::WritesBehindTheEnd, checkGuards},
                                         Case{"ReadsBeforeChecks", Defect::ReadsBeforeChecks, checkStatus}),
                         nameOf);

LxpStatus addWithoutCount(const float *, int, int, int, const float *, int, int, float *, int, int, int, int, int) {
    return lxpStatusOk;
}

LxpStatus addOfDoubles(const double *, int, int, int, const float *, int, int, float *, int, int, int, int, int, int) {
    return lxpStatusOk;
}

TEST(WrongTypes, AreReported) {
    const Model &model = findExport("lxpmAdd_mam_32f").model;
    EXPECT_FALSE(checkParameterTypes({model, Callable(&addWithoutCount)}).complaints().empty());
    EXPECT_FALSE(checkParameterTypes({model, Callable(&addOfDoubles)}).complaints().empty());
}

TEST(WrongBits, AreReported) {
    // Two layouts that disagree: the stand-in and the library's own.
    defect = Defect::WrongLastElement;
    const Export wrong = standIn();
    const Export *layouts[] = {&findExport("lxpmAdd_mam_32f_L"), &wrong};
    EXPECT_FALSE(checkSameBits(layouts).complaints().empty());
}

} // namespace

} // namespace lxpm::test
