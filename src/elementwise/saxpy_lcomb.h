// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Saxpy and LComb: what they compute, and the arguments of their members. A constant stands behind each source that it
// multiplies.

#include "runtime/entry.h"
#include "runtime/lanes.h"

namespace lxpm {

template <class Op, Code operands, class T, Layout memory>
struct CombinationMember {
    using Operation = Op;
    using Element = T;
    static constexpr Layout layout = memory;

    static constexpr bool isArray = operands.hasArray();
    static constexpr Kind first = operands[0];
    static constexpr Kind second = operands[1];

    template <Kind kind>
    using Source = Operand<kind, const T, layout>;
    using Constant = Operand<Kind{Shape::Constant}, const T, layout>;
    using Destination = Operand<Kind{Shape::Vector, isArray}, T, layout>;
    using Objects = std::conditional_t<isArray, Count, OneObject>;

    using Arguments = std::conditional_t<
        Op::constants == 1,
        lxpm::Arguments<Source<first>, Constant, Source<second>, Destination, VectorLength, Objects>,
        lxpm::Arguments<Source<first>, Constant, Source<second>, Constant, Destination, VectorLength, Objects>>;

    static constexpr bool hasShortWay = !isArray;
    static bool isShort(const Arguments &arguments);
    static void runShort(const Arguments &arguments);
    static LxpStatus run(const Arguments &arguments);
};

struct Saxpy {
    static constexpr int constants = 1;

    template <Code code, class Element, Layout layout>
    using Member = CombinationMember<Saxpy, code, Element, layout>;
};

struct LComb {
    static constexpr int constants = 2;

    template <Code code, class Element, Layout layout>
    using Member = CombinationMember<LComb, code, Element, layout>;
};

} // namespace lxpm
