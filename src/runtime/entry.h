// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// The implementations behind the exports, by the words of the list of exports: operation, operand code, element type
// and layout. A family's header says what the arguments of its members are, its source what is done with them; the
// entry table takes the addresses.

#include "runtime/operand.h"

#include <lxpm/types.h>

namespace lxpm {

// The words of the list as C++ has them.
using Element_32f = float;
using Element_64f = double;
inline constexpr Layout Layout_S = Layout::Strided;
inline constexpr Layout Layout_L = Layout::ObjectPointers;
inline constexpr Layout Layout_P = Layout::ElementPointers;

// One export. Its operation is a type that names the family's template of members; each member has the type `Arguments`
// and the function
//
//     static LxpStatus run(const Arguments &);
template <class Operation, Code code, class Element, Layout layout>
using Member = typename Operation::template Member<code, Element, layout>;

// A member as a function with the export's exact parameters. Families instantiate it in their sources, where run() is
// known (runtime/entry_call.h).
template <class Member, class Signature = typename Member::Arguments::Signature>
struct Entry;

template <class Member, class... Parameters>
struct Entry<Member, LxpStatus(Parameters...)> {
    static LxpStatus call(Parameters... parameters);
};

} // namespace lxpm
