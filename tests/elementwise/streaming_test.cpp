// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Results that outgrow the caches are written past them. Machines with small caches make that happen with little
// memory.

#include "checks/placements.h"
#include "support/cache_size.h"
#include "support/call.h"
#include "support/expect_sound.h"
#include "support/thread_count.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace lxpm::test {

namespace {

bool isMapped(const Model &model) {
    return model.operation == "Add" || model.operation == "Sub" || model.operation == "Saxpy" ||
           model.operation == "LComb";
}

/// More than any first cache holds.
constexpr int largeBytes = 40 * 1024;

int largeCount(const Model &model, const Shape &shape) {
    int elements = 1;
    for (const int size : shape) {
        elements *= size;
    }
    return model.hasCount ? largeBytes / (elements * sizeOf(model.type)) + 1 : 1;
}

/// Turned in blocks, whose rows are too short to be streamed.
bool hasTransposed(const Model &model) {
    return std::any_of(model.operands.begin(), model.operands.end(),
                       [](const Operand &operand) { return operand.kind == Kind::Transposed; });
}

/// With the destination at `shift` elements from a guard page, and the sources elsewhere in their registers.
void callShifted(const Export &item, const Shape &shape, int count, int shift, Report &report) {
    const int elementsOfRegister = 32 / sizeOf(item.model.type);
    std::vector<Placement> placements = combination(item.model, 0);
    for (auto placement = placements.rbegin(); placement != placements.rend(); ++placement) {
        placement->shift = shift % elementsOfRegister;
        shift += 3;
    }
    Call call(item, shape, count, placements);
    call.fill(distinctValues(item.model.type));
    call.verifyResults(report);
}

} // namespace

TEST(Streaming, GivesTheSameResults) {
    setThreadCount(1);
    const std::vector<const Export *> exports = exportsThat(isMapped);
    ASSERT_GT(exports.size(), 200u);
    for (const Export *item : exports) {
        const Model &model = item->model;
        const CacheSize machine(1);
        Report report;
        int shift = 0;
        for (const Shape &shape : model.axes->small) {
            callShifted(*item, shape, largeCount(model, shape), shift++, report);
        }
        for (; shift < 32 / sizeOf(model.type); ++shift) {
            callShifted(*item, model.axes->small.front(), largeCount(model, model.axes->small.front()), shift, report);
        }
        const int side = model.dimensions() == 1 ? largeBytes : 104;
        callShifted(*item, Shape(model.dimensions(), side), 1, 1, report);
        expectSound(report);
        EXPECT_TRUE(machine.questions() > 0 || hasTransposed(model)) << model.name;
    }
}

/// Rows of the destination that start anywhere in a cache line and end anywhere in one, in matrices of several bands
/// and of more columns than a band has.
TEST(Streaming, TransposesIntoWholeCacheLines) {
    setThreadCount(1);
    const std::vector<const Export *> exports =
        exportsThat([](const Model &model) { return model.operation == "Transpose"; });
    ASSERT_EQ(exports.size(), 10u);
    int shift = 0;
    for (const Export *item : exports) {
        const CacheSize machine(1);
        Report report;
        const auto call = [&](const Shape &shape, int patterns) {
            std::vector<Placement> placements = combination(item->model, patterns);
            for (Placement &placement : placements) {
                placement.shift = shift++ % 17;
            }
            Call one(*item, shape, item->model.hasCount ? 2 : 1, placements);
            one.fill(distinctValues(item->model.type));
            one.verifyResults(report);
        };
        // Width and height of the source: the shortest rows that are streamed in either type, and one less.
        for (const Shape &shape : {Shape{7, 127}, {8, 128}, {16, 255}, {33, 256}, {4, 257}, {5, 290}, {17, 271}}) {
            for (int patterns = 0; patterns < combinations(); ++patterns) {
                call(shape, patterns);
            }
        }
        for (const int width : {512, 513, 1024, 1027}) {
            call({width, 300}, 0);
        }
        for (int start = 0; start < 17; ++start) {
            call({21, 263}, 0);
            call({19, 272}, 0); // rows of whole lines: they all start at the same place of one
        }
        expectSound(report);
        EXPECT_TRUE(machine.questions() > 0 || item->model.layout == Layout::ElementPointers) << item->model.name;
    }
}

TEST(Streaming, WithoutItResultsAreTheSame) {
    setThreadCount(1);
    for (const int cacheSize : {0, std::numeric_limits<int>::max()}) {
        const CacheSize machine(cacheSize);
        for (const Export *item : exportsThat(isMapped)) {
            Report report;
            const Shape &shape = item->model.axes->small.front();
            callShifted(*item, shape, largeCount(item->model, shape), 0, report);
            expectSound(report);
        }
    }
}

TEST(Streaming, IsSharedByThreads) {
    const CacheSize machine(1);
    for (const Export *item : exportsThat([](const Model &model) { return isMapped(model) && model.parallel; })) {
        const Shape &shape = item->model.axes->small.back();
        Report report;
        for (const int threads : {2, 3, 4, 7}) {
            setThreadCount(threads);
            std::vector<Placement> placements = combination(item->model, 0);
            scatter(placements, threads);
            Call call(*item, shape, 8 * largeCount(item->model, shape), placements);
            call.fill(distinctValues(item->model.type));
            call.verifyResults(report);
        }
        expectSound(report);
    }
}

} // namespace lxpm::test
