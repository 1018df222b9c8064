// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// EigenValues, EigenValuesVectors, EigenValuesVectorsRight and EigenValuesVectorsLeft: the arguments of their members.
// The functions that tell the size of their scratch belong to no family.

#include "eigen/arguments.h"
#include "runtime/entry.h"

#include <type_traits>

namespace lxpm {

template <bool hasRight, bool hasLeft, Code operands, class T, Layout memory>
struct GeneralMember {
    using Element = T;
    static constexpr Code code = operands;
    static constexpr Layout layout = memory;
    static constexpr bool isArray = operands.hasArray();

    // clang-format off
    using Arguments = lxpm::Arguments<
        Operand<operands[0], const T, layout>,
        std::conditional_t<hasRight, Operand<operands[0], T, layout>, NoDestination<T>>,
        std::conditional_t<hasLeft, Operand<operands[0], T, layout>, NoDestination<T>>,
        PlainMemory<T>, // real parts
        PlainMemory<T>, // imaginary parts
        MatrixOrder,
        std::conditional_t<isArray, Count, OneObject>,
        PlainMemory<T>>; // scratch
    // clang-format on

    static LxpStatus run(const Arguments &arguments);
};

struct EigenValues {
    template <Code code, class Element, Layout layout>
    using Member = GeneralMember<false, false, code, Element, layout>;
};

struct EigenValuesVectors {
    template <Code code, class Element, Layout layout>
    using Member = GeneralMember<true, true, code, Element, layout>;
};

struct EigenValuesVectorsRight {
    template <Code code, class Element, Layout layout>
    using Member = GeneralMember<true, false, code, Element, layout>;
};

struct EigenValuesVectorsLeft {
    template <Code code, class Element, Layout layout>
    using Member = GeneralMember<false, true, code, Element, layout>;
};

namespace implementation {

LxpStatus lxpmEigenValuesGetBufSize_32f(int widthHeight, int *size);
LxpStatus lxpmEigenValuesGetBufSize_64f(int widthHeight, int *size);
LxpStatus lxpmEigenValuesVectorsGetBufSize_32f(int widthHeight, int *size);
LxpStatus lxpmEigenValuesVectorsGetBufSize_64f(int widthHeight, int *size);

} // namespace implementation

} // namespace lxpm
