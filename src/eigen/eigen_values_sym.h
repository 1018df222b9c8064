// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// EigenValuesSym and EigenValuesVectorsSym: the arguments of their members.

#include "eigen/arguments.h"
#include "runtime/entry.h"

#include <type_traits>

namespace lxpm {

template <bool hasVectors, Code operands, class T, Layout memory>
struct SymmetricMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        PlainMemory<T>, // scratch
        std::conditional_t<hasVectors, Operand<operands[0], T, layout>, NoDestination<T>>,
        PlainMemory<T>, // values
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct EigenValuesSym {
    template <Code code, class Element, Layout layout>
    using Member = SymmetricMember<false, code, Element, layout>;
};

struct EigenValuesVectorsSym {
    template <Code code, class Element, Layout layout>
    using Member = SymmetricMember<true, code, Element, layout>;
};

} // namespace lxpm
