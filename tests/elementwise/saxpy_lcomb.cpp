// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/saxpy_lcomb.h"

#include "elementwise/moving.h"
#include "support/axes.h"
#include "support/elements.h"

#include <cmath>
#include <optional>

namespace lxpm::test {

namespace {

Operand vector(const char *role, bool isArray, bool isWritten = false) {
    return {role, Kind::Vector, isArray, isWritten, Operand::one, 0};
}

Operand constant(const char *role) {
    return {role, Kind::Constant, false, false, Operand::one, Operand::one};
}

/// One operation in the element type; none where both operands are NaN and either may survive.
template <class T>
std::optional<T> product(T a, T b) {
    return std::isnan(a) && std::isnan(b) ? std::nullopt : std::optional<T>(a * b);
}

template <class T>
std::optional<T> sum(std::optional<T> a, std::optional<T> b) {
    if (!a || !b) {
        return std::nullopt; // a NaN of which the bits are not known
    }
    return std::isnan(*a) && std::isnan(*b) ? std::nullopt : std::optional<T>(*a + *b);
}

template <class E, class T>
void expectAt(const E &result, int column, std::optional<T> value) {
    if (value) {
        result.expect(0, column, *value);
    } else {
        result.expectNan(0, column);
    }
}

/// src1, val, src2, dst
Formula scaledSum() {
    return formula([](auto operands) {
        for (int j = 0; j < operands.back().columns(); ++j) {
            const auto scaled = product(operands[1](0, 0), operands[0](0, j));
            expectAt(operands.back(), j, sum(scaled, std::optional(operands[2](0, j))));
        }
    });
}

/// src1, val1, src2, val2, dst
Formula linearCombination() {
    return formula([](auto operands) {
        for (int j = 0; j < operands.back().columns(); ++j) {
            const auto first = product(operands[1](0, 0), operands[0](0, j));
            const auto second = product(operands[3](0, 0), operands[2](0, j));
            expectAt(operands.back(), j, sum(first, second));
        }
    });
}

} // namespace

Model describeSaxpyLComb(const ExportName &name) {
    using enum Check;
    const bool isFirstArray = name.code.starts_with("va");
    const bool isSecondArray = name.code.ends_with("va");
    const bool hasArray = isFirstArray || isSecondArray;

    Model model = {name, {}, {}, hasArray, {}, {}, {}, nullptr};
    if (name.operation == "Saxpy") {
        model.operands = {vector("src1", isFirstArray), constant("val"), vector("src2", isSecondArray),
                          vector("dst", hasArray, true)};
        model.formula = scaledSum();
    } else {
        model.operands = {vector("src1", isFirstArray), constant("val1"), vector("src2", isSecondArray),
                          constant("val2"), vector("dst", hasArray, true)};
        model.formula = linearCombination();
    }
    model.sizes = {{"len", 0, static_cast<int>(model.operands.size()) - 1}};
    model.axes = &vectorSizes;
    model.order = {Pointers, Count, Sizes, Strides, Offsets};
    if (hasArray) {
        model.parallel = movedElements(model.operands);
    }
    return model;
}

} // namespace lxpm::test
