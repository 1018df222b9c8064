// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "elementwise/moving.h"

#include "support/axes.h"
#include "support/elements.h"

#include <cstdint>
#include <stdexcept>
#include <utility>

namespace lxpm::test {

namespace {

constexpr int firstParallelMeasure = 60000;

Kind kindOf(const std::string &code) {
    switch (code.front()) {
    case 'm':
        return Kind::Matrix;
    case 't':
        return Kind::Transposed;
    case 'v':
        return Kind::Vector;
    default:
        throw std::logic_error("no object has the code " + code);
    }
}

Operand makeOperand(const char *role, Kind kind, bool isArray, bool isWritten) {
    return {role, kind, isArray, isWritten, kind == Kind::Vector ? Operand::one : 1, 0};
}

/// Without order of checks.
Model makeModel(const ExportName &name, Kind kind, bool hasCount, std::vector<Operand> operands) {
    const bool isVector = kind == Kind::Vector;
    const int last = static_cast<int>(operands.size()) - 1;
    Model model = {name, std::move(operands), {}, hasCount, {}, {}, {}, nullptr};
    model.sizes = isVector ? std::vector<SizeParameter>{{"len", 0, last}}
                           : std::vector<SizeParameter>{{"width", 0, last}, {"height", 1, last}};
    model.axes = isVector ? &vectorSizes : &matrixSizes;
    return model;
}

Formula copying() {
    return formula([](auto operands) {
        const auto &from = operands.front();
        const auto &to = operands.back();
        for (int row = 0; row < to.rows(); ++row) {
            for (int column = 0; column < to.columns(); ++column) {
                to.expect(row, column, from(row, column));
            }
        }
    });
}

Formula identity() {
    return formula([](auto operands) {
        const auto &to = operands.back();
        for (int row = 0; row < to.rows(); ++row) {
            for (int column = 0; column < to.columns(); ++column) {
                to.expect(row, column, row == column ? 1 : 0);
            }
        }
    });
}

Layout layoutOfDestination(const std::string &operation) {
    switch (operation.back()) {
    case 'S':
        return Layout::Strided;
    case 'L':
        return Layout::ObjectPointers;
    default:
        return Layout::ElementPointers;
    }
}

} // namespace

ParallelRule movedElements(std::vector<Operand> operands) {
    const auto measure = [operands = std::move(operands)](const Shape &shape, int count) {
        std::uint32_t moved = 0;
        for (const Operand &operand : operands) {
            if (operand.kind != Kind::Constant) {
                const std::uint32_t objects = operand.isArray ? count : 1;
                moved += objects * operand.rowsOf(shape) * operand.columnsOf(shape);
            }
        }
        return static_cast<int>(moved);
    };
    return {measure, firstParallelMeasure, firstParallelMeasure};
}

Model describeCopy(const ExportName &name) {
    using enum Check;
    const Kind kind = kindOf(name.code);
    Model model =
        makeModel(name, kind, true, {makeOperand("src", kind, true, false), makeOperand("dst", kind, true, true)});
    model.operands.back().ownLayout = layoutOfDestination(name.operation);
    for (Operand &operand : model.operands) {
        operand.isObjStrideLate = formOf(operand, name.layout) == Form::ElementPointers;
    }
    model.order = {Pointers, Sizes, Count, Strides, Offsets, LateStrides};
    model.parallel = movedElements(model.operands);
    model.formula = copying();
    return model;
}

Model describeExtract(const ExportName &name) {
    using enum Check;
    const Kind kind = kindOf(name.code);
    const bool isArray = name.code.size() == 2;
    const bool isStrided = name.layout == Layout::Strided;
    Model model = makeModel(name, kind, isArray,
                            {makeOperand("src", kind, isArray, false),
                             makeOperand("dst", kind == Kind::Vector ? Kind::Vector : Kind::Matrix, isArray, true)});
    model.operands.back().isDense = true;
    model.formula = copying();
    if (isArray) {
        model.order = isStrided ? std::vector<Check>{Pointers, Sizes, Count, Strides}
                                : std::vector<Check>{Pointers, Sizes, Count, Offsets, Strides};
        model.parallel = movedElements(model.operands);
    } else {
        model.order =
            isStrided ? std::vector<Check>{Pointers, Sizes, Strides} : std::vector<Check>{Sizes, Pointers, Offsets};
    }
    return model;
}

Model describeLoadIdentity(const ExportName &name) {
    using enum Check;
    Model model = makeModel(name, Kind::Matrix, true, {makeOperand("dst", Kind::Matrix, true, true)});
    model.order = {Pointers, Sizes, Count, Strides, Offsets};
    model.parallel = movedElements(model.operands);
    model.formula = identity();
    return model;
}

} // namespace lxpm::test
