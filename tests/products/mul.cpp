// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/mul.h"

#include "products/sums.h"
#include "support/axes.h"
#include "support/elements.h"

#include <cmath>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <utility>

namespace lxpm::test {

namespace {

// --- Operands ---

struct Letter {
    char letter;
    bool isArray;

    bool isMatrix() const { return letter == 'm' || letter == 't'; }
};

/// Both letters of a code.
std::pair<Letter, Letter> parse(const std::string &code) {
    const bool firstIsArray = code.at(1) == 'a';
    const std::size_t second = firstIsArray ? 2 : 1;
    return {{code[0], firstIsArray}, {code.at(second), code.size() > second + 1}};
}

Operand matrix(std::string role, Letter letter, bool isWritten, int rows, int columns) {
    return {std::move(role), letter.letter == 't' ? Kind::Transposed : Kind::Matrix, letter.isArray, isWritten, rows,
            columns};
}

Operand vector(std::string role, bool isArray, bool isWritten, int length) {
    return {std::move(role), Kind::Vector, isArray, isWritten, Operand::one, length};
}

/// The size parameters of a matrix as it is stored: a transposed one has the rows of the logical one as its width.
void appendSizes(std::vector<SizeParameter> &sizes, const Operand &operand, int index) {
    const bool isTransposed = operand.kind == Kind::Transposed;
    sizes.push_back({operand.role + "Width", isTransposed ? operand.rows : operand.columns, index});
    sizes.push_back({operand.role + "Height", isTransposed ? operand.columns : operand.rows, index});
}

// --- Serial or parallel ---

struct Limits {
    Layout layout;
    ElementType type;
    int contiguous; // the largest measure that is serial
    int strided;
};

using enum Layout;
using enum ElementType;

constexpr Limits productLimits[] = {
    {Strided, Float32, 2500, 1440},         {Strided, Float64, 3600, 1440},
    {ObjectPointers, Float32, 3600, 1440},  {ObjectPointers, Float64, 3600, 1440},
    {ElementPointers, Float32, 1440, 1440}, {ElementPointers, Float64, 1440, 1440},
};
constexpr Limits matrixTimesConstantLimits[] = {
    {Strided, Float32, 3500, 3500},         {Strided, Float64, 3500, 3500},
    {ObjectPointers, Float32, 3500, 1500},  {ObjectPointers, Float64, 3500, 3500},
    {ElementPointers, Float32, 1700, 1700}, {ElementPointers, Float64, 1700, 1700},
};
constexpr Limits arrayOfConstantsLimits[] = {
    {Strided, Float32, 2100, 2100},        {Strided, Float64, 2100, 2100},       {ObjectPointers, Float32, 1200, 1200},
    {ObjectPointers, Float64, 1200, 1200}, {ElementPointers, Float32, 650, 650}, {ElementPointers, Float64, 650, 650},
};

template <std::size_t N>
const Limits &find(const Limits (&table)[N], const ExportName &name) {
    for (const Limits &limits : table) {
        if (limits.layout == name.layout && limits.type == name.type) {
            return limits;
        }
    }
    throw std::logic_error("no limits for " + name.name);
}

/// Elements read and written. Products wrap: they are made without a sign and read with one.
int measure(const std::vector<Operand> &operands, const Shape &shape, int count) {
    std::uint32_t elements = 0;
    for (const Operand &operand : operands) {
        if (operand.kind == Kind::Constant && !operand.isArray) {
            continue; // a value is not in memory
        }
        const std::uint32_t objects = operand.isArray ? static_cast<std::uint32_t>(count) : 1u;
        elements += objects * static_cast<std::uint32_t>(operand.rowsOf(shape)) *
                    static_cast<std::uint32_t>(operand.columnsOf(shape));
    }
    return static_cast<int>(elements);
}

// --- Results ---

Formula scaled() {
    return formula([](auto operands) {
        const auto &source = operands[0];
        const auto &result = operands.back();
        const auto value = operands[1](0, 0);
        for (int row = 0; row < result.rows(); ++row) {
            for (int column = 0; column < result.columns(); ++column) {
                const auto element = source(row, column);
                if (std::isnan(element) && std::isnan(value)) {
                    result.expectNan(row, column);
                } else {
                    result.expect(row, column, value * element);
                }
            }
        }
    });
}

// --- Members ---

// Shapes are {rows, inner, columns}.
void describeMatrixProduct(Model &model, Letter first, Letter second, bool hasArray) {
    model.operands = {
        matrix("src1", first, false, 0, 1),
        matrix("src2", second, false, 1, 2),
        matrix("dst", {'m', hasArray}, true, 0, 2),
    };
    appendSizes(model.sizes, model.operands[0], 0);
    appendSizes(model.sizes, model.operands[1], 1);
    model.axes = &productSizes;
    model.destinationMayBeSource = false;
    model.formula = sumsOfProducts();
}

// Shapes are {rows, inner}.
void describeVectorProduct(Model &model, Letter first, Letter second, bool hasArray) {
    model.operands = {
        matrix("src1", first, false, 0, 1),
        vector("src2", second.isArray, false, 1),
        vector("dst", hasArray, true, 0),
    };
    appendSizes(model.sizes, model.operands[0], 0);
    model.sizes.push_back({"src2Len", 1, 1});
    model.axes = &matrixVectorSizes;
    model.destinationMayBeSource = false;
    model.formula = sumsWithVector();
}

// Shapes are {width, height}, or {len}.
void describeScaling(Model &model, Letter first, Letter second, bool hasArray) {
    const Operand constant = {
        second.isArray ? "vals" : "val", Kind::Constant, second.isArray, false, Operand::one, Operand::one};
    if (first.isMatrix()) {
        model.operands = {matrix("src", first, false, 1, 0), constant, matrix("dst", {'m', hasArray}, true, 1, 0)};
        model.sizes = {{"width", 0, 2}, {"height", 1, 2}};
        model.axes = &matrixSizes;
    } else {
        model.operands = {vector("src", first.isArray, false, 0), constant, vector("dst", hasArray, true, 0)};
        model.sizes = {{"len", 0, 2}};
        model.axes = &vectorSizes;
    }
    model.formula = scaled();
}

} // namespace

Model describeMul(const ExportName &name) {
    const auto [first, second] = parse(name.code);
    const bool hasArray = first.isArray || second.isArray;

    Model model = {name, {}, {}, hasArray, {}, {}, {}, nullptr};
    const auto *limits = &find(productLimits, name);
    if (second.letter == 'c') {
        describeScaling(model, first, second, hasArray);
        if (second.isArray) {
            limits = &find(arrayOfConstantsLimits, name);
        } else if (first.isMatrix()) {
            limits = &find(matrixTimesConstantLimits, name);
        }
    } else if (second.letter == 'v') {
        describeVectorProduct(model, first, second, hasArray);
    } else {
        describeMatrixProduct(model, first, second, hasArray);
    }
    model.order = {Check::Pointers, Check::Count, Check::Sizes, Check::SizeMatch, Check::Strides, Check::Offsets};
    if (hasArray) {
        const auto measureOf = [operands = model.operands](const Shape &shape, int count) {
            return measure(operands, shape, count);
        };
        model.parallel = ParallelRule{measureOf, limits->contiguous + 1, limits->strided + 1};
    }
    return model;
}

} // namespace lxpm::test
