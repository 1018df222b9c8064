// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Products with constants, element by element.

#include "runtime/nest.h"

#include <lxpm/types.h>

namespace lxpm {

// The function of elements.
struct Times {
    template <class Number>
    Number operator()(Number element, Number constant) const {
        return constant * element;
    }
};

// dst = value * src
template <class T>
LxpStatus multiplyByValue(T value, bool parallel, int count, int rows, int columns, const MapOperands<T, 1> &operands);

// dst = constant * src, with a constant for each object as the second source.
template <class T>
LxpStatus multiplyByConstants(bool parallel, int count, int rows, int columns, const MapOperands<T, 2> &operands);

extern template LxpStatus multiplyByValue(float, bool, int, int, int, const MapOperands<float, 1> &);
extern template LxpStatus multiplyByValue(double, bool, int, int, int, const MapOperands<double, 1> &);
extern template LxpStatus multiplyByConstants(bool, int, int, int, const MapOperands<float, 2> &);
extern template LxpStatus multiplyByConstants(bool, int, int, int, const MapOperands<double, 2> &);

} // namespace lxpm
