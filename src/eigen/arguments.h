// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Parts of the argument lists of the eigen functions.

#include "runtime/operand.h"

namespace lxpm {

// Plain memory of the caller's: scratch, or one vector for each object without gaps, in every layout.
template <class T>
struct PlainMemory {
    using Parameters = TypeList<T *>;
    T *first;

    explicit constexpr PlainMemory(T *memory) : first(memory) {}
    constexpr bool violates(Check check) const { return check == Check::Pointers && first == nullptr; }
};

// In the place of a destination that a member does not have.
template <class T>
struct NoDestination {
    using Parameters = TypeList<>;

    constexpr bool violates(Check) const { return false; }
    Addresses<T> addresses(int, int) const { return Addresses<T>::strided(nullptr, {0, 0, 0}); }
};

} // namespace lxpm
