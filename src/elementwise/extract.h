// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Extract: the arguments of its members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout memory>
struct ExtractMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;

    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        DenseDestination<T>,
        std::conditional_t<operands[0].isMatrix(), MatrixSize, VectorLength>,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static constexpr bool hasShortWay = !isArray;
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

struct Extract {
    template <Code code, class Element, Layout layout>
    using Member = ExtractMember<code, Element, layout>;
};

} // namespace lxpm
