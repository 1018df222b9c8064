// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// Symmetric eigenproblems of one object after another. The kernels are compiled by themselves for each type, with and
// without vectors.

#include "runtime/addresses.h"

#include <lxpm/types.h>

namespace lxpm {

template <class T>
struct SymmetricProblem {
    Addresses<const T> source;
    Addresses<T> vectors; // of nothing, if values alone are wanted
    T *values;
    int order;
};

// Objects first, ..., first + count - 1, in `buffer` of order * order elements. Returns the first status other than
// lxpStatusOk.
template <bool wantsVectors, class T>
LxpStatus solveSymmetric(const SymmetricProblem<T> &problem, int first, int count, T *buffer);

} // namespace lxpm
