// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "solvers/cholesky_kernels.h"

#define ONLY_32f
#define EXPORT_LIST "solvers/cholesky.list.h"
#include "runtime/instantiate.h"
