// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/gaxpy.h"

#include "products/sums.h"
#include "support/axes.h"

#include <cstdint>

namespace lxpm::test {

namespace {

struct Limits {
    int contiguous; // the largest measure that is serial
    int strided;
};

Limits limitsOf(const ExportName &name) {
    const bool isSingle = name.type == ElementType::Float32;
    switch (name.layout) {
    case Layout::Strided:
        return isSingle ? Limits{7000, 5000} : Limits{5000, 5000};
    case Layout::ObjectPointers:
        return isSingle ? Limits{7000, 500} : Limits{6000, 5000};
    case Layout::ElementPointers:
        break;
    }
    return isSingle ? Limits{4500, 4500} : Limits{7000, 7000};
}

} // namespace

// Shapes are {rows, inner}.
Model describeGaxpy(const ExportName &name) {
    const bool hasArray = name.code != "mv";
    const bool hasOneAddend = name.code == "mvav";

    Model model = {name, {}, {}, hasArray, {}, {}, {}, &matrixVectorSizes};
    model.operands = {
        {"src1", Kind::Matrix, false, false, 0, 1},
        {"src2", Kind::Vector, hasArray, false, Operand::one, 1},
        {"src3", Kind::Vector, hasArray && !hasOneAddend, false, Operand::one, 0},
        {"dst", Kind::Vector, hasArray, true, Operand::one, 0},
    };
    model.sizes = {{"src1Width", 1, 0}, {"src1Height", 0, 0}, {"src2Len", 1, 1}, {"src3Len", 0, 2}};
    model.destinationMayBeSource = false;
    model.order = {Check::Pointers, Check::Count, Check::Sizes, Check::SizeMatch, Check::Strides, Check::Offsets};
    if (hasArray) {
        // The vectors' elements; the matrix does not count. Products wrap.
        const auto measure = [hasOneAddend](const Shape &shape, int count) {
            const auto rows = static_cast<std::uint32_t>(shape[0]);
            const auto inner = static_cast<std::uint32_t>(shape[1]);
            const auto objects = static_cast<std::uint32_t>(count);
            return static_cast<int>(hasOneAddend ? inner * objects + rows * (objects + 1)
                                                 : (inner + 2 * rows) * objects);
        };
        const Limits limits = limitsOf(name);
        model.parallel = ParallelRule{measure, limits.contiguous + 1, limits.strided + 1};
    }
    model.formula = sumsWithVector();
    return model;
}

} // namespace lxpm::test
