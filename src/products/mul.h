// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Mul: the arguments of its members. Products of matrices and vectors have operands of different sizes, which stand
// behind each of them; products with constants are element-wise, and their sizes stand behind the destination.

#include "runtime/entry.h"

#include <type_traits>

namespace lxpm {

// The arguments of dst = src1 * src2: whether the inner dimensions agree is a check of its own.
template <Code operands, class T, Layout layout>
class ProductArguments {
    static constexpr bool isArray = operands.hasArray();
    static constexpr bool hasVector = operands[1].shape == Shape::Vector;
    static constexpr bool firstIsTransposed = operands[0].shape == Shape::Transposed;
    static constexpr bool secondIsTransposed = operands[1].shape == Shape::Transposed;

    // clang-format off
    using List = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        MatrixSize,
        Operand<operands[1], const T, layout>,
        std::conditional_t<hasVector, VectorLength, MatrixSize>,
        Operand<Kind{hasVector ? Shape::Vector : Shape::Matrix, isArray}, T, layout>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

public:
    using Signature = typename List::Signature;

    template <class... P>
    explicit constexpr ProductArguments(P... parameters) : list(parameters...) {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        return list.violates(check) || (check == Check::SizeMatch && inner() != secondInner());
    }

    constexpr const auto &firstOperand() const { return std::get<0>(list.parts); }
    constexpr const auto &secondOperand() const { return std::get<2>(list.parts); }
    constexpr const auto &destination() const { return std::get<4>(list.parts); }
    constexpr int count() const { return std::get<5>(list.parts).value; }

    // Whether all sizes, but the one column of a vector, are the same.
    constexpr bool isSquare() const {
        return ((rows() ^ inner()) | (secondInner() ^ inner()) | (hasVector ? 0 : columns() ^ inner())) == 0;
    }

    // The result's rows and columns, and the number of products that an element of it is the sum of.
    constexpr int rows() const { return firstIsTransposed ? firstSize().width() : firstSize().height(); }
    constexpr int inner() const { return firstIsTransposed ? firstSize().height() : firstSize().width(); }
    constexpr int columns() const {
        return hasVector ? 1 : secondIsTransposed ? secondSize().height() : secondSize().width();
    }

private:
    constexpr const auto &firstSize() const { return std::get<1>(list.parts); }
    constexpr const auto &secondSize() const { return std::get<3>(list.parts); }
    constexpr int secondInner() const {
        return hasVector || secondIsTransposed ? secondSize().width() : secondSize().height();
    }

    List list;
};

template <Code operands, class T, Layout memory>
struct ProductMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;

    using Arguments = ProductArguments<operands, T, layout>;

    static constexpr bool hasShortWay = !operands.hasArray();
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static constexpr bool hasDenseWay = hasShortWay && layout == Layout::Strided &&
                                        operands[0].shape == Shape::Matrix && operands[1].shape != Shape::Transposed;
    static bool isDense(const Arguments &arguments);
    static LxpStatus runDense(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

// dst = val * src
template <Code operands, class T, Layout memory>
struct ScalingMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;

    static constexpr bool isMatrix = operands[0].isMatrix();
    static constexpr bool isArray = operands.hasArray();
    static constexpr bool hasConstants = operands[1].array;

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        Operand<operands[1], const T, layout>,
        Operand<Kind{isMatrix ? Shape::Matrix : Shape::Vector, isArray}, T, layout>,
        std::conditional_t<isMatrix, MatrixSize, VectorLength>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static constexpr bool hasShortWay = !isArray;
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

struct Mul {
    template <Code code, class Element, Layout layout>
    using Member = std::conditional_t<code[1].isConstant(), ScalingMember<code, Element, layout>,
                                      ProductMember<code, Element, layout>>;
};

} // namespace lxpm
