// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// General eigenproblems of one object after another. The kernels are compiled by themselves for each type, with and
// without vectors.

#include "runtime/addresses.h"

#include <lxpm/types.h>

#include <cstddef>

namespace lxpm {

template <class T>
struct GeneralProblem {
    Addresses<const T> source;
    Addresses<T> right; // of nothing, if not wanted
    Addresses<T> left;
    T *re;
    T *im;
    int order;
    bool wantsRight;
    bool wantsLeft;

    bool wantsVectors() const { return wantsRight || wantsLeft; }
};

// Objects first, ..., first + count - 1. `buffer` holds order * (order + 5) elements, or order * (3 * order + 5) if
// vectors are wanted. Returns the first status other than lxpStatusOk.
template <bool wantsVectors, class T>
LxpStatus solveGeneral(const GeneralProblem<T> &problem, int first, int count, T *buffer);

// Matrices up to this order are solved one in each lane; of a larger one the registers would leave the first cache.
inline constexpr int mostGeneralInLanes = 16;

// Whether objects of an order are solved without the buffer.
constexpr bool isSolvedOnStack(int order) {
    return order <= mostGeneralInLanes;
}

} // namespace lxpm
