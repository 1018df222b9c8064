// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Add and Sub: what they compute, and the arguments of their members.

#include "runtime/entry.h"

namespace lxpm {

template <class Op, Code operands, class T, Layout memory>
struct SumMember {
    using Operation = Op;
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;

    // An array of constants and one vector take the vector first, as the same operands do in the other order.
    static constexpr bool isReversed = operands == "cav";

    static constexpr bool isMatrix = operands[0].isMatrix();
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[isReversed ? 1 : 0], const T, layout>,
        Operand<operands[isReversed ? 0 : 1], const T, layout>,
        Operand<Kind{isMatrix ? Shape::Matrix : Shape::Vector, isArray}, T, layout>,
        std::conditional_t<isMatrix, MatrixSize, VectorLength>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static constexpr bool hasShortWay = !isArray;
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static constexpr bool hasDenseWay = hasShortWay && layout == Layout::Strided &&
                                        operands[0].shape != Shape::Transposed &&
                                        operands[1].shape != Shape::Transposed;
    static bool isDense(const Arguments &arguments);
    static LxpStatus runDense(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

struct Add {
    template <Code code, class Element, Layout layout>
    using Member = SumMember<Add, code, Element, layout>;

    template <class Number>
    Number operator()(Number a, Number b) const {
        return a + b;
    }
};

struct Sub {
    template <Code code, class Element, Layout layout>
    using Member = SumMember<Sub, code, Element, layout>;

    template <class Number>
    Number operator()(Number a, Number b) const {
        return a - b;
    }
};

} // namespace lxpm
