// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// CrossProduct: the arguments of its members. All vectors have three elements.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct CrossProductMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        Operand<operands[1], const T, layout>,
        Operand<Kind{Shape::Vector, isArray}, T, layout>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct CrossProduct {
    template <Code code, class Element, Layout layout>
    using Member = CrossProductMember<code, Element, layout>;
};

} // namespace lxpm
