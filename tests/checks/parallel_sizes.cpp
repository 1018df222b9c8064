// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "checks/parallel_sizes.h"

#include <climits>

namespace lxpm::test {

namespace {

/// All shapes up to a limit for each of them.
std::vector<Shape> shapesUpTo(std::size_t parameters, int limit) {
    std::vector<Shape> all = {{}};
    for (std::size_t parameter = 0; parameter < parameters; ++parameter) {
        std::vector<Shape> longer;
        for (const Shape &shape : all) {
            for (int size = 1; size <= limit; ++size) {
                longer.push_back(shape);
                longer.back().push_back(size);
            }
        }
        all = std::move(longer);
    }
    return all;
}

} // namespace

int firstParallelCount(const Model &model, const Shape &shape, bool isContiguous) {
    // The measure grows with the count as long as it does not wrap, which is far away.
    int serial = 0;
    int parallel = 1;
    while (!model.parallel->isParallel(shape, parallel, isContiguous)) {
        serial = parallel;
        parallel *= 2;
    }
    while (parallel - serial > 1) {
        const int middle = serial + (parallel - serial) / 2;
        (model.parallel->isParallel(shape, middle, isContiguous) ? parallel : serial) = middle;
    }
    return parallel;
}

Shape firstParallelShape(const Model &model, int count, bool isContiguous) {
    Shape shape(model.dimensions(), 1);
    // Growing in turns keeps matrices nearly square. What has one size only does not grow.
    for (std::size_t turn = 0; !shape.empty() && !model.parallel->isParallel(shape, count, isContiguous); ++turn) {
        ++shape[turn % shape.size()];
    }
    return shape;
}

std::vector<ParallelCase> casesAroundThreshold(const Model &model, bool isContiguous) {
    const auto addBoth = [&](std::vector<ParallelCase> &cases, const Shape &shape) {
        const int count = firstParallelCount(model, shape, isContiguous);
        cases.push_back({shape, count});
        if (count > 1) {
            cases.push_back({shape, count - 1});
        }
    };

    std::vector<ParallelCase> cases;
    for (const Shape &shape : model.axes->small) {
        addBoth(cases, shape);
    }

    ParallelCase closestSerial = {};
    ParallelCase closestParallel = {};
    int largestSerial = INT_MIN;
    int smallestParallel = INT_MAX;
    for (const Shape &shape : shapesUpTo(model.dimensions(), model.dimensions() == 1 ? 200 : 16)) {
        if (!model.allows(shape)) {
            continue;
        }
        const int count = firstParallelCount(model, shape, isContiguous);
        const int measure = model.parallel->measure(shape, count);
        if (measure < smallestParallel) {
            smallestParallel = measure;
            closestParallel = {shape, count};
        }
        const int below = count > 1 ? model.parallel->measure(shape, count - 1) : INT_MIN;
        if (below > largestSerial) {
            largestSerial = below;
            closestSerial = {shape, count - 1};
        }
    }
    cases.push_back(closestSerial);
    cases.push_back(closestParallel);
    return cases;
}

} // namespace lxpm::test
