// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Copy: the arguments of its members. The two operands have layouts of their own.

#include "runtime/entry.h"

namespace lxpm {

// An operand of Copy. The object stride of element pointers is looked at late, and only where there is a second object.
template <Kind kind, class Element, Layout layout>
struct CopyOperand : Operand<kind, Element, layout> {
    using Base = Operand<kind, Element, layout>;
    using Base::Base;

    constexpr bool violates(Check check) const {
        constexpr bool isLate = layout == Layout::ElementPointers;
        switch (check) {
        case Check::Strides:
            return !isLate && Base::violates(Check::Strides);
        case Check::LateStrides:
            return isLate && Base::violates(Check::Strides);
        default:
            return Base::violates(check);
        }
    }
};

template <Code operands, class T, Layout from, Layout to>
struct CopyMember {
    using Element = T;

    // clang-format off
    using Arguments = lxpm::Arguments<
        CopyOperand<operands[0], const T, from>,
        CopyOperand<operands[0], T, to>,
        std::conditional_t<operands[0].isMatrix(), MatrixSize, VectorLength>,
        Count>;
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

template <Layout to>
struct CopyTo {
    template <Code code, class Element, Layout layout>
    using Member = CopyMember<code, Element, layout, to>;
};

using CopyToS = CopyTo<Layout::Strided>;
using CopyToL = CopyTo<Layout::ObjectPointers>;
using CopyToP = CopyTo<Layout::ElementPointers>;

} // namespace lxpm
