// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// What the checks of every export cannot know of Copy, Extract and LoadIdentity.

#include "checks/placements.h"
#include "support/call.h"
#include "support/expect_sound.h"
#include "support/raised_flags.h"
#include "support/thread_count.h"

#include <lxpm.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <numeric>
#include <string>
#include <vector>

namespace lxpm::test {

namespace {

// --- Object strides of element pointers ---

TEST(Copy, OfOneObjectDoesNotLookAtObjectStridesOfElementPointers) {
    const double values[] = {1.5, -2.5, 3.5};
    const double *const from[] = {&values[2], &values[0], &values[1]};
    for (const int stride : {0, 1, 4, -8, INT_MIN, INT_MAX}) {
        double results[3] = {};
        double *const to[] = {&results[0], &results[1], &results[2]};
        EXPECT_EQ(lxpmCopy_va_64f_PP(from, 0, stride, to, 0, stride, 3, 1), lxpStatusOk);
        EXPECT_EQ(std::vector(results, results + 3), (std::vector{3.5, 1.5, -2.5})) << "stride " << stride;
        EXPECT_EQ(lxpmCopy_va_64f_PP(from, 0, 8, to, 0, stride, 3, 2), lxpStatusStrideErr);
    }
}

TEST(Copy, LooksAtOffsetsBeforeObjectStridesOfElementPointers) {
    const float value = 1;
    const float *const from[] = {&value};
    float result = 0;
    EXPECT_EQ(lxpmCopy_va_32f_PS(from, -4, 0, &result, 4, 4, 1, 2), lxpStatusRoiShiftErr);
    EXPECT_EQ(lxpmCopy_va_32f_PS(from, 0, 0, &result, 4, 4, 1, 2), lxpStatusStrideErr);
    EXPECT_EQ(lxpmCopy_va_32f_PS(from, -4, 4, &result, 0, 4, 1, 2), lxpStatusStrideErr);
    EXPECT_EQ(result, 0);
}

// --- Signalling NaN ---

TEST(Moving, RaisesNoFlagOverSignallingNan) {
    setThreadCount(1);
    const auto moves = [](const Model &model) {
        return model.operation.starts_with("CopyTo") || model.operation == "Extract";
    };
    for (const Export *item : exportsThat(moves)) {
        const bool isFloat = item->model.type == ElementType::Float32;
        for (const Shape &shape : item->model.axes->small) {
            for (const unsigned gaps : {0u, ~0u}) {
                Report report;
                Call call(*item, shape, item->model.hasCount ? 9 : 1, gappedIn(item->model, gaps));
                call.fill(
                    [=](int, std::size_t element) { return (isFloat ? 0x7f800001u : 0x7ff0000000000001u) + element; });
                call.expectResults();
                EXPECT_EQ(flagsRaisedBy([&] { call.invoke(); }), 0u) << call.text();
                report.countCase();
                call.verify(lxpStatusOk, report);
                expectSound(report);
            }
        }
    }
}

// --- Pointers that stand evenly apart, and such as nearly do ---

class Pointers : public testing::TestWithParam<int> {
protected:
    static constexpr int len = 5;
    static constexpr int count = 40;

    Pointers() : elements(4 * len * count), results(len * count) {
        std::iota(elements.begin(), elements.end(), 1.0f);
        for (int k = 0; k < count; ++k) {
            pointers.push_back(&elements[len * k]);
        }
    }

    void expectCopies() {
        ASSERT_EQ(lxpmCopy_va_32f_LS(pointers.data(), 0, 4, results.data(), 4 * len, 4, len, count), lxpStatusOk);
        for (int k = 0; k < count; ++k) {
            for (int j = 0; j < len; ++j) {
                ASSERT_EQ(results[k * len + j], pointers[k][j]) << "object " << k << ", element " << j;
            }
        }
    }

    std::vector<float> elements;
    std::vector<float> results;
    std::vector<const float *> pointers;
};

TEST_P(Pointers, OneStandsElsewhere) {
    pointers[GetParam()] = &elements[2 * len * count + 3];
    expectCopies();
}

TEST_P(Pointers, AllAreOneFromThereOn) {
    std::fill(pointers.begin() + GetParam(), pointers.end(), pointers[GetParam()]);
    expectCopies();
}

TEST_P(Pointers, TurnBackFromThereOn) {
    std::reverse(pointers.begin() + GetParam(), pointers.end());
    expectCopies();
}

INSTANTIATE_TEST_SUITE_P(Moving, Pointers, testing::Values(0, 1, 2, 20, 39), testing::PrintToStringParamName());

TEST(Moving, WritesThroughPointersThatMeetInOrder) {
    // The last object is the one that stays.
    const std::vector<double> values = {1, 2, 3, 4, 5, 6};
    double result[2] = {};
    double *const to[] = {result, result, result};
    EXPECT_EQ(lxpmCopy_va_64f_SL(values.data(), 16, 8, to, 0, 8, 2, 3), lxpStatusOk);
    EXPECT_EQ(std::vector(result, result + 2), (std::vector<double>{5, 6}));
}

// --- Large identities ---

TEST(LoadIdentity, WritesLargeMatricesOfEveryShapeAndPattern) {
    setThreadCount(2);
    const auto isIdentity = [](const Model &model) { return model.operation == "LoadIdentity"; };
    const std::vector<const Export *> exports = exportsThat(isIdentity);
    ASSERT_EQ(exports.size(), 6u);
    for (const Export *item : exports) {
        Report report;
        // Around the largest matrix that is copied from one made ready, wide, high, one row, one column.
        for (const Shape &shape : {Shape{32, 32}, {41, 25}, {25, 41}, {70, 40}, {40, 70}, {1500, 1}, {1, 1500}}) {
            for (int number = 0; number < combinations(); ++number) {
                std::vector<Placement> placements = combination(item->model, number);
                scatter(placements, number);
                Call call(*item, shape, 3, placements);
                call.fill(distinctValues(item->model.type));
                call.verifyResults(report);
            }
        }
        expectSound(report);
    }
}

} // namespace

} // namespace lxpm::test
