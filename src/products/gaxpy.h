// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Gaxpy: the arguments of its members, dst = src1 * src2 + src3.

#include "runtime/entry.h"

#include <type_traits>

namespace lxpm {

// The third operand has no letter of its own in mv and mva: it is an array where the second one is, but in mvav.
template <Code operands, class T, Layout layout>
class GaxpyArguments {
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using List = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        MatrixSize,
        Operand<operands[1], const T, layout>,
        VectorLength,
        Operand<Kind{Shape::Vector, operands == "mva"}, const T, layout>,
        VectorLength,
        Operand<Kind{Shape::Vector, isArray}, T, layout>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

public:
    using Signature = typename List::Signature;

    template <class... P>
    explicit constexpr GaxpyArguments(P... parameters) : list(parameters...) {}

    [[gnu::always_inline]] constexpr bool violates(Check check) const {
        return list.violates(check) || (check == Check::SizeMatch && (inner() != std::get<3>(list.parts).width() ||
                                                                      rows() != std::get<5>(list.parts).width()));
    }

    constexpr const auto &matrix() const { return std::get<0>(list.parts); }
    constexpr const auto &vector() const { return std::get<2>(list.parts); }
    constexpr const auto &addend() const { return std::get<4>(list.parts); }
    constexpr const auto &destination() const { return std::get<6>(list.parts); }
    constexpr int count() const { return std::get<7>(list.parts).value; }

    constexpr int rows() const { return std::get<1>(list.parts).height(); }
    constexpr int inner() const { return std::get<1>(list.parts).width(); }

private:
    List list;
};

template <Code operands, class T, Layout memory>
struct GaxpyMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;

    using Arguments = GaxpyArguments<operands, T, layout>;

    static constexpr bool hasShortWay = !operands.hasArray();
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

struct Gaxpy {
    template <Code code, class Element, Layout layout>
    using Member = GaxpyMember<code, Element, layout>;
};

} // namespace lxpm
