// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "eigen/symmetric_kernels.h"

namespace lxpm {

template LxpStatus solveSymmetric<true>(const SymmetricProblem<float> &, int, int, float *);

} // namespace lxpm
