// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Trace: the arguments of its members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct TraceMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        MatrixOrder,
        ScalarResults<T>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct Trace {
    template <Code code, class Element, Layout layout>
    using Member = TraceMember<code, Element, layout>;
};

} // namespace lxpm
