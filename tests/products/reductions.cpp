// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/reductions.h"

#include "support/axes.h"
#include "support/elements.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <stdexcept>
#include <utility>

namespace lxpm::test {

namespace {

// --- Operands ---

Operand vectorOf(std::string role, bool isArray, int length, bool isWritten = false) {
    return {std::move(role), Kind::Vector, isArray, isWritten, Operand::one, length};
}

Operand matrixOf(std::string role, bool isArray, int rows, int columns, bool isWritten = false) {
    return {std::move(role), Kind::Matrix, isArray, isWritten, rows, columns};
}

Operand results(bool isArray) {
    return {"dst", Kind::Results, isArray, true, Operand::one, Operand::one};
}

bool hasArray(const std::string &code) {
    return code.find('a') != std::string::npos;
}

// --- Order of checks ---

const std::vector<Check> usualOrder = {Check::Pointers, Check::Count, Check::Sizes, Check::Strides, Check::Offsets};

// --- Serial or parallel ---

// The measures are signed numbers of 32 bits that wrap.
ParallelRule ruleOf(std::function<std::uint32_t(const Shape &shape, std::uint32_t count)> measure, int contiguous,
                    int strided) {
    return {[=](const Shape &shape, int count) {
                return static_cast<int>(measure(shape, static_cast<std::uint32_t>(count)));
            },
            contiguous, strided};
}

struct Limits {
    Layout layout;
    ElementType type;
    int contiguous; // the largest measure that is serial
    int strided;
};

using enum Layout;
using enum ElementType;

constexpr Limits dotProductLimits[] = {
    {Strided, Float32, 5000, 2620},         {Strided, Float64, 3500, 2000},
    {ObjectPointers, Float32, 2400, 2400},  {ObjectPointers, Float64, 4200, 3300},
    {ElementPointers, Float32, 2400, 2400}, {ElementPointers, Float64, 2000, 2000},
};

constexpr Limits frobNormLimits[] = {
    {Strided, Float32, 2500, 1800},         {Strided, Float64, 1800, 1500},
    {ObjectPointers, Float32, 1600, 1600},  {ObjectPointers, Float64, 1600, 1600},
    {ElementPointers, Float32, 1500, 1500}, {ElementPointers, Float64, 2500, 2500},
};

template <class Table>
const Limits &findLimits(const Table &table, const ExportName &name) {
    for (const Limits &limits : table) {
        if (limits.layout == name.layout && limits.type == name.type) {
            return limits;
        }
    }
    throw std::logic_error("no limits for " + name.name);
}

std::uint32_t sizeAt(const Shape &shape, std::size_t index) {
    return static_cast<std::uint32_t>(shape.at(index));
}

// --- Results ---

// Of two NaN, which payload survives is left to the processor.
template <class E, class T>
void expectValue(const E &result, int row, int column, T value) {
    if (std::isnan(value)) {
        result.expectNan(row, column);
    } else {
        result.expect(row, column, value);
    }
}

constexpr int shortestSplit = 16;

bool isSplitVector(int length) {
    return length >= shortestSplit;
}

/// Of a matrix.
bool isSplitRow(int length) {
    return length >= shortestSplit || length == 8 || length == 12;
}

// The documented order of sums: ascending by rows, or by rows over partial sums.
template <class T, class Term>
T sumOf(int rows, int columns, bool isSplit, Term term) {
    if (!isSplit) {
        T sum = 0;
        for (int row = 0; row < rows; ++row) {
            for (int column = 0; column < columns; ++column) {
                sum = sum + term(row, column);
            }
        }
        return sum;
    }
    constexpr int width = 128 / sizeof(T);
    std::vector<T> partial(width);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            T &sum = partial[(column + row % 2 * width / 2) % width];
            sum = sum + term(row, column);
        }
    }
    for (int half = width / 2; half > 0; half /= 2) {
        for (int index = 0; index < half; ++index) {
            partial[index] = partial[index] + partial[index + half];
        }
    }
    return partial[0];
}

template <class T>
T norm(const Elements<T> &source, bool (*splits)(int)) {
    const bool isSplit = source.isContiguous() && splits(source.columns());
    return std::sqrt(sumOf<T>(source.rows(), source.columns(), isSplit, [&](int row, int column) {
        const T element = source(row, column);
        return element * element;
    }));
}

struct Norm {
    bool (*splits)(int length);

    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        expectValue(operands[1], 0, 0, norm(operands[0], splits));
    }
};

struct InnerProduct {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &a = operands[0];
        const Elements<T> &b = operands[1];
        const bool isSplit = a.isContiguous() && b.isContiguous() && isSplitVector(a.columns());
        const auto term = [&](int row, int column) { return a(row, column) * b(row, column); };
        expectValue(operands[2], 0, 0, sumOf<T>(1, a.columns(), isSplit, term));
    }
};

struct CrossOfTwo {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &a = operands[0];
        const Elements<T> &b = operands[1];
        for (int element = 0; element < 3; ++element) {
            const int next = (element + 1) % 3;
            const int last = (element + 2) % 3;
            const T first = a(0, next) * b(0, last);
            const T second = a(0, last) * b(0, next);
            expectValue(operands[2], 0, element, first - second);
        }
    }
};

struct SumOfDiagonal {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &source = operands[0];
        const auto term = [&](int, int index) { return source(index, index); };
        expectValue(operands[1], 0, 0, sumOf<T>(1, source.rows(), false, term));
    }
};

struct Transposed {
    template <class T>
    void operator()(std::span<const Elements<T>> operands) const {
        const Elements<T> &result = operands[1];
        for (int row = 0; row < result.rows(); ++row) {
            for (int column = 0; column < result.columns(); ++column) {
                result.expect(row, column, operands[0](column, row));
            }
        }
    }
};

Model modelOf(const ExportName &name) {
    Model model = {name, {}, {}, hasArray(name.code), usualOrder, {}, {}, nullptr};
    return model;
}

} // namespace

Model describeDotProduct(const ExportName &name) {
    Model model = modelOf(name);
    const bool secondIsArray = name.code == "vava";
    model.operands = {vectorOf("src1", model.hasCount, 0), vectorOf("src2", secondIsArray, 0), results(model.hasCount)};
    model.sizes = {{"len", 0, 2}};
    model.axes = &vectorSizes;
    model.formula = formula(InnerProduct());
    model.isExactForWholeNumbers = false;
    model.splitsContiguousSums = [](const Shape &shape) { return isSplitVector(shape[0]); };
    if (model.hasCount) {
        const Limits &limits = findLimits(dotProductLimits, name);
        model.parallel =
            ruleOf([=](const Shape &shape,
                       std::uint32_t count) { return (secondIsArray ? 2 * count : count + 1) * sizeAt(shape, 0); },
                   limits.contiguous + 1, limits.strided + 1);
    }
    return model;
}

Model describeCrossProduct(const ExportName &name) {
    using enum Check;
    Model model = modelOf(name);
    model.operands = {vectorOf("src1", name.code.starts_with("va"), Operand::three),
                      vectorOf("src2", name.code.ends_with("va"), Operand::three),
                      vectorOf("dst", model.hasCount, Operand::three, true)};
    model.axes = &noSizes;
    model.formula = formula(CrossOfTwo());
    if (name.code == "vav") {
        switch (name.layout) {
        case Layout::Strided:
            model.order = {Pointers, Strides, Count};
            break;
        case Layout::ObjectPointers:
            model.order = {Pointers, Strides, Offsets, Count};
            break;
        case Layout::ElementPointers:
            model.order = {Pointers, Strides, Count, Offsets};
            break;
        }
    }
    if (model.hasCount) {
        const bool bothAreArrays = name.code == "vava";
        const int firstParallel = bothAreArrays ? 3001 : 3000;
        model.parallel = ruleOf([=](const Shape &, std::uint32_t count) { return (bothAreArrays ? 3 : 2) * count; },
                                firstParallel, firstParallel);
    }
    return model;
}

Model describeL2Norm(const ExportName &name) {
    Model model = modelOf(name);
    model.operands = {vectorOf("src", model.hasCount, 0), results(model.hasCount)};
    model.sizes = {{"len", 0, 1}};
    model.axes = &vectorSizes;
    model.formula = formula(Norm{isSplitVector});
    model.isExactForWholeNumbers = false;
    model.splitsContiguousSums = [](const Shape &shape) { return isSplitVector(shape[0]); };
    if (model.hasCount) {
        model.parallel =
            ruleOf([](const Shape &shape, std::uint32_t count) { return sizeAt(shape, 0) * count; }, 1501, 1501);
    }
    return model;
}

Model describeFrobNorm(const ExportName &name) {
    Model model = modelOf(name);
    model.operands = {matrixOf("src", model.hasCount, 1, 0), results(model.hasCount)};
    model.sizes = {{"width", 0, 0}, {"height", 1, 0}};
    model.axes = &summedMatrixSizes;
    model.formula = formula(Norm{isSplitRow});
    model.isExactForWholeNumbers = false;
    model.splitsContiguousSums = [](const Shape &shape) { return isSplitRow(shape[0]); };
    if (model.hasCount) {
        const Limits &limits = findLimits(frobNormLimits, name);
        model.parallel =
            ruleOf([](const Shape &shape, std::uint32_t count) { return sizeAt(shape, 0) * sizeAt(shape, 1) * count; },
                   limits.contiguous + 1, limits.strided + 1);
    }
    return model;
}

Model describeTrace(const ExportName &name) {
    Model model = modelOf(name);
    model.operands = {matrixOf("src", model.hasCount, 0, 0), results(model.hasCount)};
    model.sizes = {{"widthHeight", 0, 0}};
    model.axes = &orders;
    model.formula = formula(SumOfDiagonal());
    if (model.hasCount) {
        model.parallel =
            ruleOf([](const Shape &shape, std::uint32_t count) { return sizeAt(shape, 0) * count; }, 3601, 3601);
    }
    return model;
}

Model describeTranspose(const ExportName &name) {
    Model model = modelOf(name);
    model.operands = {matrixOf("src", model.hasCount, 1, 0), matrixOf("dst", model.hasCount, 0, 1, true)};
    model.sizes = {{"width", 0, 0}, {"height", 1, 0}};
    model.axes = &matrixSizes;
    model.formula = formula(Transposed());
    return model;
}

} // namespace lxpm::test
