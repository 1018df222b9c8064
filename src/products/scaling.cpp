// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "products/scaling.h"

#include "runtime/lanes.h"
#include "runtime/map.h"

namespace lxpm {

namespace {

template <class T>
struct TimesValue {
    T value;

    T operator()(T element) const { return value * element; }
    template <int N>
    Lanes<T, N> operator()(Lanes<T, N> elements) const {
        return Lanes<T, N>::splat(value) * elements;
    }
};

} // namespace

template <class T>
LxpStatus multiplyByValue(T value, bool parallel, int count, int rows, int columns, const MapOperands<T, 1> &operands) {
    return mapElements<T, TimesValue<T>, 1>({value}, parallel, count, rows, columns, operands);
}

template <class T>
LxpStatus multiplyByConstants(bool parallel, int count, int rows, int columns, const MapOperands<T, 2> &operands) {
    return mapElements<T, Times, 2>({}, parallel, count, rows, columns, operands);
}

template LxpStatus multiplyByValue(float, bool, int, int, int, const MapOperands<float, 1> &);
template LxpStatus multiplyByValue(double, bool, int, int, int, const MapOperands<double, 1> &);
template LxpStatus multiplyByConstants(bool, int, int, int, const MapOperands<float, 2> &);
template LxpStatus multiplyByConstants(bool, int, int, int, const MapOperands<double, 2> &);

} // namespace lxpm
