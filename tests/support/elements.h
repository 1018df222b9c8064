// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#ifndef LXPM_TESTS_SUPPORT_ELEMENTS_H
#define LXPM_TESTS_SUPPORT_ELEMENTS_H

#include "support/placed_operand.h"

#include <cstring>

namespace lxpm::test {

/// One object of an operand as a formula sees it: it reads what the call will find, and says what the call should
/// leave. Indices are logical: a transposed operand is read transposed, a vector has one row, a constant one element.
template <class T>
class Elements {
public:
    Elements(PlacedOperand &operand, int object) : operand_(&operand), object_(object) {}

    int rows() const { return operand_->rows(); }
    int columns() const { return operand_->columns(); }

    /// Whether strides say that the elements of a row touch.
    bool isContiguous() const {
        return hasElementStride(operand_->model(), operand_->form()) && operand_->isContiguous();
    }

    T operator()(int row, int column) const {
        T value;
        std::memcpy(&value, operand_->element(object_, row, column), sizeof value);
        return value;
    }

    void expect(int row, int column, T value) const {
        std::memcpy(operand_->expectedElement(object_, row, column), &value, sizeof value);
    }

    /// Anything will do.
    void expectAnything(int row, int column) const { operand_->expectAnything(object_, row, column); }
    /// Of indices.
    int index(int position) const {
        int value;
        std::memcpy(&value, operand_->element(object_, 0, position), sizeof value);
        return value;
    }

    void expectIndex(int position, int value) const {
        std::memcpy(operand_->expectedElement(object_, 0, position), &value, sizeof value);
    }

    /// Any NaN will do: which of two payloads survives an addition is left to the processor.
    void expectNan(int row, int column) const { operand_->expectAnyNan(object_, row, column); }

private:
    PlacedOperand *operand_;
    int object_;
};

} // namespace lxpm::test

#endif
