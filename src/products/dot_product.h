// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// DotProduct: the arguments of its members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct DotProductMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        Operand<operands[1], const T, layout>,
        ScalarResults<T>,
        VectorLength,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct DotProduct {
    template <Code code, class Element, Layout layout>
    using Member = DotProductMember<code, Element, layout>;
};

} // namespace lxpm
