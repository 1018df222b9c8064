// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// L2Norm: the arguments of its members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct L2NormMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        ScalarResults<T>,
        VectorLength,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct L2Norm {
    template <Code code, class Element, Layout layout>
    using Member = L2NormMember<code, Element, layout>;
};

} // namespace lxpm
