// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "solvers/invert_kernels.h"

#define ONLY_32f
#define EXPORT_LIST "solvers/invert.list.h"
#include "runtime/instantiate.h"
