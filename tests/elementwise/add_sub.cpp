// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/add_sub.h"

#include "support/axes.h"
#include "support/elements.h"

#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <stdexcept>
#include <string_view>
#include <utility>

namespace lxpm::test {

namespace {

// --- Operands ---

struct CodeLetter {
    Kind kind;
    bool isArray;
};

Kind kindFromLetter(char letter) {
    switch (letter) {
    case 'm':
        return Kind::Matrix;
    case 't':
        return Kind::Transposed;
    case 'v':
        return Kind::Vector;
    case 'c':
        return Kind::Constant;
    default:
        throw std::logic_error(std::string("no operand has the code ") + letter);
    }
}

std::vector<CodeLetter> parse(const std::string &code) {
    std::vector<CodeLetter> letters;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const bool isArray = at + 1 < code.size() && code[at + 1] == 'a';
        letters.push_back({kindFromLetter(code[at]), isArray});
        at += isArray;
    }
    return letters;
}

Operand makeOperand(std::string role, CodeLetter letter, bool isWritten) {
    switch (letter.kind) {
    case Kind::Matrix:
    case Kind::Transposed:
        return {std::move(role), letter.kind, letter.isArray, isWritten, 1, 0}; // sizes are width, height
    case Kind::Vector:
        return {std::move(role), letter.kind, letter.isArray, isWritten, Operand::one, 0}; // sizes are len
    case Kind::Constant:
    case Kind::Results:
    case Kind::Indices:
    case Kind::Scratch:
        break;
    }
    return {std::move(role), letter.kind, letter.isArray, isWritten, Operand::one, Operand::one};
}

std::string roleOf(CodeLetter letter, CodeLetter other, const char *numbered) {
    if (letter.kind == Kind::Constant) {
        return letter.isArray ? "vals" : "val";
    }
    return other.kind == Kind::Constant ? "src" : numbered;
}

// --- Order of checks ---

bool isOneOf(const std::string &code, std::initializer_list<const char *> codes) {
    for (const char *candidate : codes) {
        if (code == candidate) {
            return true;
        }
    }
    return false;
}

std::vector<Check> orderOfArrays(const ExportName &name) {
    using enum Check;
    const bool isStrided = name.layout == Layout::Strided;
    if (name.code == "vav") {
        switch (name.layout) {
        case Layout::Strided:
            return {Pointers, Sizes, Strides, Count};
        case Layout::ObjectPointers:
            return {Pointers, Sizes, Strides, Offsets, Count};
        case Layout::ElementPointers:
            return {Pointers, Sizes, Strides, Count, Offsets};
        }
    }
    if (isStrided && isOneOf(name.code, {"mam", "mma"})) {
        return {Pointers, Count, Strides, Sizes};
    }
    if (isStrided) {
        return {Pointers, Count, Sizes, Strides};
    }
    return {Pointers, Count, Sizes, Strides, Offsets};
}

std::vector<Check> orderOfSingles(const ExportName &name) {
    using enum Check;
    if (name.layout == Layout::ElementPointers) {
        return {Pointers, Sizes, Offsets};
    }
    return {Pointers, Sizes, Strides};
}

// --- Serial or parallel ---

// Products wrap: they are made without a sign and read with one.
int asSigned(std::uint32_t measure) {
    return static_cast<int>(measure);
}

struct Measure {
    std::initializer_list<const char *> codes;
    int (*of)(std::uint32_t perObject, std::uint32_t count);
};

// Elements read and written; `n` is width * height, or len.
const Measure measures[] = {
    {{"mam", "tam", "mat", "tat", "mma", "mta", "tma", "tta", "vav", "vva"},
     [](std::uint32_t n, std::uint32_t count) { return asSigned(n * (2 * count + 1)); }},
    {{"mama", "tama", "tata", "mata", "vava"},
     [](std::uint32_t n, std::uint32_t count) { return asSigned(3 * count * n); }},
    {{"vca", "cav"}, [](std::uint32_t n, std::uint32_t count) { return asSigned(n * (count + 1) + count); }},
    {{"vac"}, [](std::uint32_t n, std::uint32_t count) { return asSigned(2 * n * count + 1); }},
    {{"cva"}, [](std::uint32_t n, std::uint32_t count) { return asSigned(n * (count + 1) + 1); }},
    {{"vaca", "cava"}, [](std::uint32_t n, std::uint32_t count) { return asSigned(2 * n * count + count); }},
};

struct Limits {
    Layout layout;
    ElementType type;
    int contiguous;
    int strided;
};

using enum Layout;
using enum ElementType;

// The first measure that is parallel. "Serial when W < 3000" starts at 3000, "parallel when W > 4800" at 4801.
constexpr Limits matrixLimits[] = {
    {Strided, Float32, 3000, 2000},         {Strided, Float64, 2000, 2000},
    {ObjectPointers, Float32, 2000, 2000},  {ObjectPointers, Float64, 2000, 2000},
    {ElementPointers, Float32, 2000, 2000}, {ElementPointers, Float64, 2000, 2000},
};
constexpr Limits vectorLimits[] = {
    {Strided, Float32, 4801, 4801},         {Strided, Float64, 1401, 1401},
    {ObjectPointers, Float32, 2501, 2501},  {ObjectPointers, Float64, 2501, 2501},
    {ElementPointers, Float32, 1501, 1501}, {ElementPointers, Float64, 1501, 1501},
};

ParallelRule parallelRule(const ExportName &name, bool isMatrix) {
    const auto *measure = std::begin(measures);
    while (measure != std::end(measures) && !isOneOf(name.code, measure->codes)) {
        ++measure;
    }
    if (measure == std::end(measures)) {
        throw std::logic_error("no measure for " + name.name);
    }
    const auto measureOf = [of = measure->of](const Shape &shape, int count) {
        std::uint32_t perObject = 1;
        for (const int size : shape) {
            perObject *= static_cast<std::uint32_t>(size);
        }
        return of(perObject, static_cast<std::uint32_t>(count));
    };
    for (const Limits &limits : isMatrix ? matrixLimits : vectorLimits) {
        if (limits.layout == name.layout && limits.type == name.type) {
            return {measureOf, limits.contiguous, limits.strided};
        }
    }
    throw std::logic_error("no limits for " + name.name);
}

// --- Results ---

template <class Operation>
Formula elementwise(std::size_t first, std::size_t second, Operation operation) {
    return formula([=](auto operands) {
        const auto &a = operands[first];
        const auto &b = operands[second];
        const auto &result = operands.back();
        for (int row = 0; row < result.rows(); ++row) {
            for (int column = 0; column < result.columns(); ++column) {
                const auto left = a(row, column);
                const auto right = b(row, column);
                if (std::isnan(left) && std::isnan(right)) {
                    result.expectNan(row, column);
                } else {
                    result.expect(row, column, operation(left, right));
                }
            }
        }
    });
}

} // namespace

Model describeAddSub(const ExportName &name) {
    const std::vector<CodeLetter> letters = parse(name.code);
    const CodeLetter first = letters.at(0);
    const CodeLetter second = letters.at(1);
    const bool isMatrix = first.kind == Kind::Matrix || first.kind == Kind::Transposed;
    const bool hasArray = first.isArray || second.isArray;

    Model model = {name, {}, {}, hasArray, {}, {}, {}, nullptr};
    model.operands = {
        makeOperand(roleOf(first, second, "src1"), first, false),
        makeOperand(roleOf(second, first, "src2"), second, false),
        makeOperand("dst", {isMatrix ? Kind::Matrix : Kind::Vector, hasArray}, true),
    };
    std::size_t firstAt = 0;
    std::size_t secondAt = 1;
    if (name.code == "cav") {
        // The one code whose parameters do not follow its name: the vector stands before the constants.
        std::swap(model.operands[0], model.operands[1]);
        std::swap(firstAt, secondAt);
    }
    model.sizes = isMatrix ? std::vector<SizeParameter>{{"width", 0, 2}, {"height", 1, 2}}
                           : std::vector<SizeParameter>{{"len", 0, 2}};
    model.axes = isMatrix ? &matrixSizes : &vectorSizes;
    model.order = hasArray ? orderOfArrays(name) : orderOfSingles(name);
    if (hasArray) {
        model.parallel = parallelRule(name, isMatrix);
    }
    model.formula = name.operation == "Add" ? elementwise(firstAt, secondAt, [](auto a, auto b) { return a + b; })
                                            : elementwise(firstAt, secondAt, [](auto a, auto b) { return a - b; });
    return model;
}

} // namespace lxpm::test
