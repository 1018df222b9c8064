// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// LoadIdentity: the arguments of its members.

#include "runtime/entry.h"

namespace lxpm {

template <Code operands, class T, Layout layout>
struct LoadIdentityMember {
    using Element = T;
    using Arguments = lxpm::Arguments<Operand<operands[0], T, layout>, MatrixSize, Count>;

    static LxpStatus run(const Arguments &arguments);
};

struct LoadIdentity {
    template <Code code, class Element, Layout layout>
    using Member = LoadIdentityMember<code, Element, layout>;
};

} // namespace lxpm
