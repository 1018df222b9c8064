// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// QRDecomp, QRBackSubst: the arguments of their members.

#include "runtime/entry.h"

namespace lxpm {

// A matrix that is square or tall.
struct TallMatrixSize : MatrixSize {
    using MatrixSize::MatrixSize;

    constexpr bool violates(Check check) const {
        return MatrixSize::violates(check) || (check == Check::SizeMatch && width() > height());
    }
};

template <Code operands, class T, Layout memory>
struct QRDecompMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        PlainArray<T>,
        Operand<operands[0], T, layout>,
        TallMatrixSize,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

template <Code operands, class T, Layout memory>
struct QRBackSubstMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        PlainArray<T>,
        Operand<operands[1], const T, layout>,
        Operand<operands[1], T, layout>,
        TallMatrixSize,
        std::conditional_t<isArray, Count, OneObject>>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct QRDecomp {
    template <Code code, class Element, Layout layout>
    using Member = QRDecompMember<code, Element, layout>;
};

struct QRBackSubst {
    template <Code code, class Element, Layout layout>
    using Member = QRBackSubstMember<code, Element, layout>;
};

} // namespace lxpm
