// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Transpose: the arguments of its members. The sizes are those of the source.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct TransposeMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        MatrixSize,
        Operand<operands[0], T, layout>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct Transpose {
    template <Code code, class Element, Layout layout>
    using Member = TransposeMember<code, Element, layout>;
};

} // namespace lxpm
