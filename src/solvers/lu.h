// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// LUDecomp, LUBackSubst: the arguments of their members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct LUDecompMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        PlainArray<int>,
        Operand<operands[0], T, layout>,
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

template <Code operands, class T, Layout memory>
struct LUBackSubstMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        PlainArray<const int>,
        Operand<operands[1], const T, layout>,
        Operand<operands[1], T, layout>,
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct LUDecomp {
    template <Code code, class Element, Layout layout>
    using Member = LUDecompMember<code, Element, layout>;
};

struct LUBackSubst {
    template <Code code, class Element, Layout layout>
    using Member = LUBackSubstMember<code, Element, layout>;
};

} // namespace lxpm
