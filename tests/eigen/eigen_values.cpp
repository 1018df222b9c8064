// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "eigen/eigen_values.h"

#include "eigen/naive.h"
#include "support/axes.h"
#include "support/elements.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>

namespace lxpm::test {

namespace {

// --- Operands ---

Operand matrixOf(std::string role, std::string pointer, bool isArray, bool isWritten) {
    Operand operand = {std::move(role), Kind::Matrix, isArray, isWritten, 0, 0};
    operand.pointer = std::move(pointer);
    return operand;
}

/// A vector for each object, without gaps in every layout.
Operand valuesOf(std::string role, bool isArray) {
    Operand operand = {std::move(role), Kind::Vector, isArray, true, Operand::one, 0};
    operand.isDense = true;
    return operand;
}

Operand bufferOf(std::function<int(const Shape &shape)> elements) {
    Operand operand = {"buffer", Kind::Scratch, false, true, Operand::one, Operand::one};
    operand.scratchElements = std::move(elements);
    return operand;
}

// --- Results ---

/// Of two NaN, which payload survives is left to the processor.
template <class T>
void expectValue(const Elements<T> &result, int row, int column, T value) {
    if (std::isnan(value)) {
        result.expectNan(row, column);
    } else {
        result.expect(row, column, value);
    }
}

template <class T>
void expectMatrix(const Elements<T> &result, const SquareMatrix<T> &expected) {
    for (int row = 0; row < expected.order(); ++row) {
        for (int column = 0; column < expected.order(); ++column) {
            expectValue(result, row, column, expected(row, column));
        }
    }
}

template <class T>
void expectAnyMatrix(const Elements<T> &result) {
    for (int row = 0; row < result.rows(); ++row) {
        for (int column = 0; column < result.columns(); ++column) {
            result.expectAnything(row, column);
        }
    }
}

template <class T>
SquareMatrix<T> matrixFrom(const Elements<T> &source) {
    SquareMatrix<T> matrix(source.rows());
    for (int row = 0; row < source.rows(); ++row) {
        for (int column = 0; column < source.columns(); ++column) {
            matrix(row, column) = source(row, column);
        }
    }
    return matrix;
}

/// Operands: source, buffer, vectors if they are wanted, values.
struct Symmetric {
    bool wantsVectors;

    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        const auto solution = NaiveSymmetric<T>::solve(matrixFrom(operands[0]), wantsVectors);
        if (!solution.isWritten) {
            return solution.status;
        }
        const Elements<T> &values = operands.back();
        for (int i = 0; i < values.columns(); ++i) {
            if (solution.status != lxpStatusConvergeErr || solution.isFound[i]) {
                expectValue(values, 0, i, solution.values[i]);
            } else {
                values.expectAnything(0, i);
            }
        }
        if (wantsVectors) {
            if (solution.status == lxpStatusConvergeErr) {
                expectAnyMatrix(operands[2]);
            } else {
                expectMatrix(operands[2], solution.vectors);
            }
        }
        return solution.status;
    }
};

/// Operands: source, the vectors that are wanted, real parts, imaginary parts, buffer.
struct General {
    bool wantsRight;
    bool wantsLeft;

    template <class T>
    LxpStatus operator()(std::span<const Elements<T>> operands) const {
        const auto solution = NaiveGeneral<T>::solve(matrixFrom(operands[0]), wantsRight || wantsLeft);
        std::size_t at = 1;
        if (solution.status == lxpStatusOk) {
            if (wantsRight) {
                expectMatrix(operands[at++], solution.right);
            }
            if (wantsLeft) {
                expectMatrix(operands[at++], solution.left);
            }
        } else {
            at += wantsRight + wantsLeft;
        }
        for (int i = solution.firstFound; i < operands[0].rows(); ++i) {
            expectValue(operands[at], 0, i, solution.re[i]);
            expectValue(operands[at + 1], 0, i, solution.im[i]);
        }
        return solution.status;
    }
};

/// What both problems have in common. The measure is a signed number of 32 bits that wraps.
Model modelOf(const ExportName &name, int firstParallel) {
    using enum Check;
    Model model = {name, {}, {}, name.code == "ma", {Pointers, Sizes, Count, Offsets, Strides}, {}, {}, &eigenOrders};
    model.destinationMayBeSource = false;
    model.isExactForWholeNumbers = false;
    model.mayUnderflow = true;
    if (model.hasCount) {
        model.parallel = {[](const Shape &shape, int count) {
                              const auto order = static_cast<std::uint32_t>(shape[0]);
                              return static_cast<int>(order * (order + 1) * static_cast<std::uint32_t>(count));
                          },
                          firstParallel, firstParallel};
    }
    return model;
}

} // namespace

Model describeEigenValuesSym(const ExportName &name) {
    Model model = modelOf(name, 1001);
    const bool wantsVectors = name.operation == "EigenValuesVectorsSym";
    Operand buffer = bufferOf([](const Shape &shape) { return shape[0] * shape[0]; });
    buffer.hasScratchPerThread = true;
    model.operands = {matrixOf("src", "src", model.hasCount, false), buffer};
    if (wantsVectors) {
        model.operands.push_back(matrixOf("dst", "dstVectors", model.hasCount, true));
    }
    model.operands.push_back(valuesOf("dstValues", model.hasCount));
    model.sizes = {{"widthHeight", 0, static_cast<int>(model.operands.size()) - 1}};
    model.formula = formula(Symmetric{wantsVectors});
    return model;
}

Model describeEigenValues(const ExportName &name) {
    Model model = modelOf(name, 251);
    const bool wantsBoth = name.operation == "EigenValuesVectors";
    const bool wantsRight = wantsBoth || name.operation == "EigenValuesVectorsRight";
    const bool wantsLeft = wantsBoth || name.operation == "EigenValuesVectorsLeft";
    model.operands = {matrixOf("src", "src", model.hasCount, false)};
    if (wantsBoth) {
        model.operands.push_back(matrixOf("dstRight", "dstVectorsRight", model.hasCount, true));
        model.operands.push_back(matrixOf("dstLeft", "dstVectorsLeft", model.hasCount, true));
    } else if (wantsRight || wantsLeft) {
        model.operands.push_back(matrixOf("dst", "dstVectors", model.hasCount, true));
    }
    model.operands.push_back(valuesOf("dstValuesRe", model.hasCount));
    model.operands.push_back(valuesOf("dstValuesIm", model.hasCount));
    model.sizes = {{"widthHeight", 0, static_cast<int>(model.operands.size()) - 1}};
    const int matrices = wantsRight || wantsLeft ? 3 : 1;
    Operand buffer = bufferOf([=](const Shape &shape) { return shape[0] * (matrices * shape[0] + 5); });
    buffer.standsLast = true;
    model.operands.push_back(buffer);
    model.formula = formula(General{wantsRight, wantsLeft});
    return model;
}

} // namespace lxpm::test
