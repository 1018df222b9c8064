// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "eigen/general_kernels.h"

namespace lxpm {

template LxpStatus solveGeneral<false>(const GeneralProblem<float> &, int, int, float *);

} // namespace lxpm
