// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// CholeskyDecomp, CholeskyBackSubst: the arguments of their members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct CholeskyDecompMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        Operand<operands[0], T, layout>,
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

template <Code operands, class T, Layout memory>
struct CholeskyBackSubstMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        Operand<operands[1], const T, layout>,
        Operand<operands[1], T, layout>,
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct CholeskyDecomp {
    template <Code code, class Element, Layout layout>
    using Member = CholeskyDecompMember<code, Element, layout>;
};

struct CholeskyBackSubst {
    template <Code code, class Element, Layout layout>
    using Member = CholeskyBackSubstMember<code, Element, layout>;
};

} // namespace lxpm
